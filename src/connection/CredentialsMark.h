// SPDX-License-Identifier: MIT
// Tells a profile's credentials again, without keeping them.
#ifndef ORBISDIAL_CREDENTIALSMARK_H
#define ORBISDIAL_CREDENTIALSMARK_H

#include <QString>

#include "NetConnectRecords.h"

namespace CredentialsMark {

// A keyed hash of what a network accepts or refuses: user name, password, access point name, methods. It changes with
// any of them, whoever changed it. The key is the user's own, in a file of the data folder that nobody else can read;
// where it can't be kept the marks last as long as the process. Any thread.
QString of(const DialupProfile& profile);

}  // namespace CredentialsMark

#endif
