// SPDX-License-Identifier: MIT
// The dial-up plug-in, as other plug-ins see it.
#ifndef ORBISDIAL_IDIALUPUISERVICE_H
#define ORBISDIAL_IDIALUPUISERVICE_H

#include <QObject>
#include <QString>

// The class identifier and the kind under which the container finds the dial-up plug-in.
#define ORBISDIAL_DIALUP_CLSID "92804312-432E-401F-96BB-1C20D852815D"
enum { DialupPluginKind = 16401 };

// What the object tells besides, each as a QObject property of this name that holds text in the current language; empty
// when there is nothing to say. A change is told by QDynamicPropertyChangeEvent.
#define ORBISDIAL_FAILURE_DETAILS "failureDetails"  // the network's own words for the last failure
#define ORBISDIAL_MODEM_USED_BY "modemUsedBy"       // "in use by ...": another program's connection, never ended by us
#define ORBISDIAL_DIAL_STEP "dialStep"              // how far connecting is
#define ORBISDIAL_CONNECTION_NOTES "connectionNotes"  // what of the connection's profile has no effect, a line for each
#define ORBISDIAL_AUTOMATIC_HOLD "automaticHold"      // what keeps the automatic connection from connecting
#define ORBISDIAL_USAGE_WARNING "usageWarning"        // that the month's data volume comes to its limit

// All operations are called on the GUI thread. Their order is part of the binary interface.
class IDialupUIService {
public:
    enum ConnectionState { Disconnected, Connecting, Connected, Disconnecting };

    virtual ~IDialupUIService() {}

    // Starts to connect with a profile; an empty name takes the default one. 0 when dialling has begun or the user is
    // asked for his name and password, 1 when a connection is up or on its way, 13 when the profiles or a modem that
    // dials are missing, 22 when the profile holds what can't be dialled with, 23 when there is no such profile;
    // GetLastFailure() then says it in words, but for 1.
    virtual int Connect(QString profileName) = 0;

    // Hangs up, or gives up connecting, whichever program of ours began it; returns at once. 0, 1 when there is nothing
    // to hang up, or 2 when it can't be ended: GetLastFailure() then says so.
    virtual int Disconnect() = 0;

    // True while a connection of ours is up, whichever program began it.
    virtual bool IsConnected() = 0;

    virtual ConnectionState GetConnectionState() = 0;

    // Why the last attempt to connect failed or the connection ended, and what to do, for a person to read, in the
    // current language; empty after a success, and after the user hung up.
    virtual QString GetLastFailure() = 0;

    // The profile of the current connection; false and nothing stored when there is none.
    virtual bool GetConnectedProfileName(QString* name) = 0;
};

Q_DECLARE_INTERFACE(IDialupUIService, "com.kestra.orbisdial.plugin.IDialupUIService")

#endif
