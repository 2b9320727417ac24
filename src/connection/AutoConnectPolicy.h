// SPDX-License-Identifier: MIT
// Decides when to connect by itself. It knows neither clock nor modem: it is told of both, and answers what to do.
#ifndef ORBISDIAL_AUTOCONNECTPOLICY_H
#define ORBISDIAL_AUTOCONNECTPOLICY_H

#include <QString>
#include <optional>

#include "DataConnection.h"

// Why it does not connect now.
enum AutoConnectHold {
    AutoConnectNoHold,
    AutoConnectIsOff,          // no profile of those at hand is to connect by itself
    AutoConnectHungUp,         // the user hung up, or connected with another profile; until he connects himself
    AutoConnectNotReady,       // no modem that is ready
    AutoConnectNotRegistered,  // with no network; it waits for one
    AutoConnectRoaming,        // and may not
    AutoConnectInUse,          // another program's connection uses the modem
    AutoConnectPause,          // after a failure
    AutoConnectRefused,        // the network refused user name or password; never again without a change
    AutoConnectFailed,         // what no repetition mends, until modem or profile change
    AutoConnectMustAsk         // the profile asks for user name and password at each connection
};

struct AutoConnectDecision {
    int hold = AutoConnectNoHold;  // AutoConnectNoHold: dial now, or a connection is there already
    bool mustDial = false;
    qint64 wait = 0;  // milliseconds until the decision is to be asked for again; 0: when something changes
};

class AutoConnectPolicy {
public:
    static constexpr qint64 FirstPause = 5000;
    static constexpr qint64 LongestPause = 120000;

    struct Candidate {
        QString name = {};  // empty: there is none
        bool mayRoam = false;
        bool isRefused = false;  // the network refused these credentials
        bool mustAsk = false;
    };

    // Whether this VRKS_FAILURE_... is the network's word on user name, password or PIN.
    static bool isRefusal(int failure);

    // Times are milliseconds of any clock that only goes forward.

    // The user begins to connect with a profile; whether that one is to connect by itself.
    void userConnects(bool isAutomatic);

    // Whether that is what the connection tells: another program does not connect by itself. To be asked before
    // observe().
    bool isBegunElsewhere(const DataConnection& connection) const;

    // The user ends the connection or gives it up, here or in another program.
    void userHangsUp();

    // A dialling is about to begin, the user's or an automatic one; what observe() is told next is its outcome, also
    // when it could not even begin.
    void dials();

    // The profile can't be dialled with as it is.
    void cannotDial() { m_IsUseless = true; }

    // Profiles, settings or the modem changed in a way that makes a failure worth another attempt.
    void forgetFailures();

    // The connection as it is now; each change of it must be told. Answers true once when it ended by a refusal.
    bool observe(const DataConnection& connection, qint64 now);

    AutoConnectDecision decide(const Candidate& candidate, const ModemState& modem, qint64 now) const;

private:
    void ended(const DataConnection& connection, qint64 now);
    void pause(qint64 now);

    DataConnection m_Last;
    bool m_IsHeld = false;     // by the user
    bool m_IsUseless = false;  // to try again
    qint64 m_Pause = 0;        // the last one
    qint64 m_NotBefore = 0;
    std::optional<qint64> m_UpSince;
};

#endif
