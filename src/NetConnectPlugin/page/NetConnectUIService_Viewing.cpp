// SPDX-License-Identifier: MIT
#include <QStringListModel>

#include "CallTrace.h"
#include "NetConnectPageWatch.h"
#include "NetConnectSettingUILogic.h"
#include "NetConnectUIService.h"
#include "NetConnectWipe.h"
#include "Trace.h"
#include "TruthText.h"

namespace {

void setTextFromStart(QLineEdit* edit, const QString& text) {
    edit->setText(text);
    edit->setCursorPosition(0);
}

}  // namespace

void CNetConnectUIService::rebuildList() {
    showAllProfiles();
    selectDefaultProfile();
}

void CNetConnectUIService::rebuildListUnderSelection() {
    const QString name = currentProfileName();
    rebuildList();
    if (!m_Edit.open) selectProfile(name);
}

// Shows what another program stored, and stores nothing itself. An open edit meets it when it is saved.
void CNetConnectUIService::followUserFile() {
    if (!m_pLogic || !m_Page.profiles || m_bListAwaited || m_bImporting || m_Edit.open) return;
    if (!m_pLogic->IsUserFileNewer(m_nShownRevision)) return;
    m_pLogic->Follow(true);  // for whoever is told and lists, too
    rebuildListUnderSelection();
    notifyProfilesChanged(ORBISDIAL_DIALUP_CLSID);
    notifyProfilesChanged(ORBISDIAL_HOST_LISTENER_CLSID);
}

void CNetConnectUIService::showAllProfiles() {
    if (!m_Page.profiles || !m_pLogic || !m_Page.deleteProfile || !m_Page.edit || !m_Page.setDefault) return;
    m_bListAwaited = false;
    m_nDefaultIndex = -1;
    m_Page.profiles->clear();  // the mark goes along
    m_DefaultAPNProfileList.clear();
    QList<QString> names;
    if (m_pLogic->GetAllDialUpProfile(&names) == 0 && !names.isEmpty()) {
        m_DefaultAPNProfileList = m_pLogic->GetDefaultAPNProfileList();
        m_Page.profileNames->setStringList(QStringList(names));
        m_Page.profiles->setCurrentIndex(0);
    }
    m_nShownRevision = m_pLogic->UserFileRevision();
    if (m_pPageWatch) m_pPageWatch->watchFile(m_pLogic->UserFilePath());
    selectEditedProfile();
    applyProfileLocks();
}

void CNetConnectUIService::selectDefaultProfile() {
    QString name;
    if (!m_pLogic || m_pLogic->GetDefaultDialUpProfileName(&name) != 0 || !m_Page.profiles) return;
    unmarkDefaultProfile();
    const int index = name.isEmpty() ? -1 : findProfile(name);  // an empty name stands for no default
    if (index >= 0) {
        m_nDefaultIndex = index;
        markDefaultProfile(name);
    }
    selectEditedProfile();
}

void CNetConnectUIService::markDefaultProfile(const QString& name) {
    m_strMarkedName = name;
    m_Page.profiles->setItemText(m_nDefaultIndex, name + defaultMark());
    m_Page.profiles->setCurrentIndex(m_nDefaultIndex);
    onSelectProfile(name);
    qDebug("%s : %s : %s Default profile has been set", traceTime().constData(), __FILE__, "selectDefaultProfile");
}

void CNetConnectUIService::unmarkDefaultProfile() {
    if (m_nDefaultIndex >= 0) m_Page.profiles->setItemText(m_nDefaultIndex, m_strMarkedName);
    m_nDefaultIndex = -1;
}

void CNetConnectUIService::selectProfile(const QString& name) {
    const int index = findProfile(name);
    if (index >= 0) m_Page.profiles->setCurrentIndex(index);
}

void CNetConnectUIService::selectEditedProfile() {
    if (!m_Edit.open) return;
    const QString langid = m_Edit.begun.langid;  // a name that follows the language
    const QString translation = langid.isEmpty() ? QString() : tr(langid);
    if (!translation.isEmpty() && findProfile(m_Edit.name) < 0 && findProfile(translation) >= 0)
        m_Edit.name = translation;
    const int index = findProfile(m_Edit.name);
    // Deleted by another program: without a current profile, every name in the list is another one's.
    if (index >= 0 || m_bEditExisting) m_Page.profiles->setCurrentIndex(index);
    if (m_bEditExisting) m_strEditProfileName = index < 0 ? m_Edit.name : m_Page.profiles->itemText(index);
}

QString CNetConnectUIService::profileName(int index) const {
    return index == m_nDefaultIndex ? m_strMarkedName : m_Page.profiles->itemText(index);
}

bool CNetConnectUIService::isPreset(int index) const { return m_DefaultAPNProfileList.contains(profileName(index)); }

int CNetConnectUIService::findProfile(const QString& name) const {
    for (int i = 0; m_Page.profiles && i < m_Page.profiles->count(); ++i)
        if (profileName(i) == name) return i;
    return -1;
}

