// SPDX-License-Identifier: MIT
#include "NetConnectUIService.h"

#include <QApplication>
#include <QFontMetrics>

#include "CallTrace.h"
#include "Change.h"
#include "CommonUtils.h"
#include "NetConnectAdvancedSettingDlg.h"
#include "NetConnectPageWatch.h"
#include "NetConnectPresetLibrary.h"
#include "NetConnectReloadGate.h"
#include "NetConnectSettingUILogic.h"
#include "NetConnectWipe.h"
#include "Startup.h"
#include "Trace.h"

CNetConnectUIService* CNetConnectUIService::m_pInstance = nullptr;

CNetConnectUIService* CNetConnectUIService::instance() {
    try {
        if (!m_pInstance) m_pInstance = new CNetConnectUIService;
    } catch (...) {
        // The host must live on without the page.
    }
    return m_pInstance;
}

CNetConnectUIService::CNetConnectUIService() : m_pReloadGate(new NetConnectReloadGate(this)) {
    CallTrace trace(__FILE__, "CNetConnectUIService");
    connect(m_pReloadGate, SIGNAL(reload()), this, SLOT(onDeviceInitailize()));
}

CNetConnectUIService::~CNetConnectUIService() {}

void CNetConnectUIService::Destroy() {
    if (m_pInstance) m_pInstance->OnDestroy();
    delete m_pInstance;
    m_pInstance = nullptr;
}

void CNetConnectUIService::OnDestroy() {
    m_pReloadGate->close();
    delete m_pPresetLibrary;
    m_pPresetLibrary = nullptr;
    NetConnectSettingUILogic::Destroy();
    NetConnectAdvancedSettingDlg::Destroy();
    m_pLogic = nullptr;
    m_pAdvancedDlg = nullptr;
    if (m_Page.password) wipeText(m_Page.password);
    delete m_pImportExportDialog;
    delete m_pNetConnectWidget;
    forgetPage();
    m_pPluginContainer = nullptr;
    m_pNotifyServicePlugin = nullptr;
    m_pNotifyService = nullptr;
    m_bActive = m_bHiddenWhileOpen = m_bClosedByButton = false;
    m_bImporting = m_bReloadPending = m_bListAwaited = m_bBrowsed = false;
}

void CNetConnectUIService::forgetPage() {
    m_pNetConectLayout = m_pProfileNameLayout = nullptr;
    m_pDialuptabLayout = m_pBtnOtherLayout = m_pGroupBoxLayout = nullptr;
    m_pApngrpLayout = m_pSMSCgrpLayout = nullptr;
    m_pNetConnectWidget = m_pDialupTabWidget = nullptr;
    m_pTabWidget = nullptr;
    m_Page = PageWidgets();
    m_pImportExportDialog = nullptr;
    m_pImportExportWidget = nullptr;
    m_pImportExportTree = nullptr;
    m_pProfileRootItem = m_pCurrentItem = nullptr;
    m_pBtnImportExportOk = m_pBtnImportExportCancel = m_pBtnImportExportBrowse = nullptr;
    m_nDefaultIndex = -1;
    endEdit();
}

bool CNetConnectUIService::Init() {
    CallTrace trace(__FILE__, "Init", "%s: %s: called", "%s: %s: exit");
    if (m_pNetConnectWidget) return true;
    NetConnectSettingUILogic::ReadAhead();
    QFontMetrics(QApplication::font()).height();  // the first font of a process takes longer than the files
    m_pLogic = NetConnectSettingUILogic::GetInstance(NetConnectSettingUILogic::WhenNeeded);
    if (!m_pLogic) return false;
    connect(m_pLogic, SIGNAL(DeviceInit()), m_pReloadGate, SLOT(request()), Qt::UniqueConnection);
    connect(this, SIGNAL(SysModeChangedSignal()), this, SLOT(onDeviceInitailize()), Qt::UniqueConnection);
    m_pLogic->PublishStatus(this);
    m_pLogic->RegisterDevice();
    m_pPresetLibrary = new NetConnectPresetLibrary(m_pLogic, this);
    connect(m_pPresetLibrary, SIGNAL(added(QString)), this, SLOT(onProfileAdded(QString)));
    initailizeUI();
    if (m_pAdvancedDlg) m_pAdvancedDlg->InitAdvanceUI(m_pNetConnectWidget);
    enableDisableUiWidget(false);
    m_bListAwaited = m_pLogic->AreProfilesAwaited();
    if (!m_bListAwaited) rebuildList();
    return true;
}

void CNetConnectUIService::unSDKRegisterEvent() {
    CallTrace trace(__FILE__, "unSDKRegisterEvent", "%s: %s called", "%s: %s exit");
    if (m_pLogic) m_pLogic->UnRegisterDevice();
}

