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

#endif