QString CNetConnectUIService::currentProfileName() const {
    const int index = m_Page.profiles->currentIndex();
    return index < 0 ? QString() : profileName(index);
}

// The list says which of two entries that read alike is meant; from elsewhere a name may come with its mark.
void CNetConnectUIService::onSelectProfile(QString strProfile) {
    if (!m_pLogic || m_Edit.open || m_nOperation == EnteringNew || m_nOperation == EditingExisting) return;
    const bool fromList = m_Page.profiles && strProfile == m_Page.profiles->currentText();
    m_pLogic->GetDialUpProfile(fromList ? currentProfileName() : withoutMark(strProfile), &m_CurrentProfile);
    m_strProfileType = m_CurrentProfile.type;
    m_strReadOnly = m_CurrentProfile.readonly;
    showAPNSetting();
    if (m_Page.askUserName) m_Page.askUserName->setChecked(isTrue(m_CurrentProfile.popusername));
    applyProfileLocks();
    showAuthenticationSetting();
    setProtocolSettings(&m_CurrentProfile);
    wipeText(&m_CurrentProfile.password);  // its field holds it
}

void CNetConnectUIService::showAPNSetting() {
    if (!m_Page.apn || !m_Page.apnDynamic || !m_Page.apnStatic) return;
    QRadioButton* const kind = isTrue(m_CurrentProfile.autoapn) ? m_Page.apnDynamic : m_Page.apnStatic;
    kind->setChecked(true);
    setTextFromStart(m_Page.apn, m_CurrentProfile.apn);
}

void CNetConnectUIService::showAuthenticationSetting() {
    if (m_Page.accessNumber) setTextFromStart(m_Page.accessNumber, m_CurrentProfile.phonenumber);
    if (m_Page.user) setTextFromStart(m_Page.user, m_CurrentProfile.user);
    if (m_Page.password) m_Page.password->setText(m_CurrentProfile.password);
}

void CNetConnectUIService::setProtocolSettings(DialupProfile* profile) {
    if (m_Page.chap) m_Page.chap->setChecked(isTrue(profile->chap));
    if (m_Page.pap) m_Page.pap->setChecked(isTrue(profile->pap));
}

void CNetConnectUIService::putProfileData(DialupProfile* profile) {
    profile->name = enteredName();
    profile->type = m_strProfileType;
    profile->readonly = m_strReadOnly;
    profile->phonenumber = m_Page.accessNumber->text();
    profile->user = m_Page.user->text();
    profile->password = m_Page.password->text();
    profile->apn = m_Page.apn->text();
    profile->autoapn = boolText(m_Page.apnDynamic->isChecked() || m_Page.apn->text().isEmpty());
    profile->popusername = boolText(m_Page.askUserName->isChecked());
    if (profile->Remember.isEmpty()) profile->Remember = m_strDefaultRemember;
    profile->chap = boolText(m_Page.chap->isChecked());
    profile->pap = boolText(m_Page.pap->isChecked());
}

// --- what may be done now ---

void CNetConnectUIService::enableDisableUiWidget(bool editing) {
    if (!m_pNetConnectWidget) return;
    enableDisableUIButtons(editing);
    const bool dynamic = m_Page.apnDynamic->isChecked();
    m_Page.apnDynamic->setEnabled(editing);
    m_Page.apnStatic->setEnabled(editing);
    m_Page.apn->setEnabled(editing && !dynamic);
    if (dynamic) m_Page.apn->clear();
    m_Page.apn->setCursorPosition(0);
    m_Page.accessNumber->setEnabled(editing);
    m_Page.accessNumber->setCursorPosition(0);
    enableDisableNamePasswordEdits(editing);
    m_Page.askUserName->setEnabled(editing);
    m_Page.chap->setEnabled(editing);
    m_Page.pap->setEnabled(editing);
}

void CNetConnectUIService::enableDisableNamePasswordEdits(bool editing) {
    const UserPrompt prompt = m_pLogic ? m_pLogic->GetUserNamePasswdPromptInfo() : UserPrompt();
    const bool asked = isTrue(prompt.promptPwd) && isTrue(prompt.userCheck) && isTrue(prompt.disableNamePwd);
    QLineEdit* const edits[] = {m_Page.user, m_Page.password};
    for (QLineEdit* edit : edits) {
        edit->setEnabled(editing && !asked);
        edit->setCursorPosition(0);
    }
    m_Page.passwordHint->refresh();
}

void CNetConnectUIService::enableDisableUIButtons(bool editing) {
    QPushButton* const viewing[] = {m_Page.newProfile, m_Page.importProfiles, m_Page.exportProfiles};
    for (QPushButton* button : viewing) lockButton(button, editing ? "IDS_NETCONNECT_TIP_EDIT_OPEN" : nullptr);
    QPushButton* const ending[] = {m_Page.save, m_Page.undo};
    for (QPushButton* button : ending) lockButton(button, editing ? nullptr : "IDS_NETCONNECT_TIP_NO_EDIT");
    applyProfileLocks();
}

