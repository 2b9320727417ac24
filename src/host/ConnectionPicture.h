// SPDX-License-Identifier: MIT
// What the window and the tray icon say of what is known: words, a sign, and the one thing to do next.
#ifndef ORBISDIAL_CONNECTIONPICTURE_H
#define ORBISDIAL_CONNECTIONPICTURE_H

#include <QString>

#include "ConnectionFacts.h"

struct ConnectionPicture {
    // Each is a shape of its own, so that nobody must tell colours apart.
    enum Sign { Idle, Missing, Attention, Busy, Online, Failed };

    enum Action { Connect, Cancel, Disconnect, Unlock, ChooseOperator };

    Sign sign = Idle;
    QString headline;  // the state in a few words
    QString detail;    // operator, technology, roaming; or what is missing and what to do
    int signal = -1;   // percent; -1: nothing to show

    Action action = Connect;
    bool isActionAllowed = false;
    QString whyNot;  // why the action is not allowed; empty when the detail says it

    bool isUp = false;
    bool hasFailed = false;  // the failure below is to be shown
    QString failureTitle;    // what was tried
    QString failureText;     // what happened, and what to do
    QString failureDetails;  // the network's own words, technical names
    QString failedProfile;   // to try again with; empty: the default one
    bool canUnlock = false;  // the card wants a PIN or PUK
    QString card;            // the SIM card and what it selected
    QString notes;           // lines about the connection; empty: none
    QString usageWarning;    // the month\'s volume comes to its limit; empty: it does not
    QString storageProblem;  // a sentence; empty: none

    // Whether a connection with any profile may begin now.
    bool mayConnect() const { return isActionAllowed && (action == Connect || action == ChooseOperator); }

    // In the current language.
    static ConnectionPicture of(const ConnectionFacts& facts);

    // The text of the button.
    static QString actionText(Action action);
};

#endif
