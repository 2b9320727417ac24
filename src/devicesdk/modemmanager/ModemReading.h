// SPDX-License-Identifier: MIT
// Reads libmm-glib's objects into plain values.
#ifndef ORBISDIAL_MODEMREADING_H
#define ORBISDIAL_MODEMREADING_H

#include <libmm-glib.h>

#include "Known.h"

// What the object and its card's object have; no card: not asked for or not there yet.
KnownModem readModem(MMObject* object, MMSim* card);

// The D-Bus path of the modem's card; empty: it has none.
std::string cardPathOf(MMModem* modem);

#endif
