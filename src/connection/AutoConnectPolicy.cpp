// SPDX-License-Identifier: MIT
#include "AutoConnectPolicy.h"

#include <algorithm>

namespace {

enum class Consequence {
    Pause,    // try again
    Hold,     // the user wants it down
    Refused,  // a secret was wrong: never twice
    Useless   // the same will happen again
};

Consequence consequenceOf(int failure) {
    switch (failure) {
        case VRKS_FAILURE_NONE:
        case VRKS_FAILURE_CANCELLED:
        case VRKS_FAILURE_ENDED_OUTSIDE:
        case VRKS_FAILURE_HUNG_UP:
            return Consequence::Hold;
        case VRKS_FAILURE_AUTHENTICATION:
        case VRKS_FAILURE_REFUSED:  // it may have been the password
        case VRKS_FAILURE_CREDENTIALS_MISSING:
        case VRKS_FAILURE_WRONG_PIN:
            return Consequence::Refused;
        case VRKS_FAILURE_BAD_REQUEST:
        case VRKS_FAILURE_NOT_SUBSCRIBED:
        case VRKS_FAILURE_APN:
        case VRKS_FAILURE_REGISTRATION_DENIED:
        case VRKS_FAILURE_WRONG_CARD:
        case VRKS_FAILURE_NOT_ALLOWED:
        case VRKS_FAILURE_STUCK:
            return Consequence::Useless;
        default:
            return Consequence::Pause;
    }
}

// Where nobody knows whether the modem roams, only one that may roam connects.
int registrationHold(int registration, bool mayRoam) {
    switch (registration) {
        case VRKS_REGISTRATION_HOME:
            return AutoConnectNoHold;
        case VRKS_REGISTRATION_ROAMING:
            return mayRoam ? AutoConnectNoHold : AutoConnectRoaming;
        case VRKS_REGISTRATION_UNKNOWN:
            return mayRoam ? AutoConnectNoHold : AutoConnectNotRegistered;
        default:
            return AutoConnectNotRegistered;
    }
}

}  // namespace

void AutoConnectPolicy::userConnects(bool isAutomatic) {
    m_IsHeld = !isAutomatic;
    forgetFailures();
}

bool AutoConnectPolicy::isBegunElsewhere(const DataConnection& connection) const {
    return m_Last.isDown() && !connection.isDown() && !connection.isOwn;
}

void AutoConnectPolicy::userHangsUp() { m_IsHeld = true; }

void AutoConnectPolicy::dials() { m_Last.state = VRKS_CONNECTION_DIALLING; }

void AutoConnectPolicy::forgetFailures() {
    m_IsUseless = false;
    m_Pause = 0;
    m_NotBefore = 0;
}

bool AutoConnectPolicy::isRefusal(int failure) { return consequenceOf(failure) == Consequence::Refused; }

bool AutoConnectPolicy::observe(const DataConnection& connection, qint64 now) {
    const bool wasThere = !m_Last.isDown();
    const bool isRefused = wasThere && connection.isDown() && isRefusal(connection.failure);
    if (connection.isUp() && !m_UpSince) m_UpSince = now;
    if (wasThere && connection.isDown()) ended(connection, now);
    // In another program, which found none that was up.
    if (!wasThere && connection.failure == VRKS_FAILURE_HUNG_UP && m_Last.failure != connection.failure) userHangsUp();
    m_Last = connection;
    return isRefused;
}

void AutoConnectPolicy::ended(const DataConnection& connection, qint64 now) {
    // One that soon drops again and again is no success.
    if (m_UpSince && now - *m_UpSince >= LongestPause) m_Pause = 0;
    m_UpSince.reset();
    switch (consequenceOf(connection.failure)) {
        case Consequence::Pause:
            return pause(now);
        case Consequence::Hold:
            m_IsHeld = true;
            break;
        case Consequence::Refused:
        case Consequence::Useless:
            m_IsUseless = true;
            break;
    }
}

void AutoConnectPolicy::pause(qint64 now) {
    m_Pause = m_Pause ? std::min(2 * m_Pause, LongestPause) : FirstPause;
    m_NotBefore = now + m_Pause;
}

AutoConnectDecision AutoConnectPolicy::decide(const Candidate& candidate, const ModemState& modem, qint64 now) const {
    if (!m_Last.isDown()) return {};
    if (candidate.name.isEmpty()) return {AutoConnectIsOff};
    if (m_IsHeld) return {AutoConnectHungUp};
    if (candidate.isRefused) return {AutoConnectRefused};
    if (candidate.mustAsk) return {AutoConnectMustAsk};
    if (m_IsUseless) return {AutoConnectFailed};
    if (!m_Last.usedBy.isEmpty()) return {AutoConnectInUse};
    if (modem.obstacle() != VRKS_FAILURE_NONE) return {AutoConnectNotReady};
    if (const int hold = registrationHold(modem.registration, candidate.mayRoam)) return {hold};
    if (now < m_NotBefore) return {AutoConnectPause, false, m_NotBefore - now};
    return {AutoConnectNoHold, true};
}
