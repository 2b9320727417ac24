// SPDX-License-Identifier: MIT
// The host's notification service: passes events from plug-in to plug-in by class identifier.
#ifndef ORBISDIAL_INOTIFYSERVICE_H
#define ORBISDIAL_INOTIFYSERVICE_H

#include <QObject>
#include <QString>

#include "INotify.h"

// The class identifier and the kind under which the container finds the service, and the identifier of
// the host's own listener.
#define ORBISDIAL_NOTIFYSERVICE_CLSID "C986A689-A5F6-4215-84BD-39BA626F1F57"
#define ORBISDIAL_HOST_LISTENER_CLSID "DF986A92-844C-42b6-A03C-26B837BF1C53"
enum { NotifyServicePluginKind = 8209 };

// All operations are called on the GUI thread. Their order is part of the binary interface.
class INotifyService {
public:
    virtual ~INotifyService() {}

    // Registers a listener under a class identifier; it must be removed before it is destroyed.
    virtual void AddListener(QString clsid, INotify* listener) = 0;

    virtual void RemoveListener(INotify* listener) = 0;

    // Delivers an event to the listeners of the class identifier, before it returns. 0, or -1 when
    // nobody listens under that identifier.
    virtual int SendNotify(QString clsid, unsigned int event, unsigned int param1, unsigned int param2) = 0;
};

Q_DECLARE_INTERFACE(INotifyService, "com.kestra.orbisdial.plugin.INotifyService")

#endif
