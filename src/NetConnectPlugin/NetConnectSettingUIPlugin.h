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

    virtual int ShowWindow(QWidget* parent, QRect& rect);
    virtual int DoModal();
    virtual void Hide();
    virtual void FitSize(QRect& rect);
    virtual bool IsReady();

    // True for any language code; the texts follow the host's event 320 instead.
    virtual bool ChangeLang(const QString& lang);

    virtual int Init();
    virtual int GetPluginType();
    virtual QString GetCLSID();
    virtual int GetVersion();
    virtual QString GetPluginName();
    virtual bool IsAllowRelease();

    // The numbers 4098 and 28689 both give the settings service, to be cast to ISettingUIPlugin or
    // INetConnectSetting.
    virtual int QueryInterface(int id, QObject** out);

    virtual void UnSDKRegisterEvent();
    virtual void Release();
    virtual int GetLastError();
    virtual void OnDestroy();
    virtual int Notify(unsigned int event, unsigned int param1, unsigned int param2);

private:
    bool hasService(const char* function) const;

    CNetConnectUIService* m_pNetConnectUIService;  // not owned
};

#endif
