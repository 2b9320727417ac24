// SPDX-License-Identifier: MIT
#include "NetConnectSettingUIPlugin.h"

#include "CallTrace.h"
#include "NetConnectStatus.h"
#include "NetConnectUIService.h"

ORBISDIAL_EXPORT_PLUGIN(CNetConnectSettingUIPlugin)

extern "C" Q_DECL_EXPORT const char* qt_plugin_query_verification_data() {
    return "pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=4.6.2\ndebug=false\nbuildkey=i386 linux g++-4 full-config";
}

CNetConnectSettingUIPlugin::CNetConnectSettingUIPlugin() : m_pNetConnectUIService(nullptr) {
    CallTrace trace(__FILE__, "CNetConnectSettingUIPlugin");
    m_pNetConnectUIService = CNetConnectUIService::instance();
}

bool CNetConnectSettingUIPlugin::hasService(const char* function) const {
    if (!m_pNetConnectUIService) qDebug("%s: %s m_pNetConnectUIService == NULL", __FILE__, function);
    return m_pNetConnectUIService;
}

int CNetConnectSettingUIPlugin::ShowWindow(QWidget* parent, QRect& rect) {
    return hasService("ShowWindow") ? m_pNetConnectUIService->ShowWindow(parent, rect) : 0;
}

int CNetConnectSettingUIPlugin::DoModal() { return 0; }

void CNetConnectSettingUIPlugin::Hide() {
    if (m_pNetConnectUIService) m_pNetConnectUIService->Hide();
}

void CNetConnectSettingUIPlugin::FitSize(QRect&) {}

bool CNetConnectSettingUIPlugin::IsReady() { return false; }

bool CNetConnectSettingUIPlugin::ChangeLang(const QString& lang) { return !lang.isEmpty(); }

int CNetConnectSettingUIPlugin::Init() { return hasService("Init") ? m_pNetConnectUIService->Init() : 0; }

int CNetConnectSettingUIPlugin::GetPluginType() { return 0; }

QString CNetConnectSettingUIPlugin::GetCLSID() { return QString(); }

int CNetConnectSettingUIPlugin::GetVersion() { return 0; }

QString CNetConnectSettingUIPlugin::GetPluginName() { return QString::fromLatin1("NetConnectSettingUIPlugin"); }

bool CNetConnectSettingUIPlugin::IsAllowRelease() { return false; }

int CNetConnectSettingUIPlugin::QueryInterface(int id, QObject** out) {
    CallTrace trace(__FILE__, "QueryInterface");
    if (id != SettingPageInterface && id != NetConnectSettingInterface) return 0;
    if (!out) return NetConnectStatus::FileMissing;
    try {
        m_pNetConnectUIService = CNetConnectUIService::instance();
        *out = m_pNetConnectUIService;
    } catch (...) {
        return 0;
    }
    return 1;
}

void CNetConnectSettingUIPlugin::UnSDKRegisterEvent() {
    CallTrace trace(__FILE__, "UnSDKRegisterEvent", "%s: %s called", "%s: %s exit");
    if (CNetConnectUIService* service = CNetConnectUIService::instance()) service->unSDKRegisterEvent();
}

void CNetConnectSettingUIPlugin::Release() {}

int CNetConnectSettingUIPlugin::GetLastError() { return 0; }

void CNetConnectSettingUIPlugin::OnDestroy() {
    CNetConnectUIService::Destroy();
    m_pNetConnectUIService = nullptr;
}

int CNetConnectSettingUIPlugin::Notify(unsigned int event, unsigned int param1, unsigned int param2) {
    return hasService("Notify") ? m_pNetConnectUIService->Notify(event, param1, param2) : -1;
}