bool CNetConnectUIService::isObjectMemoryAllocationFail() const {
    return !m_pNetConectLayout || !m_pDialuptabLayout || !m_pBtnOtherLayout || !m_pGroupBoxLayout ||
           !m_pProfileNameLayout || !m_pApngrpLayout || !m_pSMSCgrpLayout || !m_pNetConnectWidget || !m_pTabWidget ||
           !m_pDialupTabWidget;
}

int CNetConnectUIService::Notify(unsigned int event, unsigned int, unsigned int) {
    if (event == NotifyLanguageChanged) {
        if (m_pLogic) m_pLogic->Follow(false);
        if (m_pNetConnectWidget) setLanguage();
        if (m_pAdvancedDlg) m_pAdvancedDlg->SetLanguage();
    }
    if (event == NotifySystemModeChanged) {
        if (m_pLogic) m_pLogic->ResetFlags();
        emit SysModeChangedSignal();
    }
    return 0;
}

void CNetConnectUIService::onDeviceInitailize() {
    if (!m_pLogic) return;
    m_bReloadPending = m_bImporting;
    if (m_bReloadPending) return;  // the import works on the lists that a reload would replace
    m_pLogic->Init();
    applySettingsFromConfigFile();
    rebuildList();
    if (!notifyService()) findNotifyService();
    notifyProfilesChanged(ORBISDIAL_DIALUP_CLSID);
}

NetConnectSettingUILogic* CNetConnectUIService::logic(bool initialise) {
    if (m_pLogic) return m_pLogic;
    m_pLogic = NetConnectSettingUILogic::GetInstance();
    if (m_pLogic && initialise) m_pLogic->Init();
    return m_pLogic;
}

QString CNetConnectUIService::tr(QString key) const { return Change::tr(key, QString::fromLatin1("NetConnectPlugin")); }

QString CNetConnectUIService::text(const char* id) const { return tr(QString::fromLatin1(id)); }

QString CNetConnectUIService::defaultMark() const {
    const QString mark = text("IDS_STC_NETCONNECTSETTINGDLG_DEFAULT");
    if (mark.isEmpty()) return QString();  // a lone blank would be stripped out of every name
    const bool mirrored = QApplication::layoutDirection() == Qt::RightToLeft;
    return QLatin1Char(' ') + (mirrored ? CommonUtils::ParanthesisCorrection(mark) : mark);
}

// For a name from outside: a profile of that very name comes first.
QString CNetConnectUIService::withoutMark(const QString& name) const {
    const QString mark = defaultMark();
    if (mark.isEmpty() || name.indexOf(mark) <= 0 || findProfile(name) >= 0) return name;
    return QString(name).remove(mark);
}

void CNetConnectUIService::tell(const QString& message, QWidget* parent) const {
    CommonUtils::ShowMessage(QMessageBox::Information, parent, text("IDS_PROMPT_CAPTION"), message,
                             QString::fromLatin1("IDS_OK"));
}

int CNetConnectUIService::question(QMessageBox::Icon icon, const QString& message, QWidget* parent,
                                   CommonUtils::MessageAnswer defaultAnswer) const {
    return CommonUtils::ShowMessage(icon, parent, text("IDS_PROMPT_CAPTION"), message, QString::fromLatin1("IDS_YES"),
                                    QString::fromLatin1("IDS_NO"), QString(), QString(), true,
                                    Qt::WindowCloseButtonHint, defaultAnswer);
}

IDialupUIService* CNetConnectUIService::GetDialUpPlugin() {
    IDialupUIService* service = findPeer<IDialupUIService>(ORBISDIAL_DIALUP_CLSID, DialupPluginKind);
    if (!service)
        qDebug("Failed to get plugin IDialupUIService %s: %s: %s:", traceTime().constData(), __FILE__,
               "GetDialUpPlugin");
    return service;
}

bool CNetConnectUIService::isProfileConnected(QString name) {
    IDialupUIService* dialup = GetDialUpPlugin();
    QString connected;
    return dialup && dialup->GetConnectedProfileName(&connected) && connected == withoutMark(name);
}

bool CNetConnectUIService::isConnectionUp() {
    IDialupUIService* dialup = GetDialUpPlugin();
    return dialup && dialup->IsConnected();
}

void CNetConnectUIService::findNotifyService() {
    m_pPluginContainer = Startup::GetPluginContainer();
    m_pNotifyServicePlugin = findPeer<QObject>(ORBISDIAL_NOTIFYSERVICE_CLSID, NotifyServicePluginKind);
    m_pNotifyService = qobject_cast<INotifyService*>(m_pNotifyServicePlugin.data());
    if (m_pPageWatch) m_pPageWatch->listenTo(m_pNotifyServicePlugin);
}

INotifyService* CNetConnectUIService::notifyService() const {
    return m_pNotifyServicePlugin ? m_pNotifyService : nullptr;
}

void CNetConnectUIService::notifyProfilesChanged(const char* clsid) const {
    if (INotifyService* service = notifyService())
        service->SendNotify(QString::fromLatin1(clsid), NotifyProfilesChanged, 0, 0);
}
