#include "NetConnectPageWatch.h"

#include <QApplication>
#include <QEvent>

#include "NetConnectUIService.h"

NetConnectPageWatch::NetConnectPageWatch(QWidget* page, CNetConnectUIService* service)
    : QObject(page), m_pService(service), m_pPage(page) {
    page->installEventFilter(this);
    connect(qApp, SIGNAL(focusChanged(QWidget*, QWidget*)), this, SLOT(onFocusChanged(QWidget*, QWidget*)));
}

NetConnectPageWatch::~NetConnectPageWatch() { m_pService->forgetPage(); }

bool NetConnectPageWatch::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Enter) m_pService->applyProfileLocks();
    return QObject::eventFilter(watched, event);
}

void NetConnectPageWatch::onFocusChanged(QWidget*, QWidget* now) {
    if (now && m_pPage->isAncestorOf(now)) m_pService->applyProfileLocks();
}
