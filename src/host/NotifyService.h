// SPDX-License-Identifier: MIT
// Passes events from plug-in to plug-in by class identifier.
#ifndef ORBISDIAL_NOTIFYSERVICE_H
#define ORBISDIAL_NOTIFYSERVICE_H

#include <QVector>

#include "INotifyService.h"

// The host's own listeners (ORBISDIAL_HOST_LISTENER_CLSID) are told of every event, whatever its target, and
// after it. A listener may add and remove listeners while it is being told.
class NotifyService : public QObject, public INotifyService {
    Q_OBJECT
    Q_INTERFACES(INotifyService)

public:
    void AddListener(QString clsid, INotify* listener) override;
    void RemoveListener(INotify* listener) override;
    int SendNotify(QString clsid, unsigned int event, unsigned int param1, unsigned int param2) override;

private:
    struct Listener {
        QString clsid;
        INotify* target;
        bool operator==(const Listener& other) const { return target == other.target && clsid == other.clsid; }
    };

    bool deliver(const QString& clsid, unsigned int event, unsigned int param1, unsigned int param2);

    QVector<Listener> m_Listeners;
};

#endif
