#include "DialupPlugin.h"

#include <vrks_simulated.h>

#include "CommonUtils.h"
#include "CredentialsPrompt.h"
#include "DialupText.h"
#include "INetConnectSetting.h"
#include "INotifyService.h"
#include "Startup.h"

namespace {

constexpr int DefaultDelayMs = 1500;

struct Outcome {
    const char* name;
    const char* failure;  // string ID; null for a success
};

constexpr Outcome Outcomes[] = {
    {ORBISDIAL_OUTCOME_ANSWERS, nullptr},
    {ORBISDIAL_OUTCOME_NO_CARRIER, "IDS_DIALUP_NO_CARRIER"},
    {ORBISDIAL_OUTCOME_AUTHENTICATION_FAILS, "IDS_DIALUP_AUTHENTICATION_FAILED"},
    {ORBISDIAL_OUTCOME_NO_SIGNAL, "IDS_DIALUP_NO_SIGNAL"},
};

const Outcome& outcomeNamed(const QString& name) {
    for (const Outcome& outcome : Outcomes) {
        if (name == QLatin1String(outcome.name)) return outcome;
    }
    return Outcomes[0];
}

INetConnectSetting* netConnectSetting() {
    return findPeer<INetConnectSetting>(ORBISDIAL_NETCONNECT_CLSID, NetConnectSettingKind);
}

INotifyService* notifyService() {
    return findPeer<INotifyService>(ORBISDIAL_NOTIFYSERVICE_CLSID, NotifyServicePluginKind);
}

bool isTrue(const QString& flag) { return flag == QLatin1String("true"); }

}  // namespace

DialupPlugin::DialupPlugin() {
    setProperty(ORBISDIAL_SIMULATED_OUTCOME, qEnvironmentVariable("ORBISDIAL_SIM_DIAL", Outcomes[0].name));
    setProperty(ORBISDIAL_SIMULATED_DELAY, DefaultDelayMs);
    m_Timer.setSingleShot(true);
    connect(&m_Timer, &QTimer::timeout, this, &DialupPlugin::timeout);
}

void DialupPlugin::OnDestroy() {
    m_Timer.stop();
    m_State = Disconnected;
    closePrompt();
}

int DialupPlugin::QueryInterface(int, QObject**) { return 0; }

int DialupPlugin::Notify(unsigned int event, unsigned int, unsigned int) {
    if (!m_Prompt) return 0;
    if (event == NotifyLanguageChanged) m_Prompt->retranslate();
    DialupProfile profile;
    if (event == NotifyProfilesChanged && !profileExists(&profile)) fail("IDS_DIALUP_NO_PROFILE");
    return 0;
}

int DialupPlugin::Connect(QString profileName) {
    if (m_State != Disconnected) return Refused;
    m_ProfileName = profileName;
    DialupProfile profile;
    if (const int status = findProfile(&profile)) return status;
    if (const int status = checkModem()) return status;
    m_Failure = nullptr;
    if (mustAsk(profile)) {
        ask(profile);
    } else {
        startTimer();
    }
    setState(Connecting);
    return Begun;
}

int DialupPlugin::Disconnect() {
    switch (m_State) {
        case Disconnected:
            return Refused;
        case Connecting:
            fail("IDS_DIALUP_CANCELLED");
            break;
        case Connected:
            startTimer();
            setState(Disconnecting);
            break;
        case Disconnecting:
            break;
    }
    return Begun;
}

QString DialupPlugin::GetLastFailure() { return m_Failure ? dialupText(m_Failure, m_ProfileName) : QString(); }

bool DialupPlugin::GetConnectedProfileName(QString* name) {
    if (!name || m_State != Connected) return false;
    *name = m_ProfileName;
    return true;
}

int DialupPlugin::findProfile(DialupProfile* profile) {
    INetConnectSetting* settings = netConnectSetting();
    if (!settings) return refuse(ObjectMissing, "IDS_DIALUP_NO_SETTINGS");
    if (m_ProfileName.isEmpty()) settings->GetDefaultDialUpProfileName(&m_ProfileName);
    if (m_ProfileName.isEmpty()) return refuse(NoProfile, "IDS_DIALUP_NO_DEFAULT");
    return profileExists(profile) ? Begun : refuse(NoProfile, "IDS_DIALUP_NO_PROFILE");
}

int DialupPlugin::checkModem() {
    if (!vrks_simulated_active()) return refuse(ObjectMissing, "IDS_DIALUP_NOT_SIMULATED");
    int status = 0;
    if (VRKS_DevSrv_GetDevStatus(&status) != 0 || status != VRKS_DEV_STATUS_READY) {
        return refuse(ObjectMissing, "IDS_DIALUP_NOT_READY");
    }
    return Begun;
}

bool DialupPlugin::profileExists(DialupProfile* profile) const {
    INetConnectSetting* settings = netConnectSetting();
    return settings && settings->GetDialUpProfile(m_ProfileName, profile) == 0 && !profile->name.isEmpty();
}

bool DialupPlugin::mustAsk(const DialupProfile& profile) const {
    if (!isTrue(profile.popusername)) return false;
    const UserPrompt prompt = netConnectSetting()->GetUserPromptInfo();
    return isTrue(prompt.promptPwd) && isTrue(prompt.userCheck);
}

void DialupPlugin::ask(const DialupProfile& profile) {
    m_Prompt = new CredentialsPrompt(m_ProfileName, profile, CommonUtils::GetMainWindow());
    connect(m_Prompt, &QDialog::finished, this, &DialupPlugin::answered);
    m_Prompt->open();
}

void DialupPlugin::answered(int result) {
    m_Prompt = nullptr;
    if (result == QDialog::Accepted) {
        startTimer();
    } else {
        fail("IDS_DIALUP_CANCELLED");
    }
}

void DialupPlugin::closePrompt() {
    if (!m_Prompt) return;
    m_Prompt->disconnect(this);
    m_Prompt->close();
    m_Prompt = nullptr;
}

void DialupPlugin::startTimer() { m_Timer.start(property(ORBISDIAL_SIMULATED_DELAY).toInt()); }

void DialupPlugin::timeout() {
    if (m_State == Connecting) {
        finishDialling();
    } else {
        setState(Disconnected);
    }
}

void DialupPlugin::finishDialling() {
    const Outcome& outcome = outcomeNamed(property(ORBISDIAL_SIMULATED_OUTCOME).toString());
    if (outcome.failure) {
        fail(outcome.failure);
    } else {
        setState(Connected);
    }
}

int DialupPlugin::refuse(int status, const char* reason) {
    m_Failure = reason;
    return status;
}

void DialupPlugin::fail(const char* reason) {
    m_Timer.stop();
    closePrompt();
    m_Failure = reason;
    setState(Disconnected);
}

void DialupPlugin::setState(ConnectionState state) {
    m_State = state;
    if (INotifyService* service = notifyService()) {
        service->SendNotify(ORBISDIAL_HOST_LISTENER_CLSID, NotifyConnectionChanged, state, 0);
    }
}
