// SPDX-License-Identifier: MIT
// What ModemManager says, as plain values.
#ifndef ORBISDIAL_KNOWN_H
#define ORBISDIAL_KNOWN_H

#include <ModemManager.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

struct KnownCard {
    bool isRead = false;  // false: its values were asked for and have not come
    std::string imsi;
    std::string operatorName;
    std::string gid1;  // hexadecimal
};

struct KnownCredentials {
    std::string user;
    std::string password;
};

// The members are named as the properties of ModemManager's interfaces are.
struct KnownModem {
    std::string path;  // of the D-Bus object
    std::string device;
    std::string primaryPort;
    std::string manufacturer;
    std::string model;
    std::string equipmentIdentifier;
    std::string ownNumber;
    std::string carrierConfiguration;
    MMModemState state = MM_MODEM_STATE_UNKNOWN;
    MMModemStateFailedReason failedReason = MM_MODEM_STATE_FAILED_REASON_NONE;
    MMModemLock unlockRequired = MM_MODEM_LOCK_UNKNOWN;
    std::map<MMModemLock, unsigned> unlockRetries;
    unsigned supportedCapabilities = 0;  // all of its combinations together
    unsigned currentCapabilities = 0;
    unsigned accessTechnologies = 0;
    unsigned signalQuality = 0;
    std::optional<KnownCard> card;  // nothing: it has no SIM object

    std::optional<MMModem3gppRegistrationState> registration3gpp;
    std::string operatorName;
    std::string operatorCode;

    std::optional<MMModemCdmaRegistrationState> registrationCdma1x;
    std::optional<MMModemCdmaRegistrationState> registrationEvdo;
    unsigned sid = 0;  // 0: unknown

    bool hasUssd = false;
    std::optional<KnownCredentials> profile;  // of the first data profile that has a user name
};

struct Known {
    bool isComplete = false;  // nothing is on its way that the first picture needs
    bool hasDaemon = false;
    std::vector<KnownModem> modems;
};

#endif
