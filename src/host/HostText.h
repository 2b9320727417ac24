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

// From right to left a name keeps to itself, or its figures and signs would change places with the words around it.
QString isolated(const QString& value);

// The line runs as the language does, whatever it begins with.
QString directed(const QString& line);

#endif
