#include "NetConnectPageWatch.h"

#include "NetConnectUIService.h"

NetConnectPageWatch::NetConnectPageWatch(QWidget* page, CNetConnectUIService* service)
    : QObject(page), m_pService(service) {}

NetConnectPageWatch::~NetConnectPageWatch() { m_pService->forgetPage(); }
