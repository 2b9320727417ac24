// SPDX-License-Identifier: MIT
// From what ModemManager says to what the SDK answers.
#ifndef ORBISDIAL_MODEMPICTURE_H
#define ORBISDIAL_MODEMPICTURE_H

#include <string>

#include "../Picture.h"
#include "Known.h"

// The picture that follows the one before, from which it takes what ModemManager does not tell again: results of
// unlocking, the last known mode of a card, the connection, the USSD session. The wanted key: see chooseModem().
Picture pictureOf(const Known& known, const std::string& wanted, const Picture& before);

#endif
