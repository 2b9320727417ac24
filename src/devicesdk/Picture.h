// SPDX-License-Identifier: MIT
// What a backend knows about modems, connection and USSD session, as values that are never changed once answered.
#ifndef ORBISDIAL_PICTURE_H
#define ORBISDIAL_PICTURE_H

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "vrks.h"

struct MultiModeStatus {
    unsigned char isMultiMode;
    unsigned int cardMode;

    auto tied() const { return std::tie(isMultiMode, cardMode); }
};

struct SystemMode {
    std::int32_t mode;
    std::int32_t subMode;

    auto tied() const { return std::tie(mode, subMode); }
};

struct DataServiceProfile {
    std::string user;
    std::string password;

    auto tied() const { return std::tie(user, password); }
};

// The members mean what those of VRKS_ModemInfo mean.
struct ModemInfo {
    int status = VRKS_DEV_STATUS_NO_MODEM;
    int card = VRKS_CARD_UNKNOWN;
    int lock = VRKS_LOCK_NONE;
    int attempts = -1;
    int unlockResult = VRKS_UNLOCK_NONE;
    int registration = VRKS_REGISTRATION_UNKNOWN;
    int generation = 0;
    int signal = -1;
    bool dialsAsCdma = false;
    bool hasUssd = false;
    std::string id;
    std::string port;
    std::string manufacturer;
    std::string model;
    std::string imei;
    std::string ownNumber;
    std::string cardOperator;
    std::string gid1;
    std::string operatorName;
    std::string operatorCode;
    std::string technology;
    std::string unlockWords;

    auto tied() const {
        return std::tie(status, card, lock, attempts, unlockResult, registration, generation, signal, dialsAsCdma,
                        hasUssd, id, port, manufacturer, model, imei, ownNumber, cardOperator, gid1, operatorName,
                        operatorCode, technology, unlockWords);
    }
};

// The members mean what those of VRKS_Connection mean; counters and IMSI are asked for apart.
struct Connection {
    int state = VRKS_CONNECTION_DOWN;
    int step = VRKS_STEP_NONE;
    int failure = VRKS_FAILURE_NONE;
    bool isOwn = false;
    bool endsWithProcess = false;
    std::int64_t since = 0;
    std::optional<std::chrono::steady_clock::time_point> upSince;
    std::string name;
    std::string usedBy;
    std::string words;
    std::string interfaceName;
    std::string address;
    std::string address6;
    std::vector<std::string> dns;
    std::string modem;  // that has it, as Picture::cards names it; empty: not known

    auto tied() const {
        return std::tie(state, step, failure, isOwn, endsWithProcess, since, upSince, name, usedBy, words,
                        interfaceName, address, address6, dns, modem);
    }
};

struct Traffic {
    std::uint64_t received = 0;
    std::uint64_t sent = 0;
};

// The members mean what those of VRKS_Ussd mean.
struct Ussd {
    int state = VRKS_USSD_IDLE;
    int failure = VRKS_USSD_FAILURE_NONE;
    std::string text;
    std::string words;

    auto tied() const { return std::tie(state, failure, text, words); }
};

template <class Record>
auto operator==(const Record& one, const Record& other) -> decltype(one.tied() == other.tied()) {
    return one.tied() == other.tied();
}

template <class Record>
auto operator!=(const Record& one, const Record& other) -> decltype(one.tied() != other.tied()) {
    return one.tied() != other.tied();
}

// Of the values that may be missing, a missing one makes its query fail.
struct Picture {
    // False while a daemon has not answered: then what asks for modems or the connection fails, too.
    bool areModemsKnown = true;
    bool isConnectionKnown = true;

    std::vector<ModemInfo> modems;  // in the order of their keys
    std::string modemInUse;         // its key; empty: none

    std::map<std::string, std::string> cards;  // IMSIs that can be read, by a name of the modem that the backend has

    // Of the modem in use.
    std::optional<int> devStatus;
    std::optional<std::string> customizeName;
    std::optional<int> productType;
    std::optional<std::string> imsi;
    std::optional<MultiModeStatus> multiModeStatus;
    std::optional<SystemMode> systemMode;
    std::optional<DataServiceProfile> dataServiceProfile;

    Connection connection;
    Ussd ussd;

    // Null when there is none with this key.
    const ModemInfo* modem(const std::string& id) const;
    // The one in use; one that is empty when there is none.
    const ModemInfo& modem() const;
    // The IMSI of the card that the connection goes through; empty unless it is up.
    std::string connectionImsi() const;
};

struct Events {
    std::vector<int> device;  // VRKS_EVENT_DEV_...
    std::vector<int> others;  // VRKS_EVENT_...
};

// What is to be told when one picture takes another's place.
Events eventsBetween(const Picture& before, const Picture& after);

#endif
