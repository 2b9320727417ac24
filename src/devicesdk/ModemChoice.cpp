// SPDX-License-Identifier: MIT
#include "ModemChoice.h"

#include <algorithm>
#include <cstdlib>

#include "Picture.h"

namespace {

template <class Condition>
const ModemInfo* find(const std::vector<ModemInfo>& modems, Condition condition) {
    const auto place = std::find_if(modems.begin(), modems.end(), condition);
    return place == modems.end() ? nullptr : &*place;
}

std::string keyOf(const ModemInfo* modem) { return modem ? modem->id : std::string(); }

bool isReady(const ModemInfo& modem) { return modem.status == VRKS_DEV_STATUS_READY; }

const ModemInfo* automatic(const std::vector<ModemInfo>& modems, const std::string& present) {
    const ModemInfo* now = find(modems, [&](const ModemInfo& modem) { return modem.id == present; });
    if (now && isReady(*now)) return now;
    if (const ModemInfo* ready = find(modems, isReady)) return ready;
    if (now) return now;
    return modems.empty() ? nullptr : &modems.front();
}

}  // namespace

std::string chooseModem(const std::vector<ModemInfo>& modems, const std::string& wanted, const std::string& present) {
    if (!wanted.empty()) return keyOf(find(modems, [&](const ModemInfo& modem) { return modem.id == wanted; }));
    const char* named = std::getenv("ORBISDIAL_MODEM");
    if (!named || !*named) return keyOf(automatic(modems, present));
    return keyOf(find(modems, [&](const ModemInfo& modem) {
        return modem.id == named || modem.imei == named || modem.port == named;
    }));
}
