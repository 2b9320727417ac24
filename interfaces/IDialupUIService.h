// The dial-up plug-in, as other plug-ins see it.
#ifndef ORBISDIAL_IDIALUPUISERVICE_H
#define ORBISDIAL_IDIALUPUISERVICE_H

#include <QObject>
#include <QString>

// The class identifier and the kind under which the container finds the dial-up plug-in.
#define ORBISDIAL_DIALUP_CLSID "92804312-432E-401F-96BB-1C20D852815D"
enum { DialupPluginKind = 16401 };

// All operations are called on the GUI thread. Their order is part of the binary interface.
class IDialupUIService {
public:
    enum ConnectionState { Disconnected, Connecting, Connected, Disconnecting };

    virtual ~IDialupUIService() {}

    // Starts to connect with a profile; an empty name takes the default one. 0 when dialling has begun.
    virtual int Connect(QString profileName) = 0;

    virtual int Disconnect() = 0;

    // True while a connection is up.
    virtual bool IsConnected() = 0;

    virtual ConnectionState GetConnectionState() = 0;

    // Why the last connection attempt failed, for a person to read; empty after a success.
    virtual QString GetLastFailure() = 0;

    // The profile of the current connection; false and nothing stored when there is none.
    virtual bool GetConnectedProfileName(QString* name) = 0;
};

Q_DECLARE_INTERFACE(IDialupUIService, "com.kestra.orbisdial.plugin.IDialupUIService")

#endif
