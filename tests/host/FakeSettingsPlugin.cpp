// SPDX-License-Identifier: MIT
// A settings plug-in around FakeProfiles. Its Init() fails when the application's property "fake.initFails" is set.
#include "FakeProfiles.h"
#include "INotify.h"
#include "IUIPlugin.h"

class FakeSettingsPlugin : public QObject, public IUIPlugin, public INotify {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.kestra.orbisdial.plugin.IUIPlugin")
    Q_INTERFACES(IBasePlugin IUIPlugin INotify)

public:
    void Release() override {}
    int GetLastError() override { return 0; }
    void OnDestroy() override {
        Fake::record("OnDestroy");
        delete m_Profiles;
    }
    void UnSDKRegisterEvent() override { Fake::record("UnSDKRegisterEvent"); }
    int Init() override { return Fake::record("Init") && !Fake::get("fake.initFails").toBool(); }
    int GetPluginType() override { return 0; }
    QString GetCLSID() override { return QString(); }
    int GetVersion() override { return 0; }
    QString GetPluginName() override { return "FakeSettingsPlugin"; }
    bool IsAllowRelease() override { return false; }
    int QueryInterface(int id, QObject** out) override {
        if (!m_Profiles) m_Profiles = new FakeProfiles;
        *out = m_Profiles;
        return Fake::record("QueryInterface " + QString::number(id));
    }
    int ShowWindow(QWidget*, QRect&) override { return 0; }
    int DoModal() override { return 0; }
    void Hide() override {}
    void FitSize(QRect&) override {}
    bool IsReady() override { return false; }
    bool ChangeLang(const QString&) override { return false; }
    int Notify(unsigned int event, unsigned int, unsigned int) override {
        return Fake::record("Notify " + QString::number(event));
    }

private:
    QPointer<FakeProfiles> m_Profiles;
};

#include "FakeSettingsPlugin.moc"
