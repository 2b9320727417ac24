// SPDX-License-Identifier: MIT
// From what was seen when a connection failed or ended to what the program is told.
#ifndef ORBISDIAL_CONNECTIONFAILURE_H
#define ORBISDIAL_CONNECTIONFAILURE_H

#include <NetworkManager.h>

#include <string>
#include <vector>

// An error as D-Bus has it: a dotted name and a sentence.
struct NamedError {
    std::string name;
    std::string words;
};

struct Ending {
    unsigned reason = NM_DEVICE_STATE_REASON_NONE;  // the device's NMDeviceStateReason, or one newer than libnm
    bool wasUp = false;
    bool isDeviceGone = false;
    std::vector<NamedError> bearerErrors;  // of ModemManager's bearers, one an attempt, in their order
};

struct Failure {
    int kind;  // VRKS_FAILURE_...
    std::string words;
};

Failure failureOf(const Ending& ending);

// Whether a bearer could not dial because its port still belongs to a call of before.
bool isStuck(const std::vector<NamedError>& bearerErrors);

// The words for a NetworkManager that hangs.
constexpr char NetworkHangs[] = "NetworkManager does not answer";

// Of a call that NetworkManager answered with an error, or not at all.
Failure failureOf(const NamedError& error);
Failure failureOf(const GError* error);

#endif
