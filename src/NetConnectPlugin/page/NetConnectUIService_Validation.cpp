// SPDX-License-Identifier: MIT
#include "NetConnectProfileRules.h"
#include "NetConnectUIService.h"

// Tells the user of the first rule that is broken. After a message, nothing of the service is touched.
bool CNetConnectUIService::isValidProfile() {
    if (!m_Page.name || !m_Page.profiles || !m_Page.accessNumber || !m_Page.apn) return false;
    const QString name = enteredName();
    if (!NetConnectProfileRules::isNamePresent(name)) return refuse(text("IDS_SETTING_PROMPT_PROFILE_NAME"));
    if (!isProfileExist(findMarked(name), findShown(name))) return false;
    if (!NetConnectProfileRules::isNameAcceptable(name))
        return refuse(text("IDS_MSG_CONNECTSETTINGDLG_PROFILENAMEERR") +
                      QString::fromLatin1(NetConnectProfileRules::ForbiddenNameCharacters));
    if (!NetConnectProfileRules::isAccessNumberPresent(m_Page.accessNumber->text()))
        return refuse(text("IDS_MSG_CONNECTSETTINGDLG_NULLNUMBER"));
    if (!NetConnectProfileRules::isAPNAcceptable(m_Page.apn->text()))
        return refuse(text("IDS_SETTING_PROMPT_APN_ERROR"));
    return true;
}

// The entry that carries the mark, when it is the one of this name.
int CNetConnectUIService::findMarked(const QString& name) const {
    return m_nDefaultIndex >= 0 && m_strMarkedName == name ? m_nDefaultIndex : -1;
}

// The entry that reads so, be it by its mark; of several, the one that is edited.
int CNetConnectUIService::findShown(const QString& text) const {
    const int own = m_Page.profiles->currentIndex();
    return own >= 0 && m_Page.profiles->itemText(own) == text ? own : m_Page.profiles->findText(text);
}

// Despite its name: true when the name is free for this save. Tells the user when it is not.
bool CNetConnectUIService::isProfileExist(int markedIndex, int plainIndex) {
    if (!m_Page.profiles) return false;
    const int own = m_bEditExisting ? m_Page.profiles->currentIndex() : -1;
    const bool free = (markedIndex == -1 || markedIndex == own) && (plainIndex == -1 || plainIndex == own);
    return free || refuse(text("IDS_SETTING_PROMPT_PROFILE_NAME_SAME"));
}

bool CNetConnectUIService::refuse(const QString& message) const {
    tell(message, m_pNetConnectWidget);
    return false;
}
