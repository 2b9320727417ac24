// SPDX-License-Identifier: MIT
#include "SimulatedSettings.h"

#include <charconv>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "../Failures.h"
#include "vrks.h"

namespace {

constexpr char VariablePrefix[] = "ORBISDIAL_SIM_";
constexpr char SecondPrefix[] = "2_";

// What stands when the variable is not set; null: nothing.
template <class Owner>
struct TextSetting {
    const char* name;
    std::optional<std::string> Owner::*member;
    const char* preset;
};

template <class Owner>
struct NumberSetting {
    const char* name;
    std::optional<int> Owner::*member;
    const char* preset;
    std::optional<int> (*parse)(const char* text);
    std::string (*print)(int value);
};

constexpr int Least = std::numeric_limits<int>::min();
constexpr int Most = std::numeric_limits<int>::max();
constexpr int LongestMs = 600000;

template <int From, int To>
std::optional<int> number(const char* text) {
    int value = 0;
    const char* end = text + std::strlen(text);
    const auto [stop, error] = std::from_chars(text, end, value);
    if (error != std::errc() || stop != end || value < From || value > To) return std::nullopt;
    return value;
}

struct Word {
    const char* text;
    int value;
};

template <const auto& Words>
std::optional<int> word(const char* text) {
    for (const Word& word : Words)
        if (std::strcmp(word.text, text) == 0) return word.value;
    return std::nullopt;
}

std::string decimal(int value) { return std::to_string(value); }

// One that has no word has a number.
template <const auto& Words>
std::string wordFor(int value) {
    for (const Word& word : Words)
        if (word.value == value) return word.text;
    return decimal(value);
}

constexpr Word Locks[] = {
    {"none", VRKS_LOCK_NONE}, {"pin", VRKS_LOCK_PIN}, {"puk", VRKS_LOCK_PUK}, {"other", VRKS_LOCK_OTHER}};

constexpr Word Registrations[] = {{"unknown", VRKS_REGISTRATION_UNKNOWN},     {"idle", VRKS_REGISTRATION_IDLE},
                                  {"searching", VRKS_REGISTRATION_SEARCHING}, {"home", VRKS_REGISTRATION_HOME},
                                  {"roaming", VRKS_REGISTRATION_ROAMING},     {"denied", VRKS_REGISTRATION_DENIED}};

constexpr Word Unlocks[] = {{"checks", UnlockChecks}, {"not-allowed", UnlockNotAllowed}, {"other", UnlockOther}};

constexpr Word Ussds[] = {{"answers", UssdAnswers},
                          {"asks", UssdAsks},
                          {"not-supported", VRKS_USSD_FAILURE_NOT_SUPPORTED},
                          {"network", VRKS_USSD_FAILURE_NETWORK},
                          {"timeout", VRKS_USSD_FAILURE_TIMEOUT},
                          {"not-allowed", VRKS_USSD_FAILURE_NOT_ALLOWED},
                          {"other", VRKS_USSD_FAILURE_OTHER}};

// Besides the failures' names.
constexpr Word Outcomes[] = {{"answers", VRKS_FAILURE_NONE},
                             {"authentication-fails", VRKS_FAILURE_AUTHENTICATION},
                             {"no-signal", VRKS_FAILURE_NOT_REGISTERED}};

std::optional<int> outcome(const char* text) {
    const std::optional<int> own = word<Outcomes>(text);
    return own ? own : failureNamed(text);
}

std::string outcomeName(int value) { return value == VRKS_FAILURE_NONE ? Outcomes[0].text : failureName(value); }

using Modem = SimulatedModem;
using Network = SimulatedNetwork;

const TextSetting<Modem> ModemTexts[] = {
    {"IMSI", &Modem::imsi, "310260123456789"},
    {"CUSTOMIZE_NAME", &Modem::customizeName, ""},
    {"DS_USER", &Modem::user, nullptr},
    {"DS_PASSWORD", &Modem::password, nullptr},
    {"PORT", &Modem::port, "sim0"},
    {"MANUFACTURER", &Modem::manufacturer, "OrbisDial"},
    {"MODEL", &Modem::model, "Simulated modem"},
    {"IMEI", &Modem::imei, "004999010640000"},
    {"OWN_NUMBER", &Modem::ownNumber, nullptr},
    {"CARD_OPERATOR", &Modem::cardOperator, nullptr},
    {"GID1", &Modem::gid1, nullptr},
    {"OPERATOR_NAME", &Modem::operatorName, "Simulated network"},
    {"OPERATOR_CODE", &Modem::operatorCode, "00101"},  // of a test network, 3GPP TS 36.508
    {"TECHNOLOGY", &Modem::technology, "LTE"},
    {"PIN", &Modem::pin, "1234"},
    {"PUK", &Modem::puk, "12345678"},
};

const NumberSetting<Modem> ModemNumbers[] = {
    {"PRESENT", &Modem::present, "1", number<0, 1>, decimal},
    {"STATUS", &Modem::status, "3", number<Least, Most>, decimal},
    {"PRODUCT_TYPE", &Modem::productType, "0", number<Least, Most>, decimal},
    {"MULTI_MODE", &Modem::multiMode, "0", number<0, 255>, decimal},
    {"CARD_MODE", &Modem::cardMode, "0", number<0, Most>, decimal},
    {"SYS_MODE", &Modem::systemMode, "0", number<Least, Most>, decimal},
    {"SYS_SUBMODE", &Modem::systemSubMode, "0", number<Least, Most>, decimal},
    {"LOCK", &Modem::lock, "none", word<Locks>, wordFor<Locks>},
    {"PIN_ATTEMPTS", &Modem::pinAttempts, "3", number<1, 3>, decimal},
    {"PUK_ATTEMPTS", &Modem::pukAttempts, "10", number<1, 10>, decimal},
    {"REGISTRATION", &Modem::registration, "home", word<Registrations>, wordFor<Registrations>},
    {"GENERATION", &Modem::generation, "4", number<0, 5>, decimal},
    {"SIGNAL", &Modem::signal, "70", number<-1, 100>, decimal},
    {"HAS_USSD", &Modem::hasUssd, "1", number<0, 1>, decimal},
};

const TextSetting<Network> NetworkTexts[] = {
    {"DIAL_USER", &Network::acceptedUser, nullptr},
    {"DIAL_PASSWORD", &Network::acceptedPassword, nullptr},
    {"DIAL_APN", &Network::acceptedApn, nullptr},
    {"DIAL_WORDS", &Network::words, nullptr},
    {"USED_BY", &Network::usedBy, nullptr},
    {"USSD_TEXT", &Network::ussdText, "Your balance: 12.34"},
    {"USSD_QUESTION", &Network::ussdQuestion, "1 Balance\n2 Tariff"},
};

const NumberSetting<Network> NetworkNumbers[] = {
    {"UNLOCK", &Network::unlock, "checks", word<Unlocks>, wordFor<Unlocks>},
    {"UNLOCK_MS", &Network::unlockMs, "100", number<0, LongestMs>, decimal},
    {"DIAL", &Network::dial, "answers", outcome, outcomeName},
    {"DIAL_MS", &Network::dialMs, "1500", number<0, LongestMs>, decimal},
    {"DIAL_DROP_MS", &Network::dropMs, "0", number<0, LongestMs>, decimal},
    {"HANG_UP_MS", &Network::hangUpMs, "300", number<0, LongestMs>, decimal},
    {"REFUSE_HANG_UP", &Network::refusesHangUp, "0", number<0, 2>, decimal},
    {"RATE", &Network::rate, "100000", number<0, Most>, decimal},
    {"USSD", &Network::ussd, "answers", word<Ussds>, wordFor<Ussds>},
    {"USSD_MS", &Network::ussdMs, "300", number<0, LongestMs>, decimal},
    {"USSD_PATIENCE_MS", &Network::ussdPatienceMs, "0", number<0, LongestMs>, decimal},
};

// Where the second modem's presets differ.
constexpr struct {
    const char* name;
    const char* preset;
} SecondPresets[] = {{"PRESENT", "0"}, {"IMSI", "262011234567890"}, {"PORT", "sim1"}, {"IMEI", "004999010640001"}};

const char* presetOfSecond(const char* name) {
    for (const auto& row : SecondPresets)
        if (std::strcmp(row.name, name) == 0) return row.preset;
    return nullptr;
}

template <class Owner>
bool assign(Owner* owner, const TextSetting<Owner>& setting, const char* value) {
    owner->*setting.member = value ? std::optional<std::string>(value) : std::nullopt;
    return true;
}

template <class Owner>
bool assign(Owner* owner, const NumberSetting<Owner>& setting, const char* value) {
    const std::optional<int> number = value ? setting.parse(value) : std::nullopt;
    if (value && !number) return false;
    owner->*setting.member = number;
    return true;
}

template <class Owner, class Setting, std::size_t Count>
std::optional<bool> assignNamed(Owner* owner, const Setting (&settings)[Count], const char* name, const char* value) {
    for (const Setting& setting : settings)
        if (std::strcmp(setting.name, name) == 0) return assign(owner, setting, value);
    return std::nullopt;
}

template <class Owner, class Setting, std::size_t Count>
void readEnvironment(Owner* owner, const Setting (&settings)[Count], bool isSecond = false) {
    for (const Setting& setting : settings) {
        const std::string name = std::string(VariablePrefix) + (isSecond ? SecondPrefix : "") + setting.name;
        const char* value = std::getenv(name.c_str());
        const char* preset = isSecond ? presetOfSecond(setting.name) : nullptr;
        if (!value) value = preset ? preset : setting.preset;
        assign(owner, setting, value);
    }
}

// An empty IMSI variable means that there is no card; one of user name and password alone has the other empty.
void applyCardRules(Modem* modem) {
    if (modem->imsi && modem->imsi->empty()) modem->imsi.reset();
    if (modem->user && !modem->password) modem->password = "";
    if (modem->password && !modem->user) modem->user = "";
}

template <class Owner>
std::optional<std::string> textIn(const Owner& owner, const TextSetting<Owner>& setting) {
    return owner.*setting.member;
}

template <class Owner>
std::optional<std::string> textIn(const Owner& owner, const NumberSetting<Owner>& setting) {
    const std::optional<int> number = owner.*setting.member;
    return number ? std::optional<std::string>(setting.print(*number)) : std::nullopt;
}

template <class Owner, class Setting, std::size_t Count>
void list(std::vector<NamedValue>* values, const Owner& owner, const Setting (&settings)[Count],
          const char* prefix = "") {
    for (const Setting& setting : settings)
        values->push_back({std::string(prefix) + setting.name, textIn(owner, setting)});
}

}  // namespace

