// SPDX-License-Identifier: MIT
#include "Picture.h"

#include <algorithm>

namespace {

bool isReady(const Picture& picture) { return picture.devStatus == VRKS_DEV_STATUS_READY; }

// What the profiles on offer depend on. The system mode is none of it: a handover must reload nothing.
auto cardOf(const Picture& picture) {
    return std::tie(picture.modemInUse, picture.imsi, picture.productType, picture.multiModeStatus,
                    picture.customizeName);
}

std::vector<std::string> keysOf(const Picture& picture) {
    std::vector<std::string> keys;
    for (const ModemInfo& modem : picture.modems) keys.push_back(modem.id);
    return keys;
}

bool isModemChanged(const Picture& before, const Picture& after) {
    return before.modems != after.modems || before.modemInUse != after.modemInUse ||
           before.devStatus != after.devStatus;
}

// As it is answered; that it is known now is told, too.
Connection connectionIn(const Picture& picture) {
    return picture.isConnectionKnown ? picture.connection : Connection();
}

bool isConnectionChanged(const Picture& before, const Picture& after) {
    return connectionIn(before) != connectionIn(after) || before.connectionImsi() != after.connectionImsi() ||
           (!before.isConnectionKnown && after.isConnectionKnown);
}

bool isUnlockResult(const Picture& before, const Picture& after) {
    const int result = after.modem().unlockResult;
    return result > VRKS_UNLOCK_PENDING && before.modem().unlockResult == VRKS_UNLOCK_PENDING;
}

bool isUssdResult(const Picture& before, const Picture& after) {
    return before.ussd != after.ussd && after.ussd.state > VRKS_USSD_SENT;
}

}  // namespace

const ModemInfo* Picture::modem(const std::string& id) const {
    const auto place =
        std::find_if(modems.begin(), modems.end(), [&](const ModemInfo& modem) { return modem.id == id; });
    return place == modems.end() ? nullptr : &*place;
}

const ModemInfo& Picture::modem() const {
    static const ModemInfo none;
    const ModemInfo* inUse = modem(modemInUse);
    return inUse ? *inUse : none;
}

std::string Picture::connectionImsi() const {
    const auto card = connection.state == VRKS_CONNECTION_UP ? cards.find(connection.modem) : cards.end();
    return card == cards.end() ? std::string() : card->second;
}

Events eventsBetween(const Picture& before, const Picture& after) {
    Events events;
    if (!isReady(before) && isReady(after)) events.device.push_back(VRKS_EVENT_DEV_DEVICE_INIT_FINISH);
    if (isReady(before) && (!isReady(after) || cardOf(before) != cardOf(after)))
        events.device.push_back(VRKS_EVENT_DEV_CARD_CHANGED);

    if (keysOf(before) != keysOf(after)) events.others.push_back(VRKS_EVENT_MODEM_LIST_CHANGED);
    if (isModemChanged(before, after)) events.others.push_back(VRKS_EVENT_MODEM_CHANGED);
    if (before.systemMode != after.systemMode) events.others.push_back(VRKS_EVENT_SYSTEM_MODE_CHANGED);
    if (isUnlockResult(before, after)) events.others.push_back(VRKS_EVENT_UNLOCK_RESULT);
    if (isConnectionChanged(before, after)) events.others.push_back(VRKS_EVENT_CONNECTION_CHANGED);
    if (isUssdResult(before, after)) events.others.push_back(VRKS_EVENT_USSD_RESULT);
    return events;
}
