// SPDX-License-Identifier: MIT
// The plug-in's entry object: what the host loads. It forwards everything to the settings service.
#ifndef ORBISDIAL_NETCONNECTSETTINGUIPLUGIN_H
#define ORBISDIAL_NETCONNECTSETTINGUIPLUGIN_H

#include "INotify.h"
#include "IUIPlugin.h"
#include "QtCompat.h"

class CNetConnectUIService;

// All operations are for the GUI thread. The order of the virtual operations is part of the binary interface.
class CNetConnectSettingUIPlugin : public QObject, public IUIPlugin, public INotify {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.kestra.orbisdial.plugin.IUIPlugin" FILE "NetConnectPlugin.json")
    Q_INTERFACES(IBasePlugin IUIPlugin INotify)

public:
    CNetConnectSettingUIPlugin();

    int ShowWindow(QWidget* parent, QRect& rect) override;
    int DoModal() override;
    void Hide() override;
    void FitSize(QRect& rect) override;
    bool IsReady() override;

    // True for any language code; the texts follow the host's event 320 instead.
    bool ChangeLang(const QString& lang) override;

    int Init() override;
    int GetPluginType() override;
    QString GetCLSID() override;
    int GetVersion() override;
    QString GetPluginName() override;
    bool IsAllowRelease() override;

    // The numbers 4098 and 28689 both give the settings service, to be cast to ISettingUIPlugin or
    // INetConnectSetting.
    int QueryInterface(int id, QObject** out) override;

    void UnSDKRegisterEvent() override;
    void Release() override;
    int GetLastError() override;
    void OnDestroy() override;
    int Notify(unsigned int event, unsigned int param1, unsigned int param2) override;

private:
    bool hasService(const char* function) const;

    CNetConnectUIService* m_pNetConnectUIService;  // not owned
};

#endif
