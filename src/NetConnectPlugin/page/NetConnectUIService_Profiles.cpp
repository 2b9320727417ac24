// SPDX-License-Identifier: MIT
#include "NetConnectSettingUILogic.h"
#include "NetConnectUIService.h"

int CNetConnectUIService::IsIMSIROAMEnable() { return logic(false) ? m_pLogic->IsIMSIROAMSettingEnable() : 0; }

int CNetConnectUIService::GetAllDialUpProfile(QList<QString>* names) {
    return logic(false) ? m_pLogic->GetAllDialUpProfile(names) : StatusNoLogic;
}

int CNetConnectUIService::GetDialUpProfile(QString name, DialupProfile* profile) {
    return logic(false) ? m_pLogic->GetDialUpProfile(name, profile) : StatusNoLogic;
}

int CNetConnectUIService::SaveDialUpProfile(DialupProfile profile) {
    if (!logic(false)) return StatusNoLogic;
    m_pLogic->OverwriteDialUpProfile(profile);
    rebuildList();
    if (m_Edit.open || !m_Page.profiles) return 0;
    selectProfile(profile.name);
    enableDisableUiWidget(false);
    return 0;
}

void CNetConnectUIService::onProfileAdded(const QString& name) {
    rebuildListUnderSelection();
    if (!m_Edit.open) selectProfile(name);
    if (!notifyService()) findNotifyService();
    notifyProfilesChanged(ORBISDIAL_DIALUP_CLSID);
    notifyProfilesChanged(ORBISDIAL_HOST_LISTENER_CLSID);
}

int CNetConnectUIService::GetDefaultDialUpProfileName(QString* name) {
    if (!name || !logic(true)) return StatusNoLogic;
    QList<QString> names;
    m_pLogic->GetAllDialUpProfile(&names);
    QString defaultName;
    m_pLogic->GetDefaultDialUpProfileName(&defaultName);
    *name = names.contains(defaultName) ? defaultName : QString::fromLatin1("");
    return 0;
}

int CNetConnectUIService::SetDefaultDialUpProfileName(QString name) {
    if (!logic(true) || !m_Page.profiles) return StatusNoLogic;
    if (name.isEmpty() || withoutMark(name) != name) return 0;
    m_pLogic->SetDefaultDialUpProfileName(name, true);
    selectDefaultProfile();
    return 0;
}

UserPrompt CNetConnectUIService::GetUserPromptInfo() {
    return logic(true) ? m_pLogic->GetUserNamePasswdPromptInfo() : UserPrompt();
}

int CNetConnectUIService::GetFunctionConfigStringValues(QString key, QString* values) {
    return m_pLogic ? m_pLogic->GetFunctionConfigStringValues(key, values) : StatusNoLogic;
}
