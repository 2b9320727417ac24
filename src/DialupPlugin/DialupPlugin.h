// SPDX-License-Identifier: MIT
// Connects with a profile of the settings plug-in, which it knows through INetConnectSetting alone.
//
// Dialling is the device SDK's; here is what to dial with, whom to ask, and what to say. The connection may be another
// program's of ours: it is shown and can be ended all the same.
#ifndef ORBISDIAL_DIALUPPLUGIN_H
#define ORBISDIAL_DIALUPPLUGIN_H

#include <QPointer>
#include <memory>

#include "AutoConnector.h"
#include "DataConnection.h"
#include "DeviceEvents.h"
#include "IBasePlugin.h"
#include "IDialupUIService.h"
#include "INotify.h"
#include "NetConnectRecords.h"
#include "UsageRecorder.h"

class CredentialsPrompt;

class DialupPlugin : public QObject, public IBasePlugin, public INotify, public IDialupUIService {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.kestra.orbisdial.plugin.IBasePlugin")
    Q_INTERFACES(IBasePlugin INotify IDialupUIService)

public:
    DialupPlugin();
    ~DialupPlugin() override;

    void Release() override {}
    int GetLastError() override { return 0; }
    void OnDestroy() override;
    void UnSDKRegisterEvent() override;
    int Init() override;
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
    bool IsConnected() override { return GetConnectionState() == Connected; }
    ConnectionState GetConnectionState() override;
    QString GetLastFailure() override;
    bool GetConnectedProfileName(QString* name) override;

private:
    enum Status { Begun = 0, Refused = 1, CannotEnd = 2, ObjectMissing = 13, BadProfile = 22, NoProfile = 23 };

    // Why there is no connection: a failure of the SDK's, or else a text of ours. Empty: nothing to say.
    struct Problem {
        int failure = VRKS_FAILURE_NONE;
        QString words = {};
        const char* textId = nullptr;
    };

    int findProfile(DialupProfile* profile);
    int checkProfile(const DialupProfile& profile);
    int checkModem();
    int dial(const DialupProfile& profile);
    void dialAutomatically(const QString& profileName);

    void ask(const DialupProfile& profile);
    void answered(int result);
    void dialWith(const QString& user, const QString& password);
    void closePrompt();

    void readConnection();
    void takeConnection(bool isAnswer);  // to a call to dial: listeners are told, whatever came of it
    void showCall();
    void showProblem(const Problem& problem);
    int refuse(int status, const Problem& problem);
    void publishTexts();
    void publish(const char* name, const QString& text);
    QString notes() const;
    void notifyState();

    DataConnection m_Connection;  // as the listeners know it
    QString m_ProfileName;        // of what was tried last
    Problem m_Problem;
    DialupProfile m_Dialled;  // without its password
    int m_UsedPercent = 0;
    QPointer<CredentialsPrompt> m_Prompt;
    std::unique_ptr<DeviceEvents> m_Events;
    AutoConnector m_Automatic;
    UsageRecorder m_Usage;
};

#endif
