#include "vrks_simulated.h"

#include <exception>

#include "../BackendSelection.h"
#include "SimulatedBackend.h"

namespace {

SimulatedBackend* simulated() { return dynamic_cast<SimulatedBackend*>(selectedBackend().backend); }

// Runs an operation on the simulated modem, if there is one; no exception may reach a C caller.
template <class Operation>
long withModem(Operation operation) noexcept {
    try {
        SimulatedBackend* modem = simulated();
        return modem && operation(*modem) ? 0 : -1;
    } catch (const std::exception&) {
        return -1;
    }
}

}  // namespace

int vrks_simulated_active(void) { return simulated() != nullptr; }

const char* vrks_backend_name(const char** problem) {
    const BackendSelection& selection = selectedBackend();
    if (problem) *problem = selection.problem;
    return selection.name;
}

long vrks_simulated_set(const char* name, const char* value) {
    return withModem([=](SimulatedBackend& modem) { return name && modem.set(name, value); });
}

long vrks_simulated_raise_event(int event) {
    return withModem([=](SimulatedBackend& modem) {
        modem.events()->raise(event);
        return true;
    });
}

long vrks_simulated_wait_events(void) {
    return withModem([](SimulatedBackend& modem) { return modem.events()->waitDelivered(); });
}

long vrks_simulated_reset(void) {
    return withModem([](SimulatedBackend& modem) {
        modem.reset();
        return true;
    });
}
