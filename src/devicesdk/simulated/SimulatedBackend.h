// A modem that exists only in the process's environment and memory.
#ifndef ORBISDIAL_SIMULATEDBACKEND_H
#define ORBISDIAL_SIMULATEDBACKEND_H

#include <mutex>

#include "../Backend.h"
#include "../EventDispatcher.h"

// What the simulated modem knows; nothing means that the query behind it fails.
struct SimulatedState {
    std::optional<std::string> imsi;
    std::optional<std::string> customizeName;
    std::optional<std::string> user;
    std::optional<std::string> password;
    std::optional<int> status;
    std::optional<int> productType;
    std::optional<int> multiMode;
    std::optional<int> cardMode;
    std::optional<int> systemMode;
    std::optional<int> systemSubMode;
};

class SimulatedBackend : public Backend {
public:
    SimulatedBackend();

    // One value by its name without the prefix ORBISDIAL_SIM_; null makes its query fail. False, and nothing
    // changes, for an unknown name or a number that is none.
    bool set(const char* name, const char* value);

    // Everything back to what the environment says.
    void reset();

    EventDispatcher* events() override { return &m_Events; }
    std::optional<int> devStatus() override;
    std::optional<std::string> customizeName() override;
    std::optional<int> productType() override;
    std::optional<std::string> imsi() override;
    std::optional<MultiModeStatus> multiModeStatus() override;
    std::optional<SystemMode> systemMode() override;
    std::optional<DataServiceProfile> dataServiceProfile() override;

private:
    SimulatedState state();

    EventDispatcher m_Events;
    std::mutex m_Mutex;  // guards the state
    SimulatedState m_State;
};

#endif
