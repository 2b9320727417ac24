// SPDX-License-Identifier: MIT
#include <QMessageBox>
#include <QStringList>

#include "CommonUtils.h"
#include "NetConnectAdvancedSettingDlg.h"
#include "TruthText.h"

namespace {

// "0.0.0.0" is what an empty address looks like in the dialog.
QString emptyAddress() { return QString::fromLatin1("0.0.0.0"); }
bool isStatic(const QString& address) { return !address.isEmpty() && address != emptyAddress(); }

bool isPartLength(const QString& part) { return part.size() >= 1 && part.size() <= 3; }

}  // namespace

void NetConnectAdvancedSettingDlg::SetProfileAdvanceSetting(DialupProfile profile, QString mode) {
    m_Profile = profile;
    if (m_pMainWidget) {
        if (mode == QLatin1String("NEW")) {
            QLineEdit* const edits[] = {m_IP.primary, m_DNS.primary, m_DNS.secondary, m_WINS.primary, m_WINS.secondary};
            for (QLineEdit* edit : edits) edit->setEnabled(true);
        }
        setIPSettings(profile);
        setProtocolSettings(profile);
        setDNSSettingsToUI(profile);
        setWINSSettingsToUI(profile);
    }
    const AdvanceSetting settings = {profile.ip,     profile.pap,  profile.chap,   profile.dns,
                                     profile.dnsalt, profile.wins, profile.winsalt};
    m_AdvanceSetting = settings;
}

void NetConnectAdvancedSettingDlg::GetAdvanceSettings(AdvanceSetting* settings) {
    if (settings) *settings = m_AdvanceSetting;
}

void NetConnectAdvancedSettingDlg::setIPSettings(DialupProfile profile) { showAddresses(&m_IP, profile.ip, QString()); }

void NetConnectAdvancedSettingDlg::setProtocolSettings(DialupProfile profile) {
    if (m_pChap) m_pChap->setChecked(isTrue(profile.chap));
    if (m_pPap) m_pPap->setChecked(isTrue(profile.pap));
}

void NetConnectAdvancedSettingDlg::setDNSSettingsToUI(DialupProfile profile) {
    showAddresses(&m_DNS, profile.dns, profile.dnsalt);
}

void NetConnectAdvancedSettingDlg::setWINSSettingsToUI(DialupProfile profile) {
    showAddresses(&m_WINS, profile.wins, profile.winsalt);
}

void NetConnectAdvancedSettingDlg::showAddresses(AddressGroup* group, const QString& primary,
                                                 const QString& secondary) {
    if (!isStatic(primary)) {
        clearAddresses(group);
        group->dynamicRadio->setChecked(true);
        return;
    }
    group->primary->setText(primary);
    if (group->secondary) group->secondary->setText(secondary);
    group->staticRadio->setChecked(true);
}

void NetConnectAdvancedSettingDlg::clearAddresses(AddressGroup* group) {
    QLineEdit* const edits[] = {group->primary, group->secondary};
    for (QLineEdit* edit : edits) {
        if (!edit) continue;
        edit->clear();
        edit->setEnabled(false);
    }
}

void NetConnectAdvancedSettingDlg::openPrimary(AddressGroup* group) {
    if (!group->staticRadio->isChecked() || !m_bArmed) return;
    group->primary->setEnabled(true);
    group->primary->setFocus(Qt::OtherFocusReason);
    if (!group->primary->text().isEmpty()) return;
    group->primary->setText(emptyAddress());
    group->primary->setCursorPosition(0);
}

void NetConnectAdvancedSettingDlg::openSecondary(AddressGroup* group) {
    if (!group->staticRadio->isChecked()) return;
    if (group->secondary->text().isEmpty()) group->secondary->setText(emptyAddress());
    group->secondary->setEnabled(true);
}

void NetConnectAdvancedSettingDlg::onClickIPDyanamicRadioButton() {
    if (m_IP.dynamicRadio->isChecked()) clearAddresses(&m_IP);
}

void NetConnectAdvancedSettingDlg::onClickIPStaticRadioButton() { openPrimary(&m_IP); }

void NetConnectAdvancedSettingDlg::onClickDNSDyanamicRadioButton() {
    if (m_DNS.dynamicRadio->isChecked()) clearAddresses(&m_DNS);
}

void NetConnectAdvancedSettingDlg::onClickDNSStaticRadioButton() {
    openPrimary(&m_DNS);
    openSecondary(&m_DNS);
}

