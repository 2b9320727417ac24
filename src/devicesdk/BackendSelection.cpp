// SPDX-License-Identifier: MIT
#include "BackendSelection.h"

#include <pthread.h>

#include <atomic>
#include <charconv>
#include <cstdlib>
#include <cstring>

#include "BackendLoader.h"
#include "EventDispatcher.h"
#include "none/NoneBackend.h"
#include "simulated/SimulatedBackend.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int DefaultWaitMs = 1000;
constexpr int LongestWaitMs = 60000;

// The text is for whoever asks as long as the process lives.
BackendSelection unavailable(const std::string& problem) {
    return {new NoneBackend, nullptr, nullptr, ::strdup(problem.c_str())};
}

BackendSelection chooseNone() { return {new NoneBackend, nullptr, "none", nullptr}; }

BackendSelection chooseSimulated() {
    auto* events = new EventDispatcher;
    return {new SimulatedBackend(*events), events, "simulated", nullptr};
}

using MakeBackend = Backend* (*)(EventSink& events);

// Without a backend when it can't be made.
BackendSelection use(MakeBackend make, const char* name) {
    auto events = std::make_unique<EventDispatcher>();
    Backend* backend = make(*events);
    return {backend, backend ? events.release() : nullptr, name, nullptr};
}

BackendSelection chooseModemManager() {
    const LoadedModule loaded = loadBackendModule("modemmanager");
    if (!loaded.module) return unavailable(loaded.problem);
    const BackendSelection selection = use(loaded.module->make, "modemmanager");
    return selection.backend ? selection : unavailable("the device backend can't start");
}

BackendSelection chooseAutomatically() {
    const LoadedModule loaded = loadBackendModule("modemmanager");
    if (!loaded.module) return chooseNone();
    const BackendSelection selection = use(loaded.module->makeWhenAvailable, "modemmanager");
    return selection.backend ? selection : chooseNone();
}

struct BackendKind {
    const char* request;  // the value of ORBISDIAL_DEVICE
    BackendSelection (*choose)();
};

const BackendKind Kinds[] = {
    {"simulated", chooseSimulated},
    {"modemmanager", chooseModemManager},
    {"none", chooseNone},
    {"auto", chooseAutomatically},
};

// Read once, so that all that is asked agrees.
const char* request() {
    static const char* const request = [] {
        const char* variable = std::getenv("ORBISDIAL_DEVICE");
        return ::strdup(variable && *variable ? variable : "auto");
    }();
    return request;
}

BackendSelection select() {
    for (const BackendKind& kind : Kinds)
        if (std::strcmp(kind.request, request()) == 0) return kind.choose();
    return unavailable("ORBISDIAL_DEVICE names no device backend; use simulated, modemmanager, none or auto");
}

std::chrono::milliseconds timeToWait() {
    const char* text = std::getenv("ORBISDIAL_DEVICE_WAIT_MS");
    if (!text) return std::chrono::milliseconds(DefaultWaitMs);
    int number = DefaultWaitMs;
    const char* end = text + std::strlen(text);
    const auto [stop, error] = std::from_chars(text, end, number);
    const bool isNumber = error == std::errc() && stop == end && number >= 0 && number <= LongestWaitMs;
    return std::chrono::milliseconds(isNumber ? number : DefaultWaitMs);
}

std::atomic<bool> isChildOfUser{false};

// Ends the threads with the process, before what callbacks use goes away. In a child they are not there.
struct Stopper {
    const BackendSelection& selection;
    ~Stopper() {
        if (isChildOfUser) return;
        selection.backend->stop();
        if (selection.events) selection.events->stop();
    }
};

const BackendSelection& parentsSelection() {
    static const BackendSelection selection = [] {
        ::pthread_atfork(nullptr, nullptr, [] { isChildOfUser = true; });
        return select();
    }();
    static const Stopper stopper{selection};
    return selection;
}

const BackendSelection& childsSelection() {
    static const BackendSelection selection = unavailable("the process was made by one that uses the modem");
    return selection;
}

}  // namespace

bool isRequested(const char* name) { return std::strcmp(request(), name) == 0; }

const BackendSelection& selectedBackend() { return isChildOfUser ? childsSelection() : parentsSelection(); }

const BackendSelection& answeringBackend() {
    const BackendSelection& selection = selectedBackend();
    static const Clock::time_point deadline = Clock::now() + timeToWait();
    selection.backend->awaitPicture(deadline);
    return selection;
}
