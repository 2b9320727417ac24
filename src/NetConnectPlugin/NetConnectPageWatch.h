// Tells the settings service that its page is being destroyed, whoever destroys it.
#ifndef ORBISDIAL_NETCONNECTPAGEWATCH_H
#define ORBISDIAL_NETCONNECTPAGEWATCH_H

#include <QObject>
#include <QWidget>

class CNetConnectUIService;

// The page's first child, so that it goes before the widgets that the service points to. GUI thread.
class NetConnectPageWatch : public QObject {
public:
    NetConnectPageWatch(QWidget* page, CNetConnectUIService* service);
    virtual ~NetConnectPageWatch();

private:
    CNetConnectUIService* m_pService;
};

#endif
