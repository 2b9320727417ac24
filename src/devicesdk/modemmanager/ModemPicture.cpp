// SPDX-License-Identifier: MIT
#include "ModemPicture.h"

#include <algorithm>

#include "../ModemChoice.h"

namespace {

constexpr unsigned Capabilities3gpp =
    MM_MODEM_CAPABILITY_GSM_UMTS | MM_MODEM_CAPABILITY_LTE | MM_MODEM_CAPABILITY_5GNR | MM_MODEM_CAPABILITY_TDS;

constexpr unsigned CardModeNone = 0;
constexpr unsigned CardModeWcdma = 1;
constexpr unsigned CardModeCdma = 2;

// System modes.
enum { ModeNone = VRKS_SYSTEM_MODE_NONE, ModeGsm, ModeCdma = VRKS_SYSTEM_MODE_CDMA, ModeUmts, ModeLte, ModeNr };

struct Technology {
    unsigned bit;
    const char* name;
    int generation;
    int mode;
};

// The better ones first; a sub-mode is a row's number from the end, counted from 1.
const Technology Technologies[] = {
    {MM_MODEM_ACCESS_TECHNOLOGY_5GNR, "5G", 5, ModeNr},
    {MM_MODEM_ACCESS_TECHNOLOGY_LTE, "LTE", 4, ModeLte},
    {MM_MODEM_ACCESS_TECHNOLOGY_LTE_CAT_M, "LTE-M", 4, ModeLte},
    {MM_MODEM_ACCESS_TECHNOLOGY_LTE_NB_IOT, "NB-IoT", 4, ModeLte},
    {MM_MODEM_ACCESS_TECHNOLOGY_HSPA_PLUS, "HSPA+", 3, ModeUmts},
    {MM_MODEM_ACCESS_TECHNOLOGY_HSPA, "HSPA", 3, ModeUmts},
    {MM_MODEM_ACCESS_TECHNOLOGY_HSUPA, "HSUPA", 3, ModeUmts},
    {MM_MODEM_ACCESS_TECHNOLOGY_HSDPA, "HSDPA", 3, ModeUmts},
    {MM_MODEM_ACCESS_TECHNOLOGY_UMTS, "UMTS", 3, ModeUmts},
    {MM_MODEM_ACCESS_TECHNOLOGY_EVDOB, "EV-DO Rev. B", 3, ModeCdma},
    {MM_MODEM_ACCESS_TECHNOLOGY_EVDOA, "EV-DO Rev. A", 3, ModeCdma},
    {MM_MODEM_ACCESS_TECHNOLOGY_EVDO0, "EV-DO", 3, ModeCdma},
    {MM_MODEM_ACCESS_TECHNOLOGY_1XRTT, "1xRTT", 2, ModeCdma},
    {MM_MODEM_ACCESS_TECHNOLOGY_EDGE, "EDGE", 2, ModeGsm},
    {MM_MODEM_ACCESS_TECHNOLOGY_GPRS, "GPRS", 2, ModeGsm},
    {MM_MODEM_ACCESS_TECHNOLOGY_GSM_COMPACT, "GSM", 2, ModeGsm},
    {MM_MODEM_ACCESS_TECHNOLOGY_GSM, "GSM", 2, ModeGsm},
};
// ModemManager can't tell eHRPD.
static_assert(std::size(Technologies) < VRKS_SYSTEM_SUBMODE_EHRPD_FIRST, "a sub-mode would be taken for eHRPD");

const Technology* technologyOf(const KnownModem& modem) {
    const auto place = std::find_if(std::begin(Technologies), std::end(Technologies),
                                    [&](const Technology& row) { return modem.accessTechnologies & row.bit; });
    return place == std::end(Technologies) ? nullptr : place;
}

bool isCdma(unsigned capabilities) { return capabilities & MM_MODEM_CAPABILITY_CDMA_EVDO; }

bool is3gpp(unsigned capabilities) { return capabilities & Capabilities3gpp; }

bool dialsAsCdma(const KnownModem& modem) {
    return isCdma(modem.currentCapabilities) && !is3gpp(modem.currentCapabilities);
}

// The lock of a card's second PIN closes single functions, never the modem.
int lockOf(const KnownModem& modem) {
    switch (modem.unlockRequired) {
        case MM_MODEM_LOCK_UNKNOWN:
            return modem.state == MM_MODEM_STATE_LOCKED ? VRKS_LOCK_OTHER : VRKS_LOCK_NONE;
        case MM_MODEM_LOCK_NONE:
        case MM_MODEM_LOCK_SIM_PIN2:
        case MM_MODEM_LOCK_SIM_PUK2:
            return VRKS_LOCK_NONE;
        case MM_MODEM_LOCK_SIM_PIN:
            return VRKS_LOCK_PIN;
        case MM_MODEM_LOCK_SIM_PUK:
            return VRKS_LOCK_PUK;
        default:
            return VRKS_LOCK_OTHER;
    }
}

int attemptsOf(const KnownModem& modem) {
    if (lockOf(modem) == VRKS_LOCK_NONE) return -1;
    const auto place = modem.unlockRetries.find(modem.unlockRequired);
    return place == modem.unlockRetries.end() ? -1 : static_cast<int>(place->second);
}

bool isCardMissing(const KnownModem& modem) {
    if (modem.failedReason == MM_MODEM_STATE_FAILED_REASON_SIM_MISSING ||
        modem.failedReason == MM_MODEM_STATE_FAILED_REASON_ESIM_WITHOUT_PROFILES)
        return true;
    return modem.state >= MM_MODEM_STATE_DISABLED && !modem.card && is3gpp(modem.currentCapabilities);
}

// A CDMA modem without a SIM object has its subscription within itself.
int cardOf(const KnownModem& modem) {
    if (isCardMissing(modem)) return VRKS_CARD_NONE;
    const int lock = lockOf(modem);
    const bool isPresent = modem.card || lock == VRKS_LOCK_PIN || lock == VRKS_LOCK_PUK;
    return isPresent ? VRKS_CARD_PRESENT : VRKS_CARD_UNKNOWN;
}

int statusOfCard(const KnownModem& modem) {
    if (!modem.card) return dialsAsCdma(modem) ? VRKS_DEV_STATUS_READY : VRKS_DEV_STATUS_FAILED;
    if (!modem.card->isRead) return VRKS_DEV_STATUS_STARTING;
    return modem.card->imsi.empty() ? VRKS_DEV_STATUS_FAILED : VRKS_DEV_STATUS_READY;
}

// Whatever the radio does, a modem with a readable card is ready: one that is switched off and on changes no list.
int statusOf(const KnownModem& modem) {
    if (modem.state == MM_MODEM_STATE_FAILED) return VRKS_DEV_STATUS_FAILED;
    if (modem.state == MM_MODEM_STATE_LOCKED) return VRKS_DEV_STATUS_LOCKED;
    return modem.state < MM_MODEM_STATE_DISABLED ? VRKS_DEV_STATUS_STARTING : statusOfCard(modem);
}

// Where the network gives no data service it counts as refusing: emergency calls only, restricted local services.
int registrationOf(MMModem3gppRegistrationState state) {
    switch (state) {
        case MM_MODEM_3GPP_REGISTRATION_STATE_IDLE:
            return VRKS_REGISTRATION_IDLE;
        case MM_MODEM_3GPP_REGISTRATION_STATE_SEARCHING:
            return VRKS_REGISTRATION_SEARCHING;
        case MM_MODEM_3GPP_REGISTRATION_STATE_HOME:
        case MM_MODEM_3GPP_REGISTRATION_STATE_HOME_SMS_ONLY:
        case MM_MODEM_3GPP_REGISTRATION_STATE_HOME_CSFB_NOT_PREFERRED:
            return VRKS_REGISTRATION_HOME;
        case MM_MODEM_3GPP_REGISTRATION_STATE_ROAMING:
        case MM_MODEM_3GPP_REGISTRATION_STATE_ROAMING_SMS_ONLY:
        case MM_MODEM_3GPP_REGISTRATION_STATE_ROAMING_CSFB_NOT_PREFERRED:
            return VRKS_REGISTRATION_ROAMING;
        case MM_MODEM_3GPP_REGISTRATION_STATE_DENIED:
        case MM_MODEM_3GPP_REGISTRATION_STATE_EMERGENCY_ONLY:
        case MM_MODEM_3GPP_REGISTRATION_STATE_ATTACHED_RLOS:
            return VRKS_REGISTRATION_DENIED;
        default:
            return VRKS_REGISTRATION_UNKNOWN;
    }
}

int registrationOf(MMModemCdmaRegistrationState state) {
    switch (state) {
        case MM_MODEM_CDMA_REGISTRATION_STATE_REGISTERED:
        case MM_MODEM_CDMA_REGISTRATION_STATE_HOME:
            return VRKS_REGISTRATION_HOME;
        case MM_MODEM_CDMA_REGISTRATION_STATE_ROAMING:
            return VRKS_REGISTRATION_ROAMING;
        default:
            return VRKS_REGISTRATION_UNKNOWN;
    }
}

bool isRegistered(int registration) {
    return registration == VRKS_REGISTRATION_HOME || registration == VRKS_REGISTRATION_ROAMING;
}

// The first of its networks on which it is registered; or else what is known of the search. A modem that is switched
// off may still tell where it was registered before.
int registrationOf(const KnownModem& modem) {
    if (modem.state < MM_MODEM_STATE_DISABLED) return VRKS_REGISTRATION_UNKNOWN;
    if (modem.state < MM_MODEM_STATE_ENABLED) return VRKS_REGISTRATION_IDLE;
    const int of3gpp = modem.registration3gpp ? registrationOf(*modem.registration3gpp) : VRKS_REGISTRATION_UNKNOWN;
    if (isRegistered(of3gpp)) return of3gpp;
    for (const auto& state : {modem.registrationEvdo, modem.registrationCdma1x})
        if (state && isRegistered(registrationOf(*state))) return registrationOf(*state);
    if (of3gpp != VRKS_REGISTRATION_UNKNOWN) return of3gpp;
    return modem.state == MM_MODEM_STATE_SEARCHING ? VRKS_REGISTRATION_SEARCHING : VRKS_REGISTRATION_UNKNOWN;
}

std::string operatorCodeOf(const KnownModem& modem) {
    if (!modem.operatorCode.empty()) return modem.operatorCode;
    return modem.sid ? std::to_string(modem.sid) : std::string();
}

// A modem that is switched off says 0.
int signalOf(const KnownModem& modem) {
    return modem.state < MM_MODEM_STATE_ENABLED ? -1 : static_cast<int>(std::min(modem.signalQuality, 100U));
}

ModemInfo infoOf(const KnownModem& modem, const ModemInfo* before) {
    ModemInfo info;
    info.status = statusOf(modem);
    info.card = cardOf(modem);
    info.lock = lockOf(modem);
    info.attempts = attemptsOf(modem);
    info.registration = registrationOf(modem);
    info.signal = signalOf(modem);
    info.dialsAsCdma = dialsAsCdma(modem);
    info.hasUssd = modem.hasUssd;
    info.id = modem.device;
    info.port = modem.primaryPort;
    info.manufacturer = modem.manufacturer;
    info.model = modem.model;
    info.imei = modem.equipmentIdentifier;
    info.ownNumber = modem.ownNumber;
    if (modem.card) info.cardOperator = modem.card->operatorName;
    if (modem.card) info.gid1 = modem.card->gid1;
    if (isRegistered(info.registration)) {
        const Technology* technology = technologyOf(modem);
        info.generation = technology ? technology->generation : 0;
        info.technology = technology ? technology->name : "";
        info.operatorName = modem.operatorName;
        info.operatorCode = operatorCodeOf(modem);
    }
    if (before) info.unlockResult = before->unlockResult;
    if (before) info.unlockWords = before->unlockWords;
    return info;
}

SystemMode systemModeOf(const KnownModem& modem) {
    const Technology* technology = isRegistered(registrationOf(modem)) ? technologyOf(modem) : nullptr;
    if (!technology) return {ModeNone, 0};
    return {technology->mode, static_cast<std::int32_t>(std::end(Technologies) - technology)};
}

// A modem that can do both at the moment is in the mode of its network, and without one in the last it was in.
unsigned cardModeOf(const KnownModem& modem, unsigned last) {
    const bool servesCdma = isCdma(modem.currentCapabilities);
    const bool serves3gpp = is3gpp(modem.currentCapabilities);
    if (servesCdma != serves3gpp) return servesCdma ? CardModeCdma : CardModeWcdma;
    const Technology* technology = technologyOf(modem);
    if (!technology) return last;
    return technology->mode == ModeCdma ? CardModeCdma : CardModeWcdma;
}

MultiModeStatus multiModeOf(const KnownModem& modem, unsigned lastMode) {
    if (!isCdma(modem.supportedCapabilities) || !is3gpp(modem.supportedCapabilities)) return {0, CardModeNone};
    return {1, cardModeOf(modem, lastMode)};
}

void describeModemInUse(Picture* picture, const KnownModem& modem, const Picture& before) {
    const bool isSame = before.modemInUse == modem.device && before.multiModeStatus;
    picture->devStatus = statusOf(modem);
    picture->customizeName = modem.carrierConfiguration;
    picture->productType = dialsAsCdma(modem) ? VRKS_PRODUCT_TYPE_CDMA : 0;
    picture->multiModeStatus = multiModeOf(modem, isSame ? before.multiModeStatus->cardMode : CardModeNone);
    picture->systemMode = systemModeOf(modem);
    if (modem.card && !modem.card->imsi.empty()) picture->imsi = modem.card->imsi;
    if (modem.profile) picture->dataServiceProfile = DataServiceProfile{modem.profile->user, modem.profile->password};
}

bool isSessionOpen(const Ussd& ussd) { return ussd.state == VRKS_USSD_SENT || ussd.state == VRKS_USSD_ASKS; }

// A session ends with its modem, or with who knows it.
Ussd ussdOf(const Picture& picture, const Picture& before) {
    const bool hasModem = picture.devStatus == VRKS_DEV_STATUS_READY && picture.modemInUse == before.modemInUse;
    if (hasModem || !isSessionOpen(before.ussd)) return before.ussd;
    Ussd ended;
    ended.state = VRKS_USSD_FAILED;
    ended.failure = picture.devStatus ? VRKS_USSD_FAILURE_MODEM_GONE : VRKS_USSD_FAILURE_NO_MODEM_SERVICE;
    return ended;
}

}  // namespace

Picture pictureOf(const Known& known, const std::string& wanted, const Picture& before) {
    Picture picture;
    for (const KnownModem& modem : known.modems) picture.modems.push_back(infoOf(modem, before.modem(modem.device)));
    std::sort(picture.modems.begin(), picture.modems.end(),
              [](const ModemInfo& one, const ModemInfo& other) { return one.id < other.id; });
    picture.modemInUse = chooseModem(picture.modems, wanted, before.modemInUse);
    if (known.hasDaemon) picture.devStatus = VRKS_DEV_STATUS_NO_MODEM;
    for (const KnownModem& modem : known.modems)
        if (modem.device == picture.modemInUse) describeModemInUse(&picture, modem, before);
    for (const KnownModem& modem : known.modems)
        if (modem.card && !modem.card->imsi.empty()) picture.cards[modem.path] = modem.card->imsi;
    picture.isConnectionKnown = before.isConnectionKnown;
    picture.connection = before.connection;
    picture.ussd = ussdOf(picture, before);
    return picture;
}
