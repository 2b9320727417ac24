// SPDX-License-Identifier: MIT
// What the user chose for the program itself, in the host's settings file.
#ifndef ORBISDIAL_HOSTSETTINGS_H
#define ORBISDIAL_HOSTSETTINGS_H

#include <QByteArray>

namespace HostSettings {

enum Switch {
    KeepsDefault,  // the settings page hides its button for another default
    ClosesToTray,  // closing the window leaves the program in the tray
    Notifies,      // the desktop shows messages about the connection; on unless it was switched off
    HasConnected   // a connection has been up: what is offered serves the user
};

bool isOn(Switch which);
bool set(Switch which, bool on);  // false: can't be stored

// Whether the desktop starts the program with the session: a file in its folder of such programs.
bool startsWithSession();
bool setStartsWithSession(bool starts);

// Place and layout of the main window, as Qt packs them; empty when nothing was kept.
QByteArray windowGeometry();
QByteArray windowState();
void keepWindow(const QByteArray& geometry, const QByteArray& state);

}  // namespace HostSettings

#endif
