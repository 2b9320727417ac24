#include "SimulatedBackend.h"

#include <charconv>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace {

constexpr char VariablePrefix[] = "ORBISDIAL_SIM_";

// What stands when the variable is not set; null: the query fails.
struct TextSetting {
    const char* name;
    std::optional<std::string> SimulatedState::*member;
    const char* preset;
};

struct NumberSetting {
    const char* name;
    std::optional<int> SimulatedState::*member;
    const char* preset;
    int least;
    int most;
};

constexpr int Least = std::numeric_limits<int>::min();
constexpr int Most = std::numeric_limits<int>::max();

const TextSetting Texts[] = {
    {"IMSI", &SimulatedState::imsi, "310260123456789"},
    {"CUSTOMIZE_NAME", &SimulatedState::customizeName, ""},
    {"DS_USER", &SimulatedState::user, nullptr},
    {"DS_PASSWORD", &SimulatedState::password, nullptr},
};

const NumberSetting Numbers[] = {
    {"STATUS", &SimulatedState::status, "3", Least, Most},
    {"PRODUCT_TYPE", &SimulatedState::productType, "0", Least, Most},
    {"MULTI_MODE", &SimulatedState::multiMode, "0", 0, 255},
    {"CARD_MODE", &SimulatedState::cardMode, "0", 0, Most},
    {"SYS_MODE", &SimulatedState::systemMode, "0", Least, Most},
    {"SYS_SUBMODE", &SimulatedState::systemSubMode, "0", Least, Most},
};

template <class Setting, std::size_t Count>
const Setting* find(const Setting (&settings)[Count], const char* name) {
    for (const Setting& setting : settings)
        if (std::strcmp(setting.name, name) == 0) return &setting;
    return nullptr;
}

std::optional<int> parse(const NumberSetting& setting, const char* text) {
    int number = 0;
    const char* end = text + std::strlen(text);
    const auto [stop, error] = std::from_chars(text, end, number);
    if (error != std::errc() || stop != end || number < setting.least || number > setting.most) return std::nullopt;
    return number;
}

template <class Setting>
const char* fromEnvironment(const Setting& setting) {
    const char* value = std::getenv((std::string(VariablePrefix) + setting.name).c_str());
    return value ? value : setting.preset;
}

// An empty IMSI variable means that there is no card; one of user name and password alone has the other empty.
void applyCardRules(SimulatedState& state) {
    if (state.imsi && state.imsi->empty()) state.imsi.reset();
    if (state.user && !state.password) state.password = "";
    if (state.password && !state.user) state.user = "";
}

SimulatedState environmentState() {
    SimulatedState state;
    for (const TextSetting& setting : Texts)
        if (const char* value = fromEnvironment(setting)) state.*setting.member = value;
    for (const NumberSetting& setting : Numbers) state.*setting.member = parse(setting, fromEnvironment(setting));
    applyCardRules(state);
    return state;
}

}  // namespace

SimulatedBackend::SimulatedBackend() : m_State(environmentState()) {}

bool SimulatedBackend::set(const char* name, const char* value) {
    const std::lock_guard lock(m_Mutex);
    if (const TextSetting* setting = find(Texts, name)) {
        m_State.*setting->member = value ? std::optional<std::string>(value) : std::nullopt;
        return true;
    }
    const NumberSetting* setting = find(Numbers, name);
    if (!setting) return false;
    const std::optional<int> number = value ? parse(*setting, value) : std::nullopt;
    if (value && !number) return false;
    m_State.*setting->member = number;
    return true;
}

void SimulatedBackend::reset() {
    const SimulatedState fresh = environmentState();
    const std::lock_guard lock(m_Mutex);
    m_State = fresh;
}

SimulatedState SimulatedBackend::state() {
    const std::lock_guard lock(m_Mutex);
    return m_State;
}

std::optional<int> SimulatedBackend::devStatus() { return state().status; }

std::optional<std::string> SimulatedBackend::customizeName() { return state().customizeName; }

std::optional<int> SimulatedBackend::productType() { return state().productType; }

std::optional<std::string> SimulatedBackend::imsi() { return state().imsi; }

std::optional<MultiModeStatus> SimulatedBackend::multiModeStatus() {
    const SimulatedState now = state();
    if (!now.multiMode || !now.cardMode) return std::nullopt;
    return MultiModeStatus{static_cast<unsigned char>(*now.multiMode), static_cast<unsigned int>(*now.cardMode)};
}

std::optional<SystemMode> SimulatedBackend::systemMode() {
    const SimulatedState now = state();
    if (!now.systemMode || !now.systemSubMode) return std::nullopt;
    return SystemMode{*now.systemMode, *now.systemSubMode};
}

std::optional<DataServiceProfile> SimulatedBackend::dataServiceProfile() {
    const SimulatedState now = state();
    if (!now.user || !now.password) return std::nullopt;
    return DataServiceProfile{*now.user, *now.password};
}
