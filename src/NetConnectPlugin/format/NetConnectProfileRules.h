// SPDX-License-Identifier: MIT
// What makes a profile that a person typed acceptable. The page and the command line judge by these.
#ifndef ORBISDIAL_NETCONNECTPROFILERULES_H
#define ORBISDIAL_NETCONNECTPROFILERULES_H

#include <QString>

namespace NetConnectProfileRules {

// Lengths in UTF-16 code units, as Qt's line edits count them. The name's is configurable.
enum { DefaultNameLength = 48, AccessNumberLength = 24, UserNameLength = 48, PasswordLength = 48, APNLength = 100 };

// The patterns, in QRegExp's syntax, case-sensitive, for the whole text.
extern const char NamePattern[];       // what a name may be
extern const char APNPattern[];        // what an APN of two or more characters must be
extern const char APNTypingPattern[];  // what can be typed as an APN

// The characters that no name may have, as they are listed for the user.
extern const char ForbiddenNameCharacters[];

// False for an empty name and one of white space alone.
bool isNamePresent(const QString& name);

bool isNameAcceptable(const QString& name);
bool isAccessNumberPresent(const QString& number);

// True for an empty APN and for one of one character, whatever it is.
bool isAPNAcceptable(const QString& apn);

// True when every character could be typed into the page's APN field.
bool isAPNTypeable(const QString& apn);

// True when the keyed method can keep the password: it passes through Latin-1.
bool isPasswordKeepable(const QString& password);

// The text cut to a length, without halving a surrogate pair.
QString cutToLength(const QString& text, int length);

}  // namespace NetConnectProfileRules

#endif
