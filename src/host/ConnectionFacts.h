// SPDX-License-Identifier: MIT
// What the window knows: the modem, the connection and the profiles, as the device SDK and the plug-ins tell of them.
#ifndef ORBISDIAL_CONNECTIONFACTS_H
#define ORBISDIAL_CONNECTIONFACTS_H

#include <vrks.h>

#include <QString>
#include <optional>

#include "DataConnection.h"
#include "IDialupUIService.h"

struct ConnectionFacts {
    bool isStarting = false;  // nothing has been asked yet

    // The modem in use. Unknown: no service tells of modems, or none was asked for.
    bool isModemKnown = false;
    bool isSettling = false;  // the program has just started, and the modems may still be on their way
    VRKS_ModemInfo modem{};
    QString imsi;

    // The data connection of ours, whichever program began it.
    DataConnection connection;

    // The dialler.
    bool hasDialer = false;
    IDialupUIService::ConnectionState state = IDialupUIService::Disconnected;
    QString profile;  // of the connection
    QString failure;  // of the last attempt, for a person to read
    QString failureDetails;
    QString usedBy;         // that another program's connection uses the modem
    QString step;           // how far connecting is
    QString notes;          // what of the connection's profile has no effect
    QString automaticHold;  // what keeps the automatic connection from connecting
    QString usageWarning;

    // The profiles.
    bool areProfilesAwaited = false;
    QString defaultProfile;
    bool wantsOperator = false;            // nothing is known of the card yet, and nobody chose what to connect with
    std::optional<QString> matchedPrefix;  // nothing: nobody tells
    QString proposedPreset;
    QString proposedOperator;  // whose it is, where the card's own name for its operator told
    QString storageProblem;

    bool isDown() const { return state == IDialupUIService::Disconnected; }

    // Asks everything. GUI thread; waits for nothing.
    static ConnectionFacts now();

    // Of a program that has nothing to ask yet.
    static ConnectionFacts starting();
};

#endif