void NetConnectAdvancedSettingDlg::onClickWINSDyanamicRadioButton() {
    if (m_WINS.dynamicRadio->isChecked()) clearAddresses(&m_WINS);
}

void NetConnectAdvancedSettingDlg::onClickWINSStaticRadioButton() {
    openPrimary(&m_WINS);
    openSecondary(&m_WINS);
}

void NetConnectAdvancedSettingDlg::EnableAdvanceSettingUI(bool enable) {
    m_bArmed = false;
    if (!m_pMainWidget) return;
    QGroupBox* const boxes[] = {m_IP.box, m_pProtocolGroup, m_DNS.box, m_WINS.box};
    for (QGroupBox* box : boxes)
        if (box) box->setEnabled(enable);
    if (!enable) return;
    onClickIPDyanamicRadioButton();
    onClickIPStaticRadioButton();
    onClickDNSDyanamicRadioButton();
    onClickDNSStaticRadioButton();
    onClickWINSDyanamicRadioButton();
    onClickWINSStaticRadioButton();
    m_bArmed = true;
}

void NetConnectAdvancedSettingDlg::onClickOkAdvanceSetting() {
    if (!setIPSettingFromUI() || !setDNSIPSettingFromUI() || !setWINSIPSettingFromUI()) return;
    m_AdvanceSetting.chap = m_Profile.chap = boolText(m_pChap && m_pChap->isChecked());
    m_AdvanceSetting.pap = m_Profile.pap = boolText(m_pPap && m_pPap->isChecked());
    closeHostDialog();
}

bool NetConnectAdvancedSettingDlg::setIPSettingFromUI() {
    const AddressPlace place = {&AdvanceSetting::ip, &DialupProfile::ip};
    return takeAddress(m_IP.primary, place, "IDS_SETTING_PROMPT_APN_IP");
}

bool NetConnectAdvancedSettingDlg::setDNSIPSettingFromUI() {
    const AddressPlace primary = {&AdvanceSetting::dns, &DialupProfile::dns};
    const AddressPlace secondary = {&AdvanceSetting::dnsalt, &DialupProfile::dnsalt};
    return takeAddress(m_DNS.primary, primary, "IDS_SETTING_PROMPT_DNS_IP") &&
           takeAddress(m_DNS.secondary, secondary, "IDS_SETTING_PROMPT_DNS_IP");
}

bool NetConnectAdvancedSettingDlg::setWINSIPSettingFromUI() {
    const AddressPlace primary = {&AdvanceSetting::wins, &DialupProfile::wins};
    const AddressPlace secondary = {&AdvanceSetting::winsalt, &DialupProfile::winsalt};
    return takeAddress(m_WINS.primary, primary, "IDS_SETTING_PROMPT_WINS_IP") &&
           takeAddress(m_WINS.secondary, secondary, "IDS_SETTING_PROMPT_WINS_IP");
}

// An address that is refused says so and leaves everything; the dialog may be gone after the message.
bool NetConnectAdvancedSettingDlg::takeAddress(ExtendLineEdit* edit, const AddressPlace& place, const char* messageId) {
    const QString address = edit->text();
    if (!address.isEmpty() && !isVailidIp(address)) {
        const QPointer<ExtendDialog> dialog(m_pDialog);
        CommonUtils::ShowMessage(QMessageBox::Information, m_pMainWidget, text("IDS_PROMPT_CAPTION"), text(messageId),
                                 QString::fromLatin1("IDS_OK"));
        if (dialog) dialog->activateWindow();
        return false;
    }
    const bool none = address == emptyAddress();
    if (none) edit->clear();
    m_AdvanceSetting.*place.setting = m_Profile.*place.field = none ? QString::fromLatin1("") : address;
    return true;
}

// A first part of one character may be anything, zero included; then every other part must be zero too.
bool NetConnectAdvancedSettingDlg::isVailidIp(QString address) {
    const QStringList parts = address.split(QLatin1Char('.'));
    if (parts.size() != 4 || !isPartLength(parts.first())) return false;
    const int first = parts.first().toInt();
    if (parts.first().size() > 1 && (first < 1 || first > 223)) return false;
    for (int i = 1; i < parts.size(); ++i) {
        const int value = parts.at(i).toInt();
        if (!isPartLength(parts.at(i)) || value > 255 || (first == 0 && value != 0)) return false;
    }
    return true;
}
