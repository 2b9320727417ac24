#include "NetConnectPageWatch.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

#include "NetConnectUIService.h"

// How long others wait for the profiles when the host shows another page first, in milliseconds.
static const int LongestWait = 250;

NetConnectPageWatch::NetConnectPageWatch(QWidget* page, CNetConnectUIService* service)
    : QObject(page), m_pService(service), m_pPage(page) {
    page->installEventFilter(this);
    QTimer::singleShot(LongestWait, this, SLOT(fillAwaitedList()));
    connect(qApp, SIGNAL(focusChanged(QWidget*, QWidget*)), this, SLOT(onFocusChanged(QWidget*, QWidget*)));
}

NetConnectPageWatch::~NetConnectPageWatch() { m_pService->forgetPage(); }

bool NetConnectPageWatch::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Enter) m_pService->applyProfileLocks();
    if (event->type() == QEvent::Paint && m_pService->m_bListAwaited)
        QTimer::singleShot(0, this, SLOT(fillAwaitedList()));
    return QObject::eventFilter(watched, event);
}

void NetConnectPageWatch::onFocusChanged(QWidget*, QWidget* now) {
    if (now && m_pPage->isAncestorOf(now)) m_pService->applyProfileLocks();
}

void NetConnectPageWatch::fillAwaitedList() {
    if (m_pService->m_bListAwaited) m_pService->rebuildList();
}
