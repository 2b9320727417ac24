// SPDX-License-Identifier: MIT
// The truth values of profiles and configuration, which are texts.
#ifndef ORBISDIAL_TRUTHTEXT_H
#define ORBISDIAL_TRUTHTEXT_H

#include <QString>

// Only exactly "true" is true.
inline bool isTrue(const QString& value) { return value == QLatin1String("true"); }

inline QString boolText(bool on) { return QLatin1String(on ? "true" : "false"); }

#endif
