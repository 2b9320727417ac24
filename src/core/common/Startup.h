// SPDX-License-Identifier: MIT
// The host's start-up object: where plug-ins find the container.
#ifndef ORBISDIAL_STARTUP_H
#define ORBISDIAL_STARTUP_H

#include "HostCoreExport.h"
#include "IPluginContainer.h"

class HOSTCORE_EXPORT Startup {
public:
    // The process's one container; never null. GUI thread.
    static IPluginContainer* GetPluginContainer();
};

// The plug-in under a class identifier and a kind as the interface that is asked for; null when there is none, or it
// does not offer that.
template <class T>
T* findPeer(const char* clsid, int kind) {
    IPluginContainer* container = Startup::GetPluginContainer();
    return container ? qobject_cast<T*>(container->FindPlugin(QString::fromLatin1(clsid), kind)) : nullptr;
}

#endif
