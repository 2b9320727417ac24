// SPDX-License-Identifier: MIT
#include "SettingsDialog.h"

#include <QAccessibleWidget>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>

#include "HostText.h"
#include "SettingsPages.h"

namespace {

constexpr int LettersOfWidth = 64;

// A QDialog would press a page's first button on Return; a bare widget is no window to a screen reader.
QAccessibleInterface* makeAccessible(const QString&, QObject* object) {
    auto* const dialog = qobject_cast<SettingsDialog*>(object);
    return dialog ? new QAccessibleWidget(dialog, QAccessible::Dialog) : nullptr;
}

}  // namespace

SettingsDialog::SettingsDialog(QWidget* parent) : QWidget(parent, Qt::Dialog), m_Pages(new SettingsPages) {
    setObjectName(QStringLiteral("Host_SettingsDialog"));
    QAccessible::installFactory(makeAccessible);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_Pages);
    connect(m_Pages, &SettingsPages::done, this, &QWidget::hide);
    retranslate();
}

void SettingsDialog::open() {
    if (isVisible()) {
        raise();
        return activateWindow();
    }
    m_Pages->begin();
    // As large as the page wants, where the screen has the room; else the page scrolls.
    const QSize room = screen()->availableGeometry().size() * 9 / 10;
    resize(size()
               .expandedTo(sizeHint())
               .expandedTo({LettersOfWidth * fontMetrics().averageCharWidth(), 0})
               .boundedTo(room));
    show();
    activateWindow();
    m_Pages->focusPage();
}

bool SettingsDialog::finish() {
    if (!isVisible()) return true;
    const bool agreed = m_Pages->finish();
    if (agreed) hide();
    return agreed;
}

void SettingsDialog::abandon() {
    if (!isVisible()) return;
    m_Pages->abandon();
    hide();
}

void SettingsDialog::retranslate() {
    setWindowTitle(hostText("IDS_HOST_SETTINGS_TITLE"));
    m_Pages->retranslate();
}

void SettingsDialog::closeEvent(QCloseEvent* event) { event->setAccepted(finish()); }

void SettingsDialog::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel)) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}
