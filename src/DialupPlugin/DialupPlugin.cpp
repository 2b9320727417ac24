// SPDX-License-Identifier: MIT
#include "DialupPlugin.h"

#include "CommonUtils.h"
#include "ConnectionSettings.h"
#include "ConnectionText.h"
#include "CredentialsPrompt.h"
#include "DialCall.h"
#include "DialupProfiles.h"
#include "INotifyService.h"
#include "Startup.h"

namespace {

INotifyService* notifyService() {
    return findPeer<INotifyService>(ORBISDIAL_NOTIFYSERVICE_CLSID, NotifyServicePluginKind);
}

bool isSameCall(const DataConnection& a, const DataConnection& b) {
    return a.state == b.state && a.failure == b.failure && a.name == b.name;
}

}  // namespace

DialupPlugin::DialupPlugin() {
    connect(&m_Automatic, &AutoConnector::wantsToDial, this, &DialupPlugin::dialAutomatically);
    connect(&m_Automatic, &AutoConnector::holdChanged, this, &DialupPlugin::publishTexts);
    connect(&m_Usage, &UsageRecorder::warned, this, [this](int percent) {
        m_UsedPercent = percent;
        publishTexts();
    });
}

DialupPlugin::~DialupPlugin() { closePrompt(); }

int DialupPlugin::Init() {
    if (m_Events) return 1;
    m_Events = std::make_unique<DeviceEvents>();
    connect(m_Events.get(), &DeviceEvents::connectionChanged, this, &DialupPlugin::readConnection);
    connect(m_Events.get(), &DeviceEvents::modemChanged, &m_Automatic, &AutoConnector::modemChanged);
    readConnection();
    m_Automatic.start();
    return 1;
}

void DialupPlugin::UnSDKRegisterEvent() {
    if (m_Events) m_Events->stop();
}

void DialupPlugin::OnDestroy() {
    UnSDKRegisterEvent();
    m_Automatic.stop();
    closePrompt();
    if (!m_Connection.isDown()) m_Usage.record();
}

int DialupPlugin::QueryInterface(int, QObject**) { return 0; }

int DialupPlugin::Notify(unsigned int event, unsigned int, unsigned int) {
    DialupProfile profile;
    switch (event) {
        case NotifyLanguageChanged:
            if (m_Prompt) m_Prompt->retranslate();
            publishTexts();
            m_Automatic.profilesChanged();
            break;
        case NotifyProfilesChanged:
            m_Automatic.profilesChanged();
            if (m_Prompt && !DialupProfiles::find(m_ProfileName, &profile))
                showProblem({VRKS_FAILURE_NONE, {}, "IDS_DIALUP_NO_PROFILE"});
            break;
        default:
            break;
    }
    return 0;
}

int DialupPlugin::Connect(QString profileName) {
    readConnection();
    if (GetConnectionState() != Disconnected) return Refused;
    m_ProfileName = profileName;
    DialupProfile profile;
    if (const int status = findProfile(&profile)) return status;
    if (const int status = checkProfile(profile)) return status;
    if (const int status = checkModem()) return status;
    m_Automatic.userConnects(m_ProfileName);
    if (!DialupProfiles::mustAsk(profile)) return dial(profile);
    m_Problem = {};
    ask(profile);
    notifyState();
    return Begun;
}

int DialupPlugin::Disconnect() {
    if (m_Prompt) {
        m_Automatic.userHangsUp();
        showProblem({VRKS_FAILURE_CANCELLED});
        return Begun;
    }
    readConnection();
    if (m_Connection.isDown()) return Refused;
    if (m_Connection.state == VRKS_CONNECTION_HANGING_UP) return Begun;
    m_Automatic.userHangsUp();
    const bool isEnding = VRKS_NetConnectSrv_HangUp() == 0;
    readConnection();
    if (isEnding || m_Connection.isDown()) return Begun;
    showProblem({VRKS_FAILURE_NONE, {}, "IDS_DIALUP_CANNOT_HANG_UP"});
    return CannotEnd;
}

IDialupUIService::ConnectionState DialupPlugin::GetConnectionState() {
    switch (m_Connection.state) {
        case VRKS_CONNECTION_DIALLING:
            return Connecting;
        case VRKS_CONNECTION_UP:
            return Connected;
        case VRKS_CONNECTION_HANGING_UP:
            return Disconnecting;
        default:
            return m_Prompt ? Connecting : Disconnected;
    }
}

QString DialupPlugin::GetLastFailure() {
    if (m_Problem.textId) return ConnectionText::text(m_Problem.textId, m_ProfileName);
    return ConnectionText::failure(m_Problem.failure, m_ProfileName, m_Problem.words);
}

bool DialupPlugin::GetConnectedProfileName(QString* name) {
    if (!name || !IsConnected()) return false;
    *name = m_Connection.name;
    return true;
}

int DialupPlugin::findProfile(DialupProfile* profile) {
    if (!DialupProfiles::object()) return refuse(ObjectMissing, {VRKS_FAILURE_NONE, {}, "IDS_DIALUP_NO_SETTINGS"});
    if (m_ProfileName.isEmpty()) m_ProfileName = DialupProfiles::defaultName();
    if (m_ProfileName.isEmpty()) return refuse(NoProfile, {VRKS_FAILURE_NONE, {}, "IDS_DIALUP_NO_DEFAULT"});
    if (DialupProfiles::find(m_ProfileName, profile)) return Begun;
    return refuse(NoProfile, {VRKS_FAILURE_NONE, {}, "IDS_DIALUP_NO_PROFILE"});
}

