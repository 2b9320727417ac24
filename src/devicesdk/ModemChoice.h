// SPDX-License-Identifier: MIT
// Which of the modems is used.
#ifndef ORBISDIAL_MODEMCHOICE_H
#define ORBISDIAL_MODEMCHOICE_H

#include <string>
#include <vector>

struct ModemInfo;

// The key of the modem to use; empty: none. The wanted key's, or with an empty one what $ORBISDIAL_MODEM names, or
// else by itself, where the present one stays while it is ready. A modem that was named and is not there has no
// substitute, for another one's card may cost money.
std::string chooseModem(const std::vector<ModemInfo>& modems, const std::string& wanted, const std::string& present);

#endif
