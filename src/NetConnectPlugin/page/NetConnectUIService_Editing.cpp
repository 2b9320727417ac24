// SPDX-License-Identifier: MIT
#include "NetConnectAdvancedSettingDlg.h"
#include "NetConnectSettingUILogic.h"
#include "NetConnectStoreAction.h"
#include "NetConnectUIService.h"
#include "NetConnectWipe.h"
#include "TruthText.h"

void CNetConnectUIService::beginEdit(Operation operation, const QString& shownName) {
    m_Edit.open = true;
    m_Edit.name = currentProfileName();
    m_bEditExisting = operation == EditingExisting;
    m_Page.profiles->hide();
    m_Page.name->setText(shownName);
    m_Edit.shownName = m_Page.name->text();
    m_Page.name->show();
    m_Page.name->setFocus(Qt::OtherFocusReason);
    m_Page.name->setSelection(m_Page.name->text().size(), -m_Page.name->text().size());  // the cursor is at 0
    m_nOperation = operation;
}

void CNetConnectUIService::forgetEdit() {
    wipeText(&m_Edit.shown.password);
    wipeText(&m_Edit.begun.password);
    m_Edit = OpenEdit();
}

void CNetConnectUIService::endEdit() {
    forgetEdit();
    m_bEditExisting = false;
    m_strEditProfileName = QString();
    m_nOperation = Idle;
}

void CNetConnectUIService::onClickNewProfileButton() {
    if (!m_Page.profiles || m_Edit.open) return;
    DialupProfile profile;
    if (m_pLogic) m_pLogic->NewDialUpProfileTemplate(&profile);
    beginEdit(EnteringNew, profile.name);
    m_CurrentProfile = profile;
    m_strDefaultRemember = profile.Remember;
    m_strProfileType = profile.type;
    m_strReadOnly = profile.readonly;
    showAPNSetting();
    showAuthenticationSetting();
    m_Page.askUserName->setChecked(isTrue(profile.popusername));
    enableDisableUiWidget(true);
    setProtocolSettings(&profile);
    wipeText(&profile.password);
    wipeText(&m_CurrentProfile.password);
}

void CNetConnectUIService::onClickEditButton() {
    if (!m_Page.profiles || !m_pLogic || m_Edit.open) return;
    const QString name = currentProfileName();
    rebuildList();  // another program may have changed the profile, or a connection have come up
    selectProfile(name);
    if (tellLock(profileLock()) || currentProfileName() != name) return;
    m_strEditProfileName = m_Page.profiles->currentText();
    beginEdit(EditingExisting, name);
    enableDisableUiWidget(true);
    m_pLogic->GetDialUpProfile(name, &m_Edit.begun);
    m_Edit.shown = enteredProfile();
}

// The stored name when what was shown is unchanged: the stored one may have followed the language meanwhile,
// or be longer than what can be typed.
QString CNetConnectUIService::enteredName() const {
    const QString typed = m_Page.name->text();
    return m_bEditExisting && typed == m_Edit.shownName ? m_Edit.name : typed;
}

bool CNetConnectUIService::onClickSaveButton() {
    if (!m_Edit.open || !m_pLogic) return false;
    m_nOperation = Saving;
    const QPointer<CNetConnectUIService> self(this);
    if (!isValidProfile()) {
        if (self) m_nOperation = Idle;
        return false;
    }
    DialupProfile profile = enteredProfile();
    const int status = storeProfile(profile);
    wipeText(&profile.password);
    if (status == 0)
        finishSave(profile.name);
    else
        refuseSave(status);
    return status == 0;
}

DialupProfile CNetConnectUIService::enteredProfile() {
    DialupProfile profile = m_CurrentProfile;
    putProfileData(&profile);
    return profile;
}

int CNetConnectUIService::storeProfile(const DialupProfile& profile) {
    if (!m_bEditExisting) return m_pLogic->AddDialUpProfile(profile);
    m_strEditProfileName = m_Edit.name;  // without its mark
    const NetConnectProfileEdit edit = {m_Edit.begun, m_Edit.shown, profile};
    return m_pLogic->MergeDialUpProfile(m_strEditProfileName, edit);
}

// What was typed stays; the list is read again, since another program may have changed it.
void CNetConnectUIService::refuseSave(int status) {
    m_nOperation = Idle;
    rebuildList();
    if (status == NetConnectSettingUILogic::NameTaken)
        return tell(text("IDS_SETTING_PROMPT_PROFILE_NAME_SAME"), m_pNetConnectWidget);
    m_Page.save->setToolTip(text("IDS_NETCONNECT_TIP_SAVE_FAILED") + QLatin1Char('\n') +
                            m_pLogic->LastStorageProblem().text());
    notifyProfilesChanged(ORBISDIAL_HOST_LISTENER_CLSID);  // the host shows the storage problem
}

