// SPDX-License-Identifier: MIT
// Watches the settings page and its surroundings for the service: that the page is being destroyed, whoever destroys
// it; that it has been painted, or is not on show, when a list that takes long to read is filled; that a person turns
// to it or the dialler tells the host of its state, when a connection may have come up or gone down; that another
// program changed the user's file; and that the import/export dialog was closed.
#ifndef ORBISDIAL_NETCONNECTPAGEWATCH_H
#define ORBISDIAL_NETCONNECTPAGEWATCH_H

#include <QObject>
#include <QPointer>
#include <QWidget>

#include "INotify.h"
#include "NetConnectFileWatch.h"

class CNetConnectUIService;

// The page's first child, so that it goes before the widgets that the service points to. GUI thread.
class NetConnectPageWatch : public QObject, public INotify {
    Q_OBJECT
    Q_INTERFACES(INotify)

public:
    NetConnectPageWatch(QWidget* page, CNetConnectUIService* service);
    ~NetConnectPageWatch() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

    // Hears what the host is told, through this notification service from now on; null ends it.
    void listenTo(QObject* notifyService);
    int Notify(unsigned int event, unsigned int param1, unsigned int param2) override;

    void watchFile(const QString& path) { m_FileWatch.setFile(path); }

private slots:
    void onFocusChanged(QWidget* before, QWidget* now);
    void fillUnlessOnShow();
    void fillAwaitedList();
    void onTransferClosed();
    void onFileChanged();
    void fitHeights();

private:
    static bool isLostClick(QObject* button, QEvent* event);

    CNetConnectUIService* m_pService;
    QWidget* m_pPage;
    QPointer<QObject> m_pNotifyService;
    NetConnectFileWatch m_FileWatch;
};

#endif
