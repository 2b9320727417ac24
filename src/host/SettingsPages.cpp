#include "SettingsPages.h"

#include <QBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QScopedValueRollback>

#include "HostText.h"

SettingsPages::SettingsPages(QWidget* parent)
    : QWidget(parent),
      m_List(new QListWidget),
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

    auto* right = new QVBoxLayout;
    right->addWidget(m_Frame, 1);
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
    retranslate();
    showCurrent();
}

void SettingsPages::clear() {
    m_Pages.clear();
    m_Current = -1;
    retranslate();
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

bool SettingsPages::finish() { return ask(&ISettingUIPlugin::OnClickSettingOkButton); }

void SettingsPages::abandon() { onClickCancel(); }

void SettingsPages::retranslate() {
    const QSignalBlocker quiet(m_List);
    m_List->clear();
    for (const SettingsPage& page : qAsConst(m_Pages)) {
        m_List->addItem(page.object ? page.page->GetModuleName() : QString());
    }
    m_List->setCurrentRow(m_Current);
    m_List->setFixedWidth(m_List->sizeHintForColumn(0) + 6 * m_List->frameWidth() + fontMetrics().averageCharWidth());
    m_List->setAccessibleName(hostText("IDS_HOST_PAGES"));
    m_Ok->setText(hostText("IDS_HOST_OK"));
    m_Cancel->setText(hostText("IDS_HOST_CANCEL"));
}

void SettingsPages::onClickOk() {
    if (ask(&ISettingUIPlugin::OnClickSettingOkButton)) showCurrent();
}

void SettingsPages::onClickCancel() {
    if (ask(&ISettingUIPlugin::OnClickSettingCancelButton)) showCurrent();
}

void SettingsPages::onCurrentRowChanged(int row) {
    if (row >= 0 && row < m_Pages.size()) moveTo(row);
}

bool SettingsPages::moveTo(int row) {
    const bool goes = row == m_Current || ask(&ISettingUIPlugin::HideSetting);
    if (goes && row != m_Current) {
        m_Current = row;
        showCurrent();
    }
    selectCurrentRow();
    return goes;
}

bool SettingsPages::ask(Answer answer) {
    if (m_Asking) return false;
    if (m_Current < 0 || !m_Pages[m_Current].object) return true;
    const QScopedValueRollback<bool> asking(m_Asking, true);
    const bool agreed = (m_Pages[m_Current].page->*answer)() != 0;
    emit acted();
    return agreed;
}

void SettingsPages::showCurrent() {
    if (m_Current < 0 || !m_Pages[m_Current].object) return;
    QRect rect = m_Frame->rect();
    m_Pages[m_Current].page->ShowSettingDialog(m_Frame, rect);
    // In the layout the page follows the frame's size, and the frame knows the page's smallest size.
    for (QWidget* child : m_Frame->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!child->isWindow()) m_FrameLayout->addWidget(child);
    }
}

void SettingsPages::selectCurrentRow() {
    const QSignalBlocker quiet(m_List);
    m_List->setCurrentRow(m_Current);
}