void CNetConnectUIService::finishSave(const QString& name) {
    forgetEdit();
    wipeText(m_Page.password);
    rebuildList();
    m_Page.profiles->show();
    m_Page.name->hide();
    m_Page.profiles->setFocus();
    selectProfile(name);
    enableDisableUiWidget(false);
    endEdit();
    m_bHiddenWhileOpen = false;
    m_bClosedByButton = true;
    notifyProfilesChanged(ORBISDIAL_DIALUP_CLSID);
    notifyProfilesChanged(ORBISDIAL_HOST_LISTENER_CLSID);
}

void CNetConnectUIService::onClickUndoButton() {
    if (!m_Page.profiles || !m_Page.deleteProfile || !m_Page.edit || !m_Page.apnDynamic || !m_Page.setDefault) return;
    const bool dynamic = m_Page.apnDynamic->isChecked();
    if (m_Edit.open && !m_bEditExisting) m_strDefaultRemember = QString();
    forgetEdit();
    wipeText(m_Page.password);
    m_nOperation = Undoing;
    enableDisableUiWidget(false);
    if (m_Page.profiles->currentIndex() < 0) m_Page.profiles->setCurrentIndex(qMax(m_nDefaultIndex, 0));
    m_Page.profiles->show();
    m_Page.profiles->setFocus();
    onSelectProfile(m_Page.profiles->currentText());
    const bool marked = m_Page.profiles->currentIndex() == m_nDefaultIndex;
    if (!marked && dynamic && m_Page.apn->text().isEmpty()) m_Page.apnDynamic->setChecked(true);
    m_Page.name->hide();
    endEdit();
    followUserFile();  // what came meanwhile
}

void CNetConnectUIService::onClickDeleteButton() {
    if (!m_Page.profiles || tellLock(profileLock())) return;
    const QString name = currentProfileName();  // an event during the question may move the selection
    const QPointer<CNetConnectUIService> self(this);
    const int answer =
        question(QMessageBox::Question, text("IDS_SMSUI_DRAFT_DEL"), m_pNetConnectWidget, CommonUtils::SecondButton);
    if (!self || answer != CommonUtils::FirstButton || !m_Page.profiles || !m_pLogic || m_Edit.open) return;
    if (findProfile(name) < 0) return;  // another program was faster
    if (isProfileConnected(name)) return void(tellLock("IDS_NETCONNECT_TIP_PROFILE_CONNECTED"));
    deleteProfile(name);
}

void CNetConnectUIService::deleteProfile(const QString& name) {
    m_nOperation = Deleting;
    {
        NetConnectStoreAction action;
        m_pLogic->DelDialUpProfile(name);  // first, since it takes in a default that another program has set
        m_pLogic->ForgetDefault(name);
        action.commit();
    }
    rebuildList();
    m_Page.profiles->setCurrentIndex(0);
    m_Page.profiles->setFocus();
    m_nOperation = Idle;
    notifyProfilesChanged(ORBISDIAL_DIALUP_CLSID);
    notifyProfilesChanged(ORBISDIAL_HOST_LISTENER_CLSID);
}

void CNetConnectUIService::onClickDefaultButton() {
    if (!m_Page.profiles || !notifyService() || tellLock(defaultLock())) return;
    INetConnectSetting* const profiles = this;
    const bool isMarked = m_Page.profiles->currentIndex() == m_nDefaultIndex;  // it is the default already
    if (isMarked || profiles->SetDefaultDialUpProfileName(currentProfileName()) == 0)
        notifyProfilesChanged(ORBISDIAL_DIALUP_CLSID);
}

void CNetConnectUIService::onClickDyanamicRadioButton() {
    if (!m_Page.apn) return;
    m_Page.apn->setEnabled(false);
    m_Page.apn->clear();
}

void CNetConnectUIService::onClickStaticRadioButton() {
    if (!m_Page.apnStatic || !m_Page.apn) return;
    m_Page.apn->setEnabled(true);
    m_Page.apn->setFocus(Qt::OtherFocusReason);
}

void CNetConnectUIService::onClickAdvancedButton() {
    QRect anywhere;
    if (m_pAdvancedDlg) m_pAdvancedDlg->ShowWindow(m_pNetConnectWidget, anywhere);
}
