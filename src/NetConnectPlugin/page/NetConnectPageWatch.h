// Watches the settings page for its service: that it is being destroyed, whoever destroys it; that it has been painted,
// or has not been for a while, when a list that takes long to read is filled; and that a person turns to it, when a
// connection may have come up or gone down.
#ifndef ORBISDIAL_NETCONNECTPAGEWATCH_H
#define ORBISDIAL_NETCONNECTPAGEWATCH_H

#include <QObject>
#include <QWidget>

class CNetConnectUIService;

// The page's first child, so that it goes before the widgets that the service points to. GUI thread.
class NetConnectPageWatch : public QObject {
    Q_OBJECT

public:
    NetConnectPageWatch(QWidget* page, CNetConnectUIService* service);
    virtual ~NetConnectPageWatch();

    virtual bool eventFilter(QObject* watched, QEvent* event);

private slots:
    void onFocusChanged(QWidget* before, QWidget* now);
    void fillAwaitedList();

private:
    CNetConnectUIService* m_pService;
    QWidget* m_pPage;
};

#endif
