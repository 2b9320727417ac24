// SPDX-License-Identifier: MIT
// The host's texts.
#ifndef ORBISDIAL_HOSTTEXT_H
#define ORBISDIAL_HOSTTEXT_H

#include <QStringList>

#include "Change.h"

inline const QString HostTextContext = QStringLiteral("OrbisDial");

// The text of a string ID in the current language.
inline QString hostText(const char* id) { return Change::tr(QLatin1String(id), HostTextContext); }

// The same with "%1", "%2" and so on replaced by the values, which may hold any characters.
QString hostText(const char* id, const QStringList& values);

// The line runs as the language does, whatever it begins with.
QString directed(const QString& line);

#endif
