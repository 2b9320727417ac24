// SPDX-License-Identifier: MIT
// Which language the host speaks.
#ifndef ORBISDIAL_LANGUAGES_H
#define ORBISDIAL_LANGUAGES_H

#include <QString>

namespace Languages {

// What its speakers call the language.
QString title(const QString& code);

// Makes the stored language current, or else the first of the system's that is shipped, or else English.
void useStored();

// The user's choice for the next start; false when it can't be stored.
bool store(const QString& code);

}  // namespace Languages

#endif
