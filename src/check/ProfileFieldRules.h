// SPDX-License-Identifier: MIT
// What a value of each of a profile's fields may be, for who types one, imports one or ships one.
#ifndef ORBISDIAL_CHECK_PROFILEFIELDRULES_H
#define ORBISDIAL_CHECK_PROFILEFIELDRULES_H

#include <NetConnectRecords.h>

#include <QStringList>

namespace ProfileFieldRules {

enum class Kind { Text, APN, Flag, Address, Fixed };

// A length of 0 is no limit; the name's is configured. The fixed ones are not for the user: who may change the profile,
// whether its name is translated, and how its password is stored.
struct Rule {
    QString DialupProfile::*field;
    Kind kind;
    int length;
};

const Rule& of(const DialupProfileField& field);

// As reasonText(), and never with the value; null when there is nothing to say.
QString valueProblem(const DialupProfileField& field, const QString& value);
QString nameProblem(const QString& name);
QString nameLengthProblem(const QString& name, int most);

// Whether a name can be stored as it is.
bool isStorable(const QString& text);

// What is wrong with a profile as a file holds it, where an empty field says nothing: its name and values, which may be
// of nobody's typing.
QStringList storedProblems(const DialupProfile& profile, int nameLength);

// False for a password that the base64 method, which its encrypttype names, would turn into garbage.
bool isPasswordReadable(const DialupProfile& profile);
bool isBase64Method(const QString& encryptType);

}  // namespace ProfileFieldRules

#endif