int DialupPlugin::checkProfile(const DialupProfile& profile) {
    const QString field = DialCall::badField(profile);
    return field.isEmpty() ? Begun : refuse(BadProfile, {VRKS_FAILURE_BAD_REQUEST, field});
}

// The SDK looks too, but only after the user was asked.
int DialupPlugin::checkModem() {
    if (const int failure = ModemState::current().obstacle()) return refuse(ObjectMissing, {failure});
    if (m_Connection.usedBy.isEmpty()) return Begun;
    return refuse(ObjectMissing, {VRKS_FAILURE_IN_USE, m_Connection.usedBy});
}

int DialupPlugin::dial(const DialupProfile& profile) {
    m_Problem = {};
    m_Dialled = profile;
    m_Dialled.password.clear();
    m_Automatic.dials(profile);
    const bool isBegun = DialCall(profile, m_ProfileName, !ConnectionSettings::staysAfterExit()).dial() == 0;
    takeConnection(true);
    return isBegun || !m_Connection.isDown() ? Begun : ObjectMissing;
}

void DialupPlugin::dialAutomatically(const QString& profileName) {
    if (m_Prompt || !m_Connection.isDown()) return;
    m_ProfileName = profileName;
    DialupProfile profile;
    if (findProfile(&profile) == Begun && checkProfile(profile) == Begun) {
        dial(profile);
    } else {
        m_Automatic.cannotDial();
        notifyState();
    }
}

void DialupPlugin::ask(const DialupProfile& profile) {
    m_Prompt = new CredentialsPrompt(m_ProfileName, profile, CommonUtils::GetMainWindow());
    connect(m_Prompt, &QDialog::finished, this, &DialupPlugin::answered);
    m_Prompt->open();
}

void DialupPlugin::answered(int result) {
    const CredentialsPrompt& prompt = *m_Prompt;
    m_Prompt = nullptr;
    if (result == QDialog::Accepted) return dialWith(prompt.user(), prompt.password());
    m_Automatic.userHangsUp();
    showProblem({VRKS_FAILURE_CANCELLED});
}

void DialupPlugin::dialWith(const QString& user, const QString& password) {
    DialupProfile profile;
    if (findProfile(&profile) != Begun) return notifyState();
    profile.user = user;
    profile.password = password;
    if (checkProfile(profile) != Begun) return notifyState();
    dial(profile);
}

void DialupPlugin::closePrompt() {
    if (!m_Prompt) return;
    m_Prompt->disconnect(this);
    m_Prompt->close();
    m_Prompt = nullptr;
}

void DialupPlugin::readConnection() { takeConnection(false); }

// The one place where the state comes in.
void DialupPlugin::takeConnection(bool isAnswer) {
    const DataConnection before = m_Connection;
    m_Connection = DataConnection::current();
    m_Usage.observe(m_Connection);
    const bool isOther = isAnswer || !isSameCall(before, m_Connection);
    if (isOther) showCall();
    publishTexts();
    if (isOther || before.usedBy != m_Connection.usedBy) notifyState();
    m_Automatic.connectionChanged(m_Connection);
}

void DialupPlugin::showCall() {
    if (!m_Connection.isDown()) closePrompt();
    if (m_Prompt) return;
    if (!m_Connection.name.isEmpty()) m_ProfileName = m_Connection.name;
    const bool isRefused = m_Connection.isUp() && m_Connection.failure != VRKS_FAILURE_NONE;
    m_Problem = {m_Connection.failure, m_Connection.words, isRefused ? "IDS_DIALUP_CANNOT_HANG_UP" : nullptr};
}

void DialupPlugin::showProblem(const Problem& problem) {
    closePrompt();
    m_Problem = problem;
    publishTexts();
    notifyState();
}

int DialupPlugin::refuse(int status, const Problem& problem) {
    m_Problem = problem;
    publishTexts();
    return status;
}

void DialupPlugin::publishTexts() {
    const bool isOfSdk = !m_Problem.textId && m_Problem.failure == m_Connection.failure;
    publish(ORBISDIAL_FAILURE_DETAILS, isOfSdk ? ConnectionText::details(m_Connection) : QString());
    publish(ORBISDIAL_MODEM_USED_BY, ConnectionText::usedBy(m_Connection));
    publish(ORBISDIAL_DIAL_STEP, ConnectionText::step(m_Connection.step));
    publish(ORBISDIAL_CONNECTION_NOTES, notes());
    publish(ORBISDIAL_AUTOMATIC_HOLD, ConnectionText::automaticHold(m_Automatic.hold(), m_Automatic.profileName()));
    publish(ORBISDIAL_USAGE_WARNING, ConnectionText::usageWarning(m_UsedPercent));
}

void DialupPlugin::publish(const char* name, const QString& text) {
    if (property(name).toString() != text || !property(name).isValid()) setProperty(name, text);
}

QString DialupPlugin::notes() const {
    if (m_Connection.isDown() || !m_Connection.isOwn) return QString();
    QStringList notes = ConnectionText::notes(m_Dialled);
    const QString address = ConnectionText::addressNote(m_Dialled, m_Connection);
    if (!address.isEmpty()) notes.append(address);
    return notes.join(QLatin1Char('\n'));
}

void DialupPlugin::notifyState() {
    if (INotifyService* service = notifyService()) {
        service->SendNotify(ORBISDIAL_HOST_LISTENER_CLSID, NotifyConnectionChanged, GetConnectionState(), 0);
    }
}
