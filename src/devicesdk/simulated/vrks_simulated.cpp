// SPDX-License-Identifier: MIT
#include "vrks_simulated.h"

#include <cstring>
#include <exception>

#include "../BackendSelection.h"
#include "../EventDispatcher.h"
#include "../Failures.h"
#include "../Utf8.h"
#include "SimulatedBackend.h"

namespace {

// Whoever asks for a simulated modem does not have a real one's backend loaded.
SimulatedBackend* simulated() {
    if (!isRequested("simulated")) return nullptr;
    return dynamic_cast<SimulatedBackend*>(selectedBackend().backend);
}

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

void writeText(char* place, const std::string& text) {
    const std::size_t length = fittingLength(text, VRKS_TEXT_SIZE - 1);
    std::memcpy(place, text.data(), length);
    place[length] = '\0';
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

long vrks_simulated_change(const char* name, const char* value) {
    return withModem([=](SimulatedBackend& modem) { return name && modem.change(name, value); });
}

long vrks_simulated_get_at(unsigned int index, char* name, char* value) {
    return withModem([=](SimulatedBackend& modem) {
        const std::vector<NamedValue> values = modem.values();
        if (!name || !value || index >= values.size()) return false;
        writeText(name, values[index].name);
        writeText(value, values[index].value.value_or(std::string()));
        return true;
    });
}

long vrks_simulated_raise_event(int event) {
    return withModem([=](SimulatedBackend&) {
        selectedBackend().events->queueDevice(event);
        return true;
    });
}

long vrks_simulated_wait_events(void) {
    return withModem([](SimulatedBackend&) { return selectedBackend().events->waitDelivered(); });
}

long vrks_simulated_drop(const char* failure) {
    return withModem([=](SimulatedBackend& modem) {
        const std::optional<int> known = failureNamed(failure ? failure : "dropped");
        return known && modem.drop(*known);
    });
}

long vrks_simulated_dialled(VRKS_DialRequest* request) {
    return withModem([=](SimulatedBackend& modem) {
        if (!request) return false;
        thread_local std::shared_ptr<const DialRequest> dialled;
        dialled = modem.dialled();
        if (!dialled) return false;
        const auto server = [](std::size_t i) { return i < dialled->dns.size() ? dialled->dns[i].c_str() : ""; };
        *request = {sizeof *request,
                    dialled->allowsChap,
                    dialled->allowsPap,
                    dialled->endsWithProcess,
                    dialled->name.c_str(),
                    dialled->number.c_str(),
                    dialled->apn.c_str(),
                    dialled->user.c_str(),
                    dialled->password.c_str(),
                    server(0),
                    server(1)};
        return true;
    });
}

long vrks_simulated_reset(void) {
    return withModem([](SimulatedBackend& modem) {
        modem.reset();
        return true;
    });
}
