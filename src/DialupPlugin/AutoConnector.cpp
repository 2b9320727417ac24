// SPDX-License-Identifier: MIT
#include "AutoConnector.h"

#include <QEvent>
#include <QFileInfo>

#include "Change.h"
#include "CommonUtilsBase.h"
#include "CredentialsMark.h"
#include "DialupProfiles.h"

namespace {

// A change of it makes a refused profile worth another attempt.
QString markOf(const QString& name) {
    DialupProfile profile;
    return DialupProfiles::find(name, &profile) ? CredentialsMark::of(profile) : QString();
}

// Presets follow the card and names the language; only among the same ones do lists tell of a renaming.
QString readerOf(const ModemState& modem) { return modem.imsi + ' ' + Change::GetLangName(); }

}  // namespace

AutoConnector::AutoConnector(QObject* parent) : QObject(parent) {
    m_Clock.start();
    m_Pause.setSingleShot(true);
    m_Reading.setSingleShot(true);
    connect(&m_Pause, &QTimer::timeout, this, &AutoConnector::consider);
    connect(&m_Reading, &QTimer::timeout, this, &AutoConnector::read);
    connect(&m_Settings, &QFileSystemWatcher::directoryChanged, this, &AutoConnector::profilesChanged);
}

void AutoConnector::start() {
    m_IsRunning = true;
    m_Reading.start(0);
}

void AutoConnector::stop() {
    m_IsRunning = false;
    m_Pause.stop();
    m_Reading.stop();
}

void AutoConnector::connectionChanged(const DataConnection& connection) {
    if (m_Policy.isBegunElsewhere(connection)) {
        m_Policy.userConnects(AutoConnectSettings::isOn(connection.name));
        m_Tried.clear();  // the other program knows what it tried, and keeps the outcome itself
    }
    const bool isRefused = m_Policy.observe(connection, m_Clock.elapsed());
    if (!m_Tried.isEmpty() && (isRefused || connection.isUp()))
        AutoConnectSettings::setRefused(connection.name, isRefused ? m_Tried : QString());
    consider();
}

// A modem that became ready, or another card, is worth another attempt.
void AutoConnector::modemChanged() {
    const ModemState modem = ModemState::current();
    const QString ready = modem.obstacle() == VRKS_FAILURE_NONE ? '/' + modem.imsi : QString();
    if (ready != m_ReadyCard && !ready.isNull()) m_Policy.forgetFailures();
    m_ReadyCard = ready;
    consider();
}

void AutoConnector::profilesChanged() {
    if (m_IsRunning) m_Reading.start(0);
}

void AutoConnector::userConnects(const QString& profileName) {
    m_Policy.userConnects(AutoConnectSettings::isOn(profileName));
    m_Pause.stop();
}

void AutoConnector::dials(const DialupProfile& profile) {
    m_Tried = CredentialsMark::of(profile);
    m_Policy.dials();
}

void AutoConnector::userHangsUp() {
    m_Policy.userHangsUp();
    consider();
}

void AutoConnector::cannotDial() {
    m_Policy.cannotDial();
    consider();
}

bool AutoConnector::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::DynamicPropertyChange && !DialupProfiles::areAwaited()) {
        watched->removeEventFilter(this);
        profilesChanged();
    }
    return QObject::eventFilter(watched, event);
}

void AutoConnector::read() {
    const QString folder = QFileInfo(CommonUtilsBase::GetSettingsFile()).path();
    if (m_Settings.directories().isEmpty() && QFileInfo(folder).isDir()) m_Settings.addPath(folder);
    if (AutoConnectSettings::rules().isEmpty()) {
        m_ReadFor = QString();
    } else if (DialupProfiles::areAwaited()) {
        DialupProfiles::object()->installEventFilter(this);
    } else {
        followProfiles();
        followCredentials();
    }
    modemChanged();
}

void AutoConnector::followProfiles() {
    const QStringList names = DialupProfiles::names();
    const QString reader = readerOf(ModemState::current());
    if (reader == m_ReadFor) AutoConnectSettings::follow(m_Names, names);
    m_Names = names;
    m_ReadFor = reader;
}

void AutoConnector::followCredentials() {
    QHash<QString, QString> now;
    const Rules rules = AutoConnectSettings::rules();
    for (const QString& name : rules.keys()) {
        now.insert(name, markOf(name));
        if (m_Credentials.contains(name) && m_Credentials[name] != now[name]) m_Policy.forgetFailures();
    }
    m_Credentials = now;
}

void AutoConnector::consider() {
    if (!m_IsRunning) return;
    const Rules rules = AutoConnectSettings::rules();
    const ModemState modem = ModemState::current();
    const bool isReady = modem.obstacle() == VRKS_FAILURE_NONE;
    m_Candidate =
        isReady ? candidate(rules) : AutoConnectPolicy::Candidate{rules.isEmpty() ? QString() : rules.firstKey()};
    const AutoConnectDecision decision = m_Policy.decide(m_Candidate, modem, m_Clock.elapsed());
    m_Pause.stop();
    if (decision.wait > 0) m_Pause.start(int(decision.wait));
    setHold(decision.hold);
    if (decision.mustDial) emit wantsToDial(m_Candidate.name);
}

// The default goes first, then the list's order.
AutoConnectPolicy::Candidate AutoConnector::candidate(const Rules& rules) const {
    const QString usual = DialupProfiles::defaultName();
    if (rules.contains(usual)) return candidateNamed(usual, rules);
    for (const QString& name : m_Names)
        if (rules.contains(name)) return candidateNamed(name, rules);
    return {};
}

AutoConnectPolicy::Candidate AutoConnector::candidateNamed(const QString& name, const Rules& rules) {
    DialupProfile profile;
    if (!DialupProfiles::find(name, &profile)) return {};
    const AutoConnectSettings::Rule rule = rules.value(name);
    return {name, rule.mayRoam, rule.isRefused(profile), DialupProfiles::mustAsk(profile)};
}

void AutoConnector::setHold(int hold) {
    if (hold == m_Hold) return;
    m_Hold = hold;
    emit holdChanged();
}
