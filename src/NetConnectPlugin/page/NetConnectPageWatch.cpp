// SPDX-License-Identifier: MIT
#include "NetConnectPageWatch.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QTimer>

#include "NetConnectUIService.h"

// How long others wait for the profiles where nobody sees the page that is on show, in milliseconds.
static const int LongestWait = 250;

NetConnectPageWatch::NetConnectPageWatch(QWidget* page, CNetConnectUIService* service)
    : QObject(page), m_pService(service), m_pPage(page), m_FileWatch(this) {
    page->installEventFilter(this);
    QTimer::singleShot(0, this, SLOT(fillUnlessOnShow()));
    connect(qApp, SIGNAL(focusChanged(QWidget*, QWidget*)), this, SLOT(onFocusChanged(QWidget*, QWidget*)));
    connect(&m_FileWatch, SIGNAL(changed()), this, SLOT(onFileChanged()));
}

NetConnectPageWatch::~NetConnectPageWatch() {
    listenTo(nullptr);
    m_pService->forgetPage();
}

void NetConnectPageWatch::listenTo(QObject* notifyService) {
    if (notifyService == m_pNotifyService) return;
    if (INotifyService* before = qobject_cast<INotifyService*>(m_pNotifyService.data())) before->RemoveListener(this);
    m_pNotifyService = notifyService;
    if (INotifyService* now = qobject_cast<INotifyService*>(notifyService))
        now->AddListener(QString::fromLatin1(ORBISDIAL_HOST_LISTENER_CLSID), this);
}

int NetConnectPageWatch::Notify(unsigned int event, unsigned int, unsigned int) {
    if (event == NotifyConnectionChanged) m_pService->applyProfileLocks();
    return 0;
}

bool NetConnectPageWatch::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_pPage) return isLostClick(watched, event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        QTimer::singleShot(0, this, SLOT(fitHeights()));
    if (event->type() == QEvent::Enter) m_pService->applyProfileLocks();
    if (event->type() == QEvent::Paint && m_pService->m_bListAwaited)
        QTimer::singleShot(0, this, SLOT(fillAwaitedList()));
    return QObject::eventFilter(watched, event);
}

// A button that is down while the page goes is released without a click, also where a mnemonic pressed it: its own
// timer would click it, and open a dialog under another page.
bool NetConnectPageWatch::isLostClick(QObject* watched, QEvent* event) {
    QAbstractButton* const button = qobject_cast<QAbstractButton*>(watched);
    if (!button) return false;
    if (event->type() == QEvent::Hide) button->setDown(false);
    if (event->type() != QEvent::Timer || button->isVisible()) return false;
    button->blockSignals(true);
    watched->event(event);
    button->blockSignals(false);
    return true;
}

// Not between the press and the release of a mouse button: the click would be lost without a word, where the button's
// own slot looks again and tells why.
void NetConnectPageWatch::onFocusChanged(QWidget*, QWidget* now) {
    if (QApplication::mouseButtons() != Qt::NoButton) return;
    if (now && m_pPage->isAncestorOf(now)) m_pService->applyProfileLocks();
}

// A page that the host has shown by now is painted first; that of a minimised window is not.
void NetConnectPageWatch::fillUnlessOnShow() {
    if (!m_pPage->isVisible()) return fillAwaitedList();
    QTimer::singleShot(LongestWait, this, SLOT(fillAwaitedList()));
}

void NetConnectPageWatch::fillAwaitedList() {
    if (m_pService->m_bListAwaited) m_pService->rebuildList();
}

void NetConnectPageWatch::onTransferClosed() { m_pService->finishTransfer(); }

void NetConnectPageWatch::fitHeights() {
    m_pService->setGroupBoxLanguage();  // some texts are cut to a width
    m_pService->setElidedTexts();
    m_pService->fitHeights();
}

void NetConnectPageWatch::onFileChanged() { m_pService->followUserFile(); }