void CNetConnectUIService::enableDisableDefaultButton(bool enable) {
    if (!m_Page.setDefault || !m_Page.profiles) return;
    lockButton(m_Page.setDefault, enable ? defaultLock() : "IDS_NETCONNECT_TIP_EDIT_OPEN");
}

const char* CNetConnectUIService::defaultLock() {
    if (m_Edit.open) return "IDS_NETCONNECT_TIP_EDIT_OPEN";
    if (m_Page.profiles->count() == 0) return "IDS_NETCONNECT_TIP_NO_PROFILE";
    return isConnectionUp() ? "IDS_NETCONNECT_TIP_DEFAULT_CONNECTED" : nullptr;
}

// For a button that a connection locked under the pointer. Afterwards the service may be gone.
bool CNetConnectUIService::tellLock(const char* reason) {
    applyProfileLocks();
    if (reason) tell(text(reason), m_pNetConnectWidget);
    return reason;
}

void CNetConnectUIService::applyProfileLocks() {
    if (!m_Page.edit || !m_Page.deleteProfile || !m_Page.profiles) return;
    const char* const reason = profileLock();
    lockButton(m_Page.edit, reason);
    lockButton(m_Page.deleteProfile, reason);
    showLock(reason);
    enableDisableDefaultButton(!m_Edit.open);
}

const char* CNetConnectUIService::profileLock() {
    if (m_Edit.open) return "IDS_NETCONNECT_TIP_EDIT_OPEN";
    if (m_Page.profiles->count() == 0) return "IDS_NETCONNECT_TIP_NO_PROFILE";
    const QString name = currentProfileName();
    if (isProfileConnected(name)) return "IDS_NETCONNECT_TIP_PROFILE_CONNECTED";
    if (m_DefaultAPNProfileList.contains(name)) return "IDS_NETCONNECT_TIP_PROFILE_PRESET";
    return isTrue(m_CurrentProfile.readonly) ? "IDS_NETCONNECT_TIP_PROFILE_READONLY" : nullptr;
}

void CNetConnectUIService::lockButton(QPushButton* button, const char* reason) {
    const QString why = reason ? text(reason) : QString();
    button->setEnabled(!reason);
    button->setToolTip(why);
    button->setAccessibleDescription(why);
}

// A locked profile looks locked, also where no pointer brings the tips up.
void CNetConnectUIService::showLock(const char* reason) {
    const struct {
        const char* reason;
        const char* notice;
    } rows[] = {{"IDS_NETCONNECT_TIP_PROFILE_READONLY", "IDS_NETCONNECT_LOCKED_READONLY"},
                {"IDS_NETCONNECT_TIP_PROFILE_PRESET", "IDS_NETCONNECT_LOCKED_PRESET"},
                {"IDS_NETCONNECT_TIP_PROFILE_CONNECTED", "IDS_NETCONNECT_LOCKED_CONNECTED"}};
    const char* notice = nullptr;
    for (const auto& row : rows)
        if (qstrcmp(reason, row.reason) == 0) notice = row.notice;
    m_Page.lockNotice->setText(notice ? text(notice) : QString());
    m_Page.lockNotice->setVisible(notice);
}

void CNetConnectUIService::applySettingsFromConfigFile() {
    if (!m_Page.apnGroup || !m_Page.importProfiles || !m_Page.exportProfiles || !m_pLogic || !m_Page.askUserName)
        return;
    m_Page.apnGroup->setVisible(isAPNGroupWanted());
    m_Page.importProfiles->setVisible(isFunctionOn("IMPORT"));
    m_Page.exportProfiles->setVisible(isFunctionOn("IMPORT"));
    m_Page.passwordHint->setKeyedMethod(isFunctionOn("ENCRYPT"));
    const UserPrompt prompt = m_pLogic->GetUserNamePasswdPromptInfo();
    m_Page.askUserName->setVisible(isTrue(prompt.promptPwd) && isTrue(prompt.userCheck));
    if (!m_Edit.open && isTrue(prompt.promptPwd) && isTrue(prompt.checkNamePwd)) m_Page.askUserName->setChecked(true);
}

bool CNetConnectUIService::isAPNGroupWanted() {
    const bool configured = isFunctionOn("APN");
    const bool wanted = configured || m_pLogic->IsEhrpdSubMode();
    const char* const line = configured ? "%s: %s: wcdma show apn groupbox"
                             : wanted   ? "%s: %s: eHrpd show apn groupbox"
                                        : "%s: %s: cdma hide apn groupbox";
    CallTrace trace(__FILE__, "applySettingsFromConfigFile", line);
    return wanted;
}

bool CNetConnectUIService::isFunctionOn(const char* key) {
    bool on = false;
    m_pLogic->GetFunctionConfigValue(QString::fromLatin1(key), &on);
    return on;
}
