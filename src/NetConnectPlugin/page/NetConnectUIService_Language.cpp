// SPDX-License-Identifier: MIT
#include <QAbstractItemView>

#include "CommonUtils.h"
#include "NetConnectFieldNote.h"
#include "NetConnectLeastSize.h"
#include "NetConnectUIService.h"
#include "QtCompat.h"

namespace {

const int AskUserNameWidth = 230;
const int ProtocolTitleWidth = 220;

// Languages without Latin letters put the mnemonic in parentheses behind the text.
QString withoutMnemonic(const QString& text) {
    return QString(text).remove(patternOf("\\(&.\\)")).remove(QLatin1Char('&'));
}

}  // namespace

void CNetConnectUIService::setLanguage() {
    setGroupBoxLanguage();
    setLabelLanguage();
    setButtonLanguage();
    onDeviceInitailize();
    if (m_Page.save) enableDisableUIButtons(m_Edit.open);  // their reasons
}

void CNetConnectUIService::setGroupBoxLanguage() {
    const struct {
        QGroupBox* group;
        const char* id;
    } titles[] = {{m_Page.profileGroup, "IDS_SETTING_STATIC_GROUP_NETWORK_CONNECT_SELECT"},
                  {m_Page.authGroup, "IDS_SETTING_STATIC_GROUP_VALIDATE"},
                  {m_Page.protocolGroup, "IDS_SETTING_GROUP_Authentication_protocol"}};
    for (const auto& row : titles)
        if (row.group) row.group->setTitle(text(row.id));
    if (m_Page.protocolGroup)
        CommonUtils::setElidedTextForWidgetTitle(m_Page.protocolGroup,
                                                 grownWidth(m_Page.protocolGroup, ProtocolTitleWidth), Qt::ElideRight);
    if (m_Page.apnGroup) m_Page.apnGroup->setTitle(QString::fromLatin1("APN"));
    if (m_pTabWidget)
        m_pTabWidget->setTabText(m_pTabWidget->indexOf(m_pDialupTabWidget),
                                 text("IDS_TABPAGE_NETCONNECTSETTINGDLG_DIALUP"));
    if (m_pImportExportDialog)
        m_pImportExportDialog->setWindowTitle(text(m_bImport ? "IDS_TITLE_IMPORTDLG" : "IDS_TITLE_EXPORTDLG"));
}

void CNetConnectUIService::setLabelLanguage() {
    const struct {
        QLabel* label;
        const char* id;
    } labels[] = {{m_Page.apnLabel, "IDS_SETTING_STATIC_APN_NAME"},
                  {m_Page.accessNumberLabel, "IDS_SETTING_STATIC_NUMBER"},
                  {m_Page.userLabel, "IDS_SETTING_STATIC_USENAME"},
                  {m_Page.passwordLabel, "IDS_SETTING_STATIC_PASSWORD"},
                  {m_Page.passwordHint, "IDS_NETCONNECT_HINT_PASSWORD"}};
    for (const auto& row : labels)
        if (row.label) row.label->setText(text(row.id));
    setAccessibleNames();
}

void CNetConnectUIService::setAccessibleNames() {
    const struct {
        QWidget* widget;
        const char* id;
    } names[] = {{m_Page.profiles, "IDS_NETCONNECT_ACC_PROFILE_LIST"},
                 {m_Page.profiles ? m_Page.profiles->view() : nullptr, "IDS_NETCONNECT_ACC_PROFILE_LIST"},
                 {m_Page.name, "IDS_NETCONNECT_ACC_PROFILE_NAME"},
                 {m_Page.apn, "IDS_SETTING_STATIC_APN_NAME"},
                 {m_Page.accessNumber, "IDS_SETTING_STATIC_NUMBER"},
                 {m_Page.user, "IDS_SETTING_STATIC_USENAME"},
                 {m_Page.password, "IDS_SETTING_STATIC_PASSWORD"},
                 {m_Page.askUserName, "IDS_USERNAME_AND_PASSWORD"},
                 {m_pImportExportTree, "IDS_NETCONNECT_ACC_TRANSFER_TREE"}};
    for (const auto& row : names)
        if (row.widget) row.widget->setAccessibleName(withoutMnemonic(text(row.id)));
    if (m_Page.accessNumber) showFieldNote(m_Page.accessNumber, "phonenumber");
}

void CNetConnectUIService::setButtonLanguage() {
    const struct {
        QAbstractButton* button;
        const char* id;
    } buttons[] = {{m_Page.apnDynamic, "IDS_SETTING_RADIO_APN_IP_DYNAMIC"},
                   {m_Page.apnStatic, "IDS_SETTING_RADIO_APN_IP_STATIC"},
                   {m_Page.advanced, "IDS_SETTING_BUTTON_HIGH"},
                   {m_Page.newProfile, "IDS_SETTING_BUTTON_NEW"},
                   {m_Page.deleteProfile, "IDS_SETTING_BUTTON_DELETE"},
                   {m_Page.edit, "IDS_SETTING_BUTTON_EDIT"},
                   {m_Page.save, "IDS_SETTING_BUTTON_SAVE"},
                   {m_Page.undo, "IDS_SETTING_BUTTON_NO_SAVE"},
                   {m_Page.setDefault, "IDS_BTN_NETCONNECTSETTINGDLG_DEFAULT"},
                   {m_Page.importProfiles, "IDS_BTN_NETCONNECTSETTINGDLG_INPUT"},
                   {m_Page.exportProfiles, "IDS_BTN_NETCONNECTSETTINGDLG_OUTPUT"},
                   {m_Page.chap, "IDS_SETTING_CHECK_CHAP"},
                   {m_Page.pap, "IDS_SETTING_CHECK_PAP"},
                   {m_pBtnImportExportOk, "IDS_OK"},
                   {m_pBtnImportExportCancel, "IDS_CANCEL"},
                   {m_pBtnImportExportBrowse, "IDS_SETTING_BROWSE_TELEPHLONE"}};
    for (const auto& row : buttons)
        if (row.button) row.button->setText(text(row.id));
    setElidedTexts();
    if (!m_pProfileRootItem) return;
    m_pImportExportTree->blockSignals(true);  // a changed text is no change of the ticks
    m_pProfileRootItem->setText(0, text("IDS_TREENODE_PROFILEINPUTDLG_DIALUP"));
    m_pImportExportTree->blockSignals(false);
}

void CNetConnectUIService::setElidedTexts() {
    if (!m_Page.askUserName) return;
    m_Page.askUserName->setText(text("IDS_USERNAME_AND_PASSWORD"));
    CommonUtils::setElidedTextForWidgetText(m_Page.askUserName, grownWidth(m_Page.askUserName, AskUserNameWidth),
                                            Qt::ElideRight);
}
