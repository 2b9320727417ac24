// SPDX-License-Identifier: MIT
// What the environment and vrks_simulated.h make of the simulated modems and their network.
#ifndef ORBISDIAL_SIMULATEDSETTINGS_H
#define ORBISDIAL_SIMULATEDSETTINGS_H

#include <array>
#include <optional>
#include <string>
#include <vector>

// Nothing means that a query fails, or for what came later that the value is empty or unknown.
struct SimulatedModem {
    std::optional<std::string> imsi;
    std::optional<std::string> customizeName;
    std::optional<std::string> user;
    std::optional<std::string> password;
    std::optional<std::string> port;
    std::optional<std::string> manufacturer;
    std::optional<std::string> model;
    std::optional<std::string> imei;
    std::optional<std::string> ownNumber;
    std::optional<std::string> cardOperator;
    std::optional<std::string> gid1;
    std::optional<std::string> operatorName;
    std::optional<std::string> operatorCode;
    std::optional<std::string> technology;
    std::optional<std::string> pin;
    std::optional<std::string> puk;
    std::optional<int> present;
    std::optional<int> status;
    std::optional<int> productType;
    std::optional<int> multiMode;
    std::optional<int> cardMode;
    std::optional<int> systemMode;
    std::optional<int> systemSubMode;
    std::optional<int> lock;
    std::optional<int> pinAttempts;
    std::optional<int> pukAttempts;
    std::optional<int> registration;
    std::optional<int> generation;
    std::optional<int> signal;
    std::optional<int> hasUssd;
};

// How unlocking, dialling and USSD go.
struct SimulatedNetwork {
    std::optional<std::string> acceptedUser;  // nothing: any
    std::optional<std::string> acceptedPassword;
    std::optional<std::string> acceptedApn;
    std::optional<std::string> words;
    std::optional<std::string> usedBy;
    std::optional<std::string> ussdText;
    std::optional<std::string> ussdQuestion;
    std::optional<int> unlock;
    std::optional<int> unlockMs;
    std::optional<int> dial;
    std::optional<int> dialMs;
    std::optional<int> dropMs;
    std::optional<int> hangUpMs;
    std::optional<int> refusesHangUp;
    std::optional<int> rate;
    std::optional<int> ussd;
    std::optional<int> ussdMs;
    std::optional<int> ussdPatienceMs;  // 0: no end
};

enum { UnlockChecks, UnlockNotAllowed, UnlockOther };  // SimulatedNetwork::unlock

// SimulatedNetwork::ussd; the failures are VRKS_USSD_FAILURE_...
enum { UssdAnswers = 0, UssdAsks = -1 };

struct NamedValue {
    std::string name;
    std::optional<std::string> value;  // as set() takes it
};

struct SimulatedSettings {
    std::array<SimulatedModem, 2> modems;
    SimulatedNetwork network;

    // What the variables ORBISDIAL_SIM_... say.
    static SimulatedSettings fromEnvironment();

    // One value by its name without the prefix; null takes it away. False, and nothing changes, for an unknown name or
    // a value that the setting can't hold.
    bool set(const std::string& name, const char* value);

    // All of them, always in the same order.
    std::vector<NamedValue> values() const;
};

#endif
