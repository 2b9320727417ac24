// SPDX-License-Identifier: MIT
// The peers that the page finds in the container: they record what they are told and answer as set.
#ifndef ORBISDIAL_FAKEPEERS_H
#define ORBISDIAL_FAKEPEERS_H

#include <QStringList>
#include <functional>

#include "IDialupUIService.h"
#include "INotifyService.h"
#include "Startup.h"

class FakeDialup : public QObject, public IDialupUIService {
    Q_OBJECT
    Q_INTERFACES(IDialupUIService)

public:
    FakeDialup() { Startup::GetPluginContainer()->AddPlugin(this, ORBISDIAL_DIALUP_CLSID, DialupPluginKind); }
    ~FakeDialup() override { Startup::GetPluginContainer()->RemovePlugin(this); }

    int Connect(QString) override { return 0; }
    int Disconnect() override { return 0; }
    bool IsConnected() override { return !connected.isNull(); }
    ConnectionState GetConnectionState() override { return IsConnected() ? Connected : Disconnected; }
    QString GetLastFailure() override { return QString(); }
    bool GetConnectedProfileName(QString* name) override {
        if (IsConnected()) *name = connected;
        return IsConnected();
    }

    QString connected;
};

class FakeNotifyService : public QObject, public INotifyService {
    Q_OBJECT
    Q_INTERFACES(INotifyService)

public:
    FakeNotifyService() {
        Startup::GetPluginContainer()->AddPlugin(this, ORBISDIAL_NOTIFYSERVICE_CLSID, NotifyServicePluginKind);
    }
    ~FakeNotifyService() override { Startup::GetPluginContainer()->RemovePlugin(this); }

    void AddListener(QString clsid, INotify* listener) override {
        if (clsid == ORBISDIAL_HOST_LISTENER_CLSID) hostListeners.append(listener);
    }
    void RemoveListener(INotify* listener) override { hostListeners.removeAll(listener); }
    int SendNotify(QString clsid, unsigned int event, unsigned int param1, unsigned int param2) override {
        sent.append(QString("%1 %2 %3 %4").arg(clsid).arg(event).arg(param1).arg(param2));
        if (told) told();
        return 0;
    }

    // As the dialler tells the host.
    void connectionChanged() {
        for (INotify* listener : hostListeners) listener->Notify(NotifyConnectionChanged, 0, 0);
    }

    QStringList sent;
    std::function<void()> told;  // what a listener does
    QList<INotify*> hostListeners;
};

#endif
