// SPDX-License-Identifier: MIT
#include "ConnectionFacts.h"

#include <QVariant>

#include "HostSettings.h"
#include "INetConnectSetting.h"
#include "Plugins.h"

namespace {

void askModem(ConnectionFacts* facts) {
    int status = 0;
    facts->isModemKnown = VRKS_DevSrv_GetDevStatus(&status) == 0;
    facts->modem.size = sizeof facts->modem;
    VRKS_DevSrv_GetModemInfo(&facts->modem);
    char imsi[VRKS_IMSI_SIZE] = "";
    if (VRKS_DevSrv_GetImsiInfo(imsi) == 0) facts->imsi = QString::fromLatin1(imsi);
    facts->connection = DataConnection::current();
}

// What the dialler's object tells beside its interface.
const struct {
    const char* property;
    QString ConnectionFacts::*member;
} DialerTexts[] = {{ORBISDIAL_FAILURE_DETAILS, &ConnectionFacts::failureDetails},
                   {ORBISDIAL_MODEM_USED_BY, &ConnectionFacts::usedBy},
                   {ORBISDIAL_DIAL_STEP, &ConnectionFacts::step},
                   {ORBISDIAL_CONNECTION_NOTES, &ConnectionFacts::notes},
                   {ORBISDIAL_AUTOMATIC_HOLD, &ConnectionFacts::automaticHold},
                   {ORBISDIAL_USAGE_WARNING, &ConnectionFacts::usageWarning}};

void askDialer(ConnectionFacts* facts) {
    IDialupUIService* const dialer = Plugins::dialer();
    facts->hasDialer = dialer != nullptr;
    if (!dialer) return;
    facts->state = dialer->GetConnectionState();
    facts->failure = dialer->GetLastFailure();
    for (const auto& text : DialerTexts)
        facts->*text.member = Plugins::dialerObject()->property(text.property).toString();
    // A dialler tells the name of what is up; the device that of what is on its way.
    if (!dialer->GetConnectedProfileName(&facts->profile)) facts->profile = facts->connection.name;
}

// The first start with a card that no preset matches: what is offered for any card may do, but who knows.
bool isFirstStart(const ConnectionFacts& facts) {
    const bool isCardUnknown = !facts.imsi.isEmpty() && facts.matchedPrefix && facts.matchedPrefix->isEmpty();
    IPresetLibrary* const presets = Plugins::presets();
    if (!isCardUnknown || !presets || presets->HasOwnProfiles()) return false;
    return facts.defaultProfile.isEmpty() || !HostSettings::isOn(HostSettings::HasConnected);
}

void askProfiles(ConnectionFacts* facts) {
    QObject* const object = Plugins::profilesObject();
    if (!object) return;
    const QVariant prefix = object->property(ORBISDIAL_MATCHED_IMSI_PREFIX);
    if (prefix.isValid()) facts->matchedPrefix = prefix.toString();
    facts->proposedPreset = object->property(ORBISDIAL_PROPOSED_DEFAULT).toString();
    facts->proposedOperator = object->property(ORBISDIAL_PROPOSED_OPERATOR).toString();
    facts->storageProblem = object->property(ORBISDIAL_LAST_STORAGE_PROBLEM).toString();
    // The answer would take long just now; the property's change has everything asked again.
    facts->areProfilesAwaited = object->property(ORBISDIAL_PROFILES_AWAITED).toBool();
    if (facts->areProfilesAwaited) return;
    if (INetConnectSetting* const profiles = Plugins::profiles())
        profiles->GetDefaultDialUpProfileName(&facts->defaultProfile);
    facts->wantsOperator = isFirstStart(*facts);
}

}  // namespace

ConnectionFacts ConnectionFacts::starting() {
    ConnectionFacts facts;
    facts.isStarting = facts.areProfilesAwaited = true;
    return facts;
}

ConnectionFacts ConnectionFacts::now() {
    ConnectionFacts facts;
    askModem(&facts);
    askDialer(&facts);
    askProfiles(&facts);
    return facts;
}
