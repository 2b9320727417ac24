#include "BackendSelection.h"

#include <cstdlib>
#include <cstring>

#include "EventDispatcher.h"
#include "none/NoneBackend.h"
#include "simulated/SimulatedBackend.h"

namespace {

template <class Kind>
Backend* make() {
    return new Kind;
}

struct BackendKind {
    const char* request;  // the value of ORBISDIAL_DEVICE
    Backend* (*make)();
    const char* name;
    const char* problem;
};

const BackendKind Kinds[] = {
    {"simulated", make<SimulatedBackend>, "simulated", nullptr},
    {"none", make<NoneBackend>, "none", nullptr},
    {"auto", make<NoneBackend>, "none", nullptr},
    {"modemmanager", make<NoneBackend>, nullptr,
     "the device backend \"modemmanager\" is not part of this version; use simulated, none or auto"},
};

const BackendKind UnknownKind = {nullptr, make<NoneBackend>, nullptr,
                                 "ORBISDIAL_DEVICE names no device backend; use simulated, none or auto"};

const BackendKind& kindFor(const char* request) {
    for (const BackendKind& kind : Kinds)
        if (std::strcmp(kind.request, request) == 0) return kind;
    return UnknownKind;
}

BackendSelection select() {
    const char* request = std::getenv("ORBISDIAL_DEVICE");
    const BackendKind& kind = kindFor(request && *request ? request : "auto");
    return {kind.make(), kind.name, kind.problem};
}

// Ends the event thread with the process, before what callbacks use goes away.
struct EventsStopper {
    EventDispatcher* events;
    ~EventsStopper() {
        if (events) events->stop();
    }
};

}  // namespace

const BackendSelection& selectedBackend() {
    static const BackendSelection selection = select();
    static const EventsStopper stopper{selection.backend->events()};
    return selection;
}
