// SPDX-License-Identifier: MIT
// The profiles as the settings plug-in offers them, wherever it is just now. GUI thread.
#ifndef ORBISDIAL_DIALUPPROFILES_H
#define ORBISDIAL_DIALUPPROFILES_H

#include <QStringList>

#include "NetConnectRecords.h"

class QObject;

namespace DialupProfiles {

// The object that has them; null when the settings plug-in is not there.
QObject* object();

// True while they are still to be read: to ask for one takes its time.
bool areAwaited();

// False, and nothing stored, when there is no such profile. The password is in plain text.
bool find(const QString& name, DialupProfile* profile);

QStringList names();
QString defaultName();

// Whether the user is to be asked for name and password at each connection.
bool mustAsk(const DialupProfile& profile);

}  // namespace DialupProfiles

#endif
