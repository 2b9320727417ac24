// SPDX-License-Identifier: MIT
// What the SDK finds when it loads this module.
#include <ModemManager.h>

#include <exception>

#include "ModemManagerBackend.h"

namespace {

constexpr unsigned int LongestAsking = 500;  // milliseconds; a bus that hangs has no modem for us

bool isAvailable() { return SystemBus::hasService(MM_DBUS_SERVICE, LongestAsking); }

Backend* make(EventSink& events) {
    try {
        return new ModemManagerBackend(events);
    } catch (const std::exception&) {
        return nullptr;
    }
}

}  // namespace

extern "C" __attribute__((visibility("default")))
const BackendModule ORBISDIAL_BACKEND_MODULE = {BackendModule::CurrentVersion, isAvailable, make};
