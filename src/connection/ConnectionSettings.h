// SPDX-License-Identifier: MIT
// What the host keeps about connections in its own settings file, beside the profiles and not in them.
//
// For the thread that runs the application. Every program of ours reads and writes the same file.
#ifndef ORBISDIAL_CONNECTIONSETTINGS_H
#define ORBISDIAL_CONNECTIONSETTINGS_H

#include <QMap>
#include <QString>
#include <QStringList>

#include "NetConnectRecords.h"

namespace ConnectionSettings {

// Whether a connection that the window begins stays when the window ends. Counts from the next connection.
bool staysAfterExit();
bool setStaysAfterExit(bool stays);  // false: can't be stored

}  // namespace ConnectionSettings

// Which profiles connect by themselves. A profile is told by its name.
namespace AutoConnectSettings {

struct Rule {
    bool mayRoam = false;
    QString refused = {};  // the CredentialsMark of what the network refused; empty: nothing

    // Whether these are the credentials that the network refused; it waits until somebody changes them.
    bool isRefused(const DialupProfile& profile) const;
};

using Rules = QMap<QString, Rule>;  // those that are on

Rules rules();

bool isOn(const QString& profileName);

// Switches it on or off; switching on anew forgets a refusal. False: can't be stored.
bool set(const QString& profileName, bool on, bool mayRoam = false);

// Keeps which credentials of the profile's the network refused, by their CredentialsMark; an empty one, after it
// accepted some, forgets it. Does nothing for a profile that is off.
bool setRefused(const QString& profileName, const QString& mark);

// The setting follows its profile: after a renaming, after a deletion.
bool rename(const QString& from, const QString& to);
bool forget(const QString& profileName);

// Follows a change of the list of profiles that nobody described: one name that gave way to one other was renamed, one
// that went alone was deleted. Anything else, such as other presets for another card, changes nothing.
bool follow(const QStringList& before, const QStringList& after);

}  // namespace AutoConnectSettings

#endif
