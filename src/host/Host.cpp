#include "Host.h"

#include <QApplication>
#include <QEvent>

#include "Change.h"
#include "CommonUtils.h"
#include "INetConnectSetting.h"
#include "ModemPanel.h"
#include "SettingsPages.h"
#include "Startup.h"

Host::Host() : m_Plugins(&m_NotifyService) {
    CommonUtils::SetMainWindow(&m_Window);
    Startup::GetPluginContainer()->AddPlugin(&m_NotifyService, ORBISDIAL_NOTIFYSERVICE_CLSID, NotifyServicePluginKind);
    m_NotifyService.AddListener(ORBISDIAL_HOST_LISTENER_CLSID, this);

    m_Refresh.setSingleShot(true);
    connect(&m_Refresh, &QTimer::timeout, &m_Window, &MainWindow::refresh);
    connect(&m_SettingsPage, &HostSettingsPage::languageChosen, this, &Host::changeLanguage);
    connectModemPanel();
    // A session that ends waits for no answer; a signal ends the event loop, and the pages go with what is open.
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this] { m_Window.pages()->abandon(); });

    m_Plugins.start(CommonUtils::GetPluginLibraryPath() + QStringLiteral("/plugins"));
    m_Window.pages()->setPages(m_Plugins.pages() + QVector<SettingsPage>{{&m_SettingsPage, &m_SettingsPage, "Host"}});
    m_Window.setProblems(m_Plugins.problems());
    watchSettings();
}

Host::~Host() {
    m_Window.pages()->clear();
    m_Plugins.stop();
    m_NotifyService.RemoveListener(this);
    Startup::GetPluginContainer()->RemovePlugin(&m_NotifyService);
    CommonUtils::SetMainWindow(nullptr);
}

bool Host::changeLanguage(const QString& code) {
    if (!Change::SetLanguage(code)) return false;
    m_Plugins.notifyAll(NotifyLanguageChanged);
    m_SettingsPage.retranslate();
    m_Window.retranslate();
    return true;
}

int Host::Notify(unsigned int event, unsigned int param1, unsigned int param2) {
    if (event == NotifyConnectionChanged) m_Plugins.notifyAll(event, param1, param2);
    m_Refresh.start();
    return 0;
}

bool Host::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::DynamicPropertyChange) m_Refresh.start();
    return QObject::eventFilter(watched, event);
}

void Host::watchSettings() {
    QObject* settings = findPeer<QObject>(ORBISDIAL_NETCONNECT_CLSID, NetConnectSettingKind);
    if (settings) settings->installEventFilter(this);
}

void Host::connectModemPanel() {
    ModemPanel* panel = m_Window.modemPanel();
    if (!panel) return;
    connect(panel, &ModemPanel::changed, &m_Window, &MainWindow::refresh);
    connect(panel, &ModemPanel::systemModeChanged, this, [this] { m_Plugins.notifyAll(NotifySystemModeChanged); });
}
