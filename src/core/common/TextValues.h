// SPDX-License-Identifier: MIT
// Names and other values in texts of the current language.
#ifndef ORBISDIAL_TEXTVALUES_H
#define ORBISDIAL_TEXTVALUES_H

#include <QString>
#include <QStringList>

#include "HostCoreExport.h"

// For the thread that Change is for. Values may hold any characters.
namespace TextValues {

// In a window, where the current language is written from right to left, invisible marks keep a value's characters
// together and do not let them reorder the text around; others let a word break that is longer than a line may be.
// Elsewhere the value itself.
HOSTCORE_EXPORT QString isolated(const QString& value);

// The text with "%1", "%2" and so on replaced by the values, isolated.
HOSTCORE_EXPORT QString filled(const QString& text, const QStringList& values);

}  // namespace TextValues

#endif
