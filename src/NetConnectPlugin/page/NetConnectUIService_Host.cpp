// SPDX-License-Identifier: MIT
#include "CallTrace.h"
#include "CommonUtils.h"
#include "NetConnectSettingUILogic.h"
#include "NetConnectUIService.h"
#include "Trace.h"

int CNetConnectUIService::ShowWindow(QWidget* parent, QRect& rect) {
    CallTrace trace(__FILE__, "ShowWindow", "%s: %s: called", "%s: %s: exited");
    findNotifyService();
    if (!m_pNetConnectWidget) return 1;
    if (parent) m_pNetConnectWidget->setParent(parent);
    m_pNetConnectWidget->resize(rect.width(), rect.height());
    m_pNetConnectWidget->move(rect.topLeft());
    setElidedTexts();
    applySettingsFromConfigFile();
    return 1;
}

int CNetConnectUIService::ShowSettingDialog(QWidget* parent, QRect& rect) {
    ShowWindow(parent, rect);
    if (!m_pNetConnectWidget) return 1;
    if (m_Page.profiles && m_Page.deleteProfile && m_Page.edit && m_Page.setDefault && m_pLogic) {
        if (!m_Edit.open) enableDisableUiWidget(false);
        if (m_Page.profiles->count() > 0) {
            if (m_nDefaultIndex != -1 && !m_bHiddenWhileOpen) refreshDefaultItem();
            onSelectProfile(m_Page.profiles->currentText());
        }
        m_bActive = true;
        m_bClosedByButton = false;
        showDefaultButton();
    }
    m_pNetConnectWidget->show();
    return 1;
}

void CNetConnectUIService::refreshDefaultItem() { selectDefaultProfile(); }

void CNetConnectUIService::showDefaultButton() {
    const QString load =
        CommonUtils::GetSettings(QString::fromLatin1("ConnectionSetting"), QString::fromLatin1("load"));
    const bool loaded = load.contains(QLatin1String("true"));
    m_Page.setDefault->setVisible(!loaded);
    if (loaded)
        qDebug("<=== %s : %s : %s : Loaded the ConnectMgrPlugin  ", traceTime().constData(), __FILE__,
               "ShowSettingDialog");
}

QString CNetConnectUIService::GetModuleName() { return text("IDS_SETTING_NAME"); }

bool CNetConnectUIService::IsActiveSetting() { return m_bActive; }

int CNetConnectUIService::OnClickSettingOkButton() {
    if (!m_Page.save) return 0;
    const QPointer<CNetConnectUIService> self(this);
    const bool settled = !m_Page.save->isEnabled() || settleOpenEdit();
    if (!self) return true;  // nothing is left that could keep the dialog open
    if (!settled) return false;
    m_bActive = m_bHiddenWhileOpen = false;
    m_bClosedByButton = true;
    detachPage();
    return true;
}

bool CNetConnectUIService::settleOpenEdit() {
    const QPointer<CNetConnectUIService> self(this);
    const int answer = question(QMessageBox::Information, text("IDS_SETTING_QUERY_USER_TO_SAVE"), m_pNetConnectWidget);
    if (!self || !m_Page.save) return true;
    if (answer == CommonUtils::NoAnswer) return !m_Edit.open;  // nobody decided: the edit stays
    if (answer == CommonUtils::FirstButton && m_Edit.open) return onClickSaveButton();
    onClickUndoButton();
    return true;
}

int CNetConnectUIService::OnClickSettingCancelButton() {
    if (!m_Page.save) return 0;
    if (m_Page.save->isEnabled()) onClickUndoButton();
    m_bActive = m_bHiddenWhileOpen = false;
    m_bClosedByButton = true;
    detachPage();
    return 1;
}

int CNetConnectUIService::HideSetting() {
    if (!m_pNetConnectWidget) return 0;
    const bool closedByButton = m_bClosedByButton;
    const QPointer<CNetConnectUIService> self(this);
    if (!OnClickSettingOkButton()) return 0;
    if (!self) return 1;
    Hide();
    if (!closedByButton) m_bHiddenWhileOpen = true;
    return 1;
}

void CNetConnectUIService::Hide() {
    if (m_pNetConnectWidget) m_pNetConnectWidget->close();
}

void CNetConnectUIService::detachPage() {
    if (!m_pNetConnectWidget) return;
    m_pNetConnectWidget->setParent(nullptr);
    m_pNetConnectWidget->setAttribute(Qt::WA_QuitOnClose, false);  // a page is never the application's last window
}
