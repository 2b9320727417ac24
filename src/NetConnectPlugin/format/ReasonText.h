// SPDX-License-Identifier: MIT
// Why something is wrong with a file or a value, for a person.
#ifndef ORBISDIAL_REASONTEXT_H
#define ORBISDIAL_REASONTEXT_H

#include <QCoreApplication>
#include <QString>

// The English text in the program's language; itself where no translator of the application has one. Values take the
// places of "%1" and so on afterwards.
inline QString reasonText(const char* english) { return QCoreApplication::translate("Reasons", english); }

#endif
