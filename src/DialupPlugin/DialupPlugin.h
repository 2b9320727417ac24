// Connects with a profile of the settings plug-in, which it knows through INetConnectSetting alone.
//
// It dials the simulated modem: after a delay the outcome is the one that the object's properties name (see
// IDialupUIService.h). With any other modem it refuses. A user name and password that it asks for are needed by
// no one here, since the simulated network believes every caller: they end with the prompt.
#ifndef ORBISDIAL_DIALUPPLUGIN_H
#define ORBISDIAL_DIALUPPLUGIN_H

#include <QPointer>
#include <QTimer>

#include "IBasePlugin.h"
#include "IDialupUIService.h"
#include "INotify.h"
#include "NetConnectRecords.h"

class CredentialsPrompt;
class INetConnectSetting;

class DialupPlugin : public QObject, public IBasePlugin, public INotify, public IDialupUIService {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.kestra.orbisdial.plugin.IBasePlugin")
    Q_INTERFACES(IBasePlugin INotify IDialupUIService)

public:
    DialupPlugin();

    void Release() override {}
    int GetLastError() override { return 0; }
    void OnDestroy() override;
    void UnSDKRegisterEvent() override {}
    int Init() override { return 1; }
    int GetPluginType() override { return DialupPluginKind; }
    QString GetCLSID() override { return QStringLiteral(ORBISDIAL_DIALUP_CLSID); }
    int GetVersion() override { return 0; }
    QString GetPluginName() override { return QStringLiteral("DialupPlugin"); }
    bool IsAllowRelease() override { return false; }
    int QueryInterface(int id, QObject** out) override;

    int Notify(unsigned int event, unsigned int param1, unsigned int param2) override;

    // A connection outlives its profile: one that is up stays up when its profile is deleted. Only one that
    // still waits for the user's answer is given up.
    int Connect(QString profileName) override;
    int Disconnect() override;
    bool IsConnected() override { return m_State == Connected; }
    ConnectionState GetConnectionState() override { return m_State; }
    QString GetLastFailure() override;
    bool GetConnectedProfileName(QString* name) override;

private:
    enum Status { Begun = 0, Refused = 1, ObjectMissing = 13, NoProfile = 23 };

    int findProfile(DialupProfile* profile);
    int checkModem();
    bool profileExists(DialupProfile* profile) const;
    bool mustAsk(const DialupProfile& profile) const;
    void ask(const DialupProfile& profile);
    void answered(int result);
    void closePrompt();
    void startTimer();
    void timeout();
    void finishDialling();
    int refuse(int status, const char* reason);
    void fail(const char* reason);
    void setState(ConnectionState state);

    ConnectionState m_State = Disconnected;
    QString m_ProfileName;            // of the connection that is up or on its way
    const char* m_Failure = nullptr;  // the string ID of the last failure
    QTimer m_Timer;
    QPointer<CredentialsPrompt> m_Prompt;
};

#endif
