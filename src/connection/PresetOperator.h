// SPDX-License-Identifier: MIT
// Whose network a profile connects to, and so how its balance is asked for.
#ifndef ORBISDIAL_PRESETOPERATOR_H
#define ORBISDIAL_PRESETOPERATOR_H

#include <QStringList>
#include <optional>

#include "OperatorIndex.h"

// The operator of the first of these profiles that is a preset of one. Give the profile in use first, then the default,
// then the preset proposed for the card: a profile of the user's own tells no operator. Reads the shipped index; there
// is none when that is missing or damaged.
std::optional<OperatorEntry> presetOperator(const QStringList& profiles);

// The first of its USSD commands that tell a balance; null when it has none.
const BalanceQuery* balanceCommand(const OperatorEntry& entry);

#endif
