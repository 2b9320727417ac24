// The dial-up plug-in, as other plug-ins see it.
#ifndef ORBISDIAL_IDIALUPUISERVICE_H
#define ORBISDIAL_IDIALUPUISERVICE_H

#include <QObject>
#include <QString>

// The class identifier and the kind under which the container finds the dial-up plug-in.
#define ORBISDIAL_DIALUP_CLSID "92804312-432E-401F-96BB-1C20D852815D"
enum { DialupPluginKind = 16401 };

// What the simulated modem's dialling ends with is a dynamic property of the dial-up plug-in's object: one of
// the texts below. It starts as $ORBISDIAL_SIM_DIAL says, else as the first. How long dialling and hanging up
// take stands in the second property, in milliseconds.
#define ORBISDIAL_SIMULATED_OUTCOME "simulatedOutcome"
#define ORBISDIAL_SIMULATED_DELAY "simulatedDelay"
#define ORBISDIAL_OUTCOME_ANSWERS "answers"
#define ORBISDIAL_OUTCOME_NO_CARRIER "no-carrier"
#define ORBISDIAL_OUTCOME_AUTHENTICATION_FAILS "authentication-fails"
#define ORBISDIAL_OUTCOME_NO_SIGNAL "no-signal"

// All operations are called on the GUI thread. Their order is part of the binary interface.
class IDialupUIService {
public:
    enum ConnectionState { Disconnected, Connecting, Connected, Disconnecting };

    virtual ~IDialupUIService() {}

    // Starts to connect with a profile; an empty name takes the default one. 0 when dialling has begun,
    // 1 when a connection is up or on its way, 13 when the profiles or a modem that dials are missing, 23 when
    // there is no such profile; GetLastFailure() then says it in words, but for 1.
    virtual int Connect(QString profileName) = 0;

    // Hangs up, or gives up connecting. 0, or 1 when there is nothing to hang up.
    virtual int Disconnect() = 0;

    // True while a connection is up.
    virtual bool IsConnected() = 0;

    virtual ConnectionState GetConnectionState() = 0;

    // Why the last connection attempt failed, for a person to read, in the current language; empty after a
    // success.
    virtual QString GetLastFailure() = 0;

    // The profile of the current connection; false and nothing stored when there is none.
    virtual bool GetConnectedProfileName(QString* name) = 0;
};

Q_DECLARE_INTERFACE(IDialupUIService, "com.kestra.orbisdial.plugin.IDialupUIService")

#endif