SimulatedSettings SimulatedSettings::fromEnvironment() {
    SimulatedSettings settings;
    for (Modem& modem : settings.modems) {
        const bool isSecond = &modem != &settings.modems.front();
        readEnvironment(&modem, ModemTexts, isSecond);
        readEnvironment(&modem, ModemNumbers, isSecond);
        applyCardRules(&modem);
    }
    readEnvironment(&settings.network, NetworkTexts);
    readEnvironment(&settings.network, NetworkNumbers);
    return settings;
}

bool SimulatedSettings::set(const std::string& name, const char* value) {
    const bool isSecond = name.compare(0, std::strlen(SecondPrefix), SecondPrefix) == 0;
    const char* own = name.c_str() + (isSecond ? std::strlen(SecondPrefix) : 0);
    Modem* modem = &modems[isSecond];
    if (const auto done = assignNamed(modem, ModemTexts, own, value)) return *done;
    if (const auto done = assignNamed(modem, ModemNumbers, own, value)) return *done;
    if (isSecond) return false;
    if (const auto done = assignNamed(&network, NetworkTexts, own, value)) return *done;
    return assignNamed(&network, NetworkNumbers, own, value).value_or(false);
}

std::vector<NamedValue> SimulatedSettings::values() const {
    std::vector<NamedValue> values;
    list(&values, network, NetworkTexts);
    list(&values, network, NetworkNumbers);
    for (const Modem& modem : modems) {
        const char* prefix = &modem == &modems.front() ? "" : SecondPrefix;
        list(&values, modem, ModemTexts, prefix);
        list(&values, modem, ModemNumbers, prefix);
    }
    return values;
}
