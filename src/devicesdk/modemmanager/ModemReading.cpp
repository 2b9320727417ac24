// SPDX-License-Identifier: MIT
#include "ModemReading.h"

#include "Ref.h"

namespace {

std::string hexadecimal(const guint8* bytes, std::size_t count) {
    static const char digits[] = "0123456789ABCDEF";
    std::string text;
    for (std::size_t i = 0; bytes && i < count; ++i) {
        text += digits[bytes[i] >> 4];
        text += digits[bytes[i] & 15];
    }
    return text;
}

KnownCard readCard(MMSim* card) {
    KnownCard known;
    if (!card) return known;
    known.isRead = true;
    known.imsi = textOf(mm_sim_get_imsi(card));
    known.operatorName = textOf(mm_sim_get_operator_name(card));
    gsize length = 0;
    const guint8* gid1 = mm_sim_get_gid1(card, &length);
    known.gid1 = hexadecimal(gid1, length);
    return known;
}

unsigned supportedCapabilitiesOf(MMModem* modem) {
    MMModemCapability* combinations = nullptr;
    guint count = 0;
    if (!mm_modem_get_supported_capabilities(modem, &combinations, &count)) return 0;
    const std::unique_ptr<MMModemCapability, Free> owner(combinations);
    unsigned all = 0;
    for (guint i = 0; i < count; ++i) all |= combinations[i];
    return all;
}

void addRetries(MMModemLock lock, guint count, gpointer retries) {
    if (count != MM_UNLOCK_RETRIES_UNKNOWN) (*static_cast<std::map<MMModemLock, unsigned>*>(retries))[lock] = count;
}

void readLock(KnownModem* known, MMModem* modem) {
    known->unlockRequired = mm_modem_get_unlock_required(modem);
    const Ref<MMUnlockRetries> retries(mm_modem_get_unlock_retries(modem));
    if (retries) mm_unlock_retries_foreach(retries.get(), addRetries, &known->unlockRetries);
}

void readBase(KnownModem* known, MMModem* modem) {
    known->device = textOf(mm_modem_get_device(modem));
    known->primaryPort = textOf(mm_modem_get_primary_port(modem));
    known->manufacturer = textOf(mm_modem_get_manufacturer(modem));
    known->model = textOf(mm_modem_get_model(modem));
    known->equipmentIdentifier = textOf(mm_modem_get_equipment_identifier(modem));
    const gchar* const* numbers = mm_modem_get_own_numbers(modem);
    known->ownNumber = textOf(numbers ? numbers[0] : nullptr);
    known->carrierConfiguration = textOf(mm_modem_get_carrier_configuration(modem));
    known->state = mm_modem_get_state(modem);
    known->failedReason = mm_modem_get_state_failed_reason(modem);
    known->supportedCapabilities = supportedCapabilitiesOf(modem);
    known->currentCapabilities = mm_modem_get_current_capabilities(modem);
    known->accessTechnologies = mm_modem_get_access_technologies(modem);
    known->signalQuality = mm_modem_get_signal_quality(modem, nullptr);
}

void read3gpp(KnownModem* known, MMModem3gpp* modem) {
    known->registration3gpp = mm_modem_3gpp_get_registration_state(modem);
    known->operatorName = textOf(mm_modem_3gpp_get_operator_name(modem));
    known->operatorCode = textOf(mm_modem_3gpp_get_operator_code(modem));
}

void readCdma(KnownModem* known, MMModemCdma* modem) {
    known->registrationCdma1x = mm_modem_cdma_get_cdma1x_registration_state(modem);
    known->registrationEvdo = mm_modem_cdma_get_evdo_registration_state(modem);
    const guint sid = mm_modem_cdma_get_sid(modem);
    known->sid = sid == MM_MODEM_CDMA_SID_UNKNOWN ? 0 : sid;
}

}  // namespace

std::string cardPathOf(MMModem* modem) {
    const std::string path = textOf(mm_modem_get_sim_path(modem));
    return path == "/" ? std::string() : path;
}

KnownModem readModem(MMObject* object, MMSim* card) {
    KnownModem known;
    MMModem* modem = mm_object_peek_modem(object);
    known.path = textOf(mm_object_get_path(object));
    readBase(&known, modem);
    readLock(&known, modem);
    if (!cardPathOf(modem).empty()) known.card = readCard(card);
    if (MMModem3gpp* part = mm_object_peek_modem_3gpp(object)) read3gpp(&known, part);
    if (MMModemCdma* part = mm_object_peek_modem_cdma(object)) readCdma(&known, part);
    known.hasUssd = mm_object_peek_modem_3gpp_ussd(object) != nullptr;
    return known;
}
