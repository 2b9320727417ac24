// SPDX-License-Identifier: MIT
// Whether two names stand for the same operator, such as "ALDI TALK" on a SIM card and "AldiTalk/MedionMobile".
#ifndef ORBISDIAL_OPERATORNAMES_H
#define ORBISDIAL_OPERATORNAMES_H

#include "OperatorIndex.h"

namespace OperatorNames {

// The place of the only operator that a card's name fits; -1 when it fits none, or several alike. Case, accents,
// blanks and punctuation never count. A whole name goes before one of several in it, and that before a name without
// its country and words such as "Mobile" or "GmbH".
int told(const QList<OperatorEntry>& operators, const QString& cardOperator);

}  // namespace OperatorNames

#endif
