// SPDX-License-Identifier: MIT
#include "SettingsDialog.h"

#include <QAccessibleWidget>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QStyle>

#include "HostText.h"
#include "SettingsPages.h"

namespace {

constexpr int LettersOfWidth = 64;

// A QDialog would press a page's first button on Return; a bare widget is no window to a screen reader.
QAccessibleInterface* makeAccessible(const QString&, QObject* object) {
    auto* const dialog = qobject_cast<SettingsDialog*>(object);
    return dialog ? new QAccessibleWidget(dialog, QAccessible::Dialog) : nullptr;
}

QSize mostOf(const QWidget* window) { return window->screen()->availableGeometry().size() * 9 / 10; }

}  // namespace

SettingsDialog::SettingsDialog(QWidget* parent) : QWidget(parent, Qt::Dialog), m_Pages(new SettingsPages) {
    setObjectName(QStringLiteral("Host_SettingsDialog"));
    QAccessible::installFactory(makeAccessible);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_Pages);
    connect(m_Pages, &SettingsPages::done, this, &QWidget::hide);
    connect(m_Pages, &SettingsPages::shown, this, &SettingsDialog::makeRoom);
    retranslate();
}

void SettingsDialog::open() {
    if (isVisible()) {
        raise();
        return activateWindow();
    }
    resize(size().boundedTo(mostOf(this)));  // the screen may be another one
    m_Pages->begin();
    makeRoom();
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

// As large as the page wants, where the screen has the room; else the page scrolls.
void SettingsDialog::makeRoom() {
    const QSize most = mostOf(this);
    QSize wanted = sizeHint().expandedTo({LettersOfWidth * fontMetrics().averageCharWidth(), 0});
    if (wanted.height() > most.height()) wanted.rwidth() += style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const QSize grown = size().expandedTo(wanted.boundedTo(most));
    if (grown == size()) return;
    resize(grown);
    if (!isVisible()) return;
    const QRect room = screen()->availableGeometry();
    const QPoint outside(qMax(0, frameGeometry().right() - room.right()),
                         qMax(0, frameGeometry().bottom() - room.bottom()));
    if (!outside.isNull()) move(pos() - outside);
}

void SettingsDialog::closeEvent(QCloseEvent* event) { event->setAccepted(finish()); }

void SettingsDialog::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel)) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}
