// SPDX-License-Identifier: MIT
// The modem that the user chose among several; every program of ours uses it.
#ifndef ORBISDIAL_PROGRAMS_CHOSENMODEM_H
#define ORBISDIAL_PROGRAMS_CHOSENMODEM_H

#include <QString>

// Kept in the host's settings, for each of the device SDK's backends by itself: a real modem chosen does not leave a
// simulated one out.
namespace ChosenModem {

// Its key; empty when the SDK chooses.
QString id();

// Keeps a key, or nothing for an empty one, and passes it to the SDK. False when it can't be kept.
bool choose(const QString& id);

// Passes the choice to the SDK, unless $ORBISDIAL_MODEM names a modem for this process. Each program calls it when it
// starts, before it asks for a modem.
void use();

}  // namespace ChosenModem

#endif
