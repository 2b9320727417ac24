// SPDX-License-Identifier: MIT
#include "SettingsPages.h"

#include <QBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <utility>

#include "HostText.h"

SettingsPages::SettingsPages(QWidget* parent)
    : QWidget(parent),
      m_List(new QListWidget),
      m_Scroll(new QScrollArea),
      m_Frame(new QWidget),
      m_FrameLayout(new QVBoxLayout(m_Frame)),
      m_Ok(new QPushButton),
      m_Cancel(new QPushButton) {
    setObjectName(QStringLiteral("Host_SettingsPages"));
    m_List->setObjectName(QStringLiteral("Host_PageList"));
    m_List->setSpacing(2);
    m_List->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    m_Frame->setObjectName(QStringLiteral("Host_PageFrame"));
    m_FrameLayout->setContentsMargins(0, 0, 0, 0);
    m_Scroll->setFrameShape(QFrame::NoFrame);
    m_Scroll->setWidgetResizable(true);
    m_Scroll->setFocusPolicy(Qt::NoFocus);
    m_Scroll->setWidget(m_Frame);

    auto* right = new QVBoxLayout;
    right->addWidget(m_Scroll, 1);
    right->addWidget(makeButtons());
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_List);
    layout->addLayout(right, 1);

    // Queued: a page may ask a question, and the list must have finished handling the click by then.
    connect(m_List, &QListWidget::currentRowChanged, this, &SettingsPages::onCurrentRowChanged, Qt::QueuedConnection);
}

QWidget* SettingsPages::makeButtons() {
    m_Ok->setObjectName(QStringLiteral("Host_OkButton"));
    m_Cancel->setObjectName(QStringLiteral("Host_CancelButton"));
    connect(m_Ok, &QPushButton::clicked, this, &SettingsPages::onClickOk);
    connect(m_Cancel, &QPushButton::clicked, this, &SettingsPages::onClickCancel);
    auto* box = new QWidget;
    auto* layout = new QHBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    layout->addWidget(m_Ok);
    layout->addWidget(m_Cancel);
    return box;
}

void SettingsPages::setPages(const QVector<SettingsPage>& pages) {
    m_Pages = pages;
    m_Current = m_Pages.isEmpty() ? -1 : 0;
    m_IsShown = false;
    retranslate();
}

void SettingsPages::begin() {
    if (!m_IsShown) showCurrent();
}

void SettingsPages::focusPage() {
    for (QWidget* widget = m_Frame->nextInFocusChain(); widget != m_Frame; widget = widget->nextInFocusChain()) {
        if (!m_Frame->isAncestorOf(widget)) continue;
        const bool takesFocus = widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus);
        if (takesFocus) return widget->setFocus(Qt::TabFocusReason);
    }
}

bool SettingsPages::showPage(const QString& name) {
    for (int row = 0; row < m_Pages.size(); ++row) {
        const SettingsPage& page = m_Pages[row];
        if (page.object && (page.page->GetModuleName() == name || page.pluginName == name)) return moveTo(row);
    }
    return false;
}

QStringList SettingsPages::pageNames() const {
    QStringList names;
    for (const SettingsPage& page : m_Pages) names.append(page.pluginName);
    return names;
}

bool SettingsPages::finish() { return askEach(&ISettingUIPlugin::OnClickSettingOkButton); }

void SettingsPages::abandon() { askEach(&ISettingUIPlugin::OnClickSettingCancelButton); }

// The page's own size, and no scroll bars.
QSize SettingsPages::sizeHint() const {
    const QSize unused = m_Scroll->sizeHint() - m_Frame->sizeHint();
    return QWidget::sizeHint() - unused + QSize(2 * m_Scroll->frameWidth(), 2 * m_Scroll->frameWidth());
}

void SettingsPages::retranslate() {
    const QSignalBlocker quiet(m_List);
    m_List->clear();
    for (const SettingsPage& page : std::as_const(m_Pages)) {
        m_List->addItem(page.object ? page.page->GetModuleName() : QString());
    }
    m_List->setCurrentRow(m_Current);
    m_List->setFixedWidth(m_List->sizeHintForColumn(0) + 6 * m_List->frameWidth() + fontMetrics().averageCharWidth());
    m_List->setAccessibleName(hostText("IDS_HOST_PAGES"));
    m_Ok->setText(hostText("IDS_HOST_OK"));
    m_Cancel->setText(hostText("IDS_HOST_CANCEL"));
}

void SettingsPages::onClickOk() {
    if (finish()) emit done();
}

void SettingsPages::onClickCancel() {
    if (askEach(&ISettingUIPlugin::OnClickSettingCancelButton)) emit done();
}

void SettingsPages::onCurrentRowChanged(int row) {
    if (row >= 0 && row < m_Pages.size()) moveTo(row);
}

bool SettingsPages::moveTo(int row) {
    const bool goes = row == m_Current || !m_IsShown || ask(m_Current, &ISettingUIPlugin::HideSetting);
    if (goes && row != m_Current) {
        m_Current = row;
        if (m_IsShown) showCurrent();
    }
    selectCurrentRow();
    return goes;
}

bool SettingsPages::ask(int row, Answer answer) {
    if (m_Asking) return false;
    if (row < 0 || !m_Pages[row].object) return true;
    const QScopedValueRollback<bool> asking(m_Asking, true);
    const bool agreed = (m_Pages[row].page->*answer)() != 0;
    emit acted();
    return agreed;
}

// The page on show first, then those that keep their changes until now.
bool SettingsPages::askEach(Answer answer) {
    if (!m_IsShown) return true;
    if (!ask(m_Current, answer)) return false;
    m_IsShown = false;
    for (int row = 0; row < m_Pages.size(); ++row) {
        if (row == m_Current || !m_Pages[row].keepsUntilOk || ask(row, answer)) continue;
        m_Current = row;  // it can't be saved: show which
        showCurrent();
        selectCurrentRow();
        return false;
    }
    return true;
}

void SettingsPages::showCurrent() {
    if (m_Current < 0 || !m_Pages[m_Current].object) return;
    m_IsShown = true;
    QRect rect = m_Frame->rect();
    m_Pages[m_Current].page->ShowSettingDialog(m_Frame, rect);
    // In the layout the page follows the frame's size, and the frame knows the page's smallest size.
    for (QWidget* child : m_Frame->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!child->isWindow()) m_FrameLayout->addWidget(child);
    }
    setTabOrder(m_Cancel, m_List);  // and from there into the page, which stands at the order's end
    updateGeometry();               // a scroll area does not tell that what it holds became larger
    emit shown();
}

void SettingsPages::selectCurrentRow() {
    const QSignalBlocker quiet(m_List);
    m_List->setCurrentRow(m_Current);
}
