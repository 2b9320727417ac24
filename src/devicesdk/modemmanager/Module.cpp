// SPDX-License-Identifier: MIT
// What the SDK finds when it loads this module.
#include <exception>
#include <memory>

#include "ModemManagerBackend.h"

namespace {

constexpr std::chrono::milliseconds LongestAsking(500);  // a bus that hangs has no modem for us

Backend* make(EventSink& events) {
    try {
        return new ModemManagerBackend(events);
    } catch (const std::exception&) {
        return nullptr;
    }
}

Backend* makeWhenAvailable(EventSink& events) {
    try {
        auto backend = std::make_unique<ModemManagerBackend>(events, ModemManagerBackend::WhenOffered);
        if (backend->awaitOffer(LongestAsking)) return backend.release();
        backend->stop();
        // An offer that came too late was taken up: what is made on the thread can't be given up on another one.
        if (backend->isOffered()) backend.release();
    } catch (const std::exception&) {
    }
    return nullptr;
}

}  // namespace

extern "C" __attribute__((visibility("default")))
const BackendModule ORBISDIAL_BACKEND_MODULE = {BackendModule::CurrentVersion, make, makeWhenAvailable};
