// SPDX-License-Identifier: MIT
#include "Startup.h"

#include "PluginContainer.h"

IPluginContainer* Startup::GetPluginContainer() {
    static PluginContainer container;
    return &container;
}
