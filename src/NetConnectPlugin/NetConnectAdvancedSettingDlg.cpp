// SPDX-License-Identifier: MIT
#include "NetConnectAdvancedSettingDlg.h"

#include <QApplication>

#include "Change.h"
#include "CommonUtils.h"
#include "NetConnectFieldNote.h"

NetConnectAdvancedSettingDlg* NetConnectAdvancedSettingDlg::m_pNetConnectAdvancedSettingDlg = nullptr;

NetConnectAdvancedSettingDlg* NetConnectAdvancedSettingDlg::GetInstance() {
    if (!m_pNetConnectAdvancedSettingDlg) m_pNetConnectAdvancedSettingDlg = new NetConnectAdvancedSettingDlg;
    return m_pNetConnectAdvancedSettingDlg;
}

void NetConnectAdvancedSettingDlg::Destroy() {
    delete m_pNetConnectAdvancedSettingDlg;
    m_pNetConnectAdvancedSettingDlg = nullptr;
}

NetConnectAdvancedSettingDlg::NetConnectAdvancedSettingDlg()
    : m_pValidator(new PatternValidator(patternOf("[.0-9]*"), this)) {
    QString AdvanceSetting::*const fields[] = {&AdvanceSetting::ip,     &AdvanceSetting::pap,    &AdvanceSetting::chap,
                                               &AdvanceSetting::dns,    &AdvanceSetting::dnsalt, &AdvanceSetting::wins,
                                               &AdvanceSetting::winsalt};
    for (QString AdvanceSetting::*field : fields) m_AdvanceSetting.*field = QString::fromLatin1("");
}

NetConnectAdvancedSettingDlg::~NetConnectAdvancedSettingDlg() {
    delete m_pDialog;
    delete m_pMainWidget;  // detached since the last showing
}

bool NetConnectAdvancedSettingDlg::ShowWindow(QWidget*, QRect&) {
    if (!m_pMainWidget || (!m_pDialog && !createHostDialog())) return false;
    CommonUtils::MoveCentre(m_pDialog);
    SetProfileAdvanceSetting(m_Profile, QString::fromLatin1("NEW"));
    if (QApplication::layoutDirection() == Qt::RightToLeft)
        m_pProtocolLayout->setContentsMargins(180, 0, 15, 2);
    else
        m_pProtocolLayout->setContentsMargins(10, 0, 206, 2);
    m_pDialog->show();
    return true;
}

bool NetConnectAdvancedSettingDlg::createHostDialog() {
    m_pDialog = new ExtendDialog(CommonUtils::GetMainWindow(), Qt::WindowCloseButtonHint, 1);
    QWidget* const previous = m_pMainWidget;
    m_pMainWidget = new QWidget(m_pDialog);
    m_pDialog->AddMainWidget(m_pMainWidget);
    m_pDialog->setWindowModality(Qt::WindowModal);
    m_pDialog->setObjectName(QString::fromLatin1("NetConnectAdvancedSettingDlg_DialogAdvanceSetting"));
    m_pMainWidget->setLayout(m_pMainLayout);  // takes the layout and every widget in it from the previous one
    delete previous;
    SetLanguage();
    fitSizes();
    return m_pDialog && m_pMainWidget;
}

// The dialog itself goes later, since this runs inside a slot of one of its buttons.
void NetConnectAdvancedSettingDlg::closeHostDialog() {
    if (!m_pDialog) return;
    m_pDialog->close();
    m_pMainWidget->setParent(nullptr);
    m_pDialog->setObjectName(QString());
    m_pDialog->deleteLater();
    m_pDialog = nullptr;
}

void NetConnectAdvancedSettingDlg::onClickCancelAdvanceSetting() { closeHostDialog(); }

QString NetConnectAdvancedSettingDlg::tr(QString key) const {
    return Change::tr(key, QString::fromLatin1("NetConnectPlugin"));
}

QString NetConnectAdvancedSettingDlg::text(const char* id) const { return tr(QString::fromLatin1(id)); }

void NetConnectAdvancedSettingDlg::SetLanguage() {
    if (!m_pMainWidget) return;
    setGroupBoxLanguage();
    setLabelLanguage();
    setButtonLanguage();
}

void NetConnectAdvancedSettingDlg::setGroupBoxLanguage() {
    const struct {
        QGroupBox* box;
        const char* id;
    } titles[] = {{m_IP.box, "IDS_SETTING_STATIC_GROUP_APN_IP"},
                  {m_pProtocolGroup, "IDS_SETTING_GROUP_Authentication_protocol"},
                  {m_DNS.box, "IDS_SETTING_STATIC_SET_DNS"},
                  {m_WINS.box, "IDS_SETTING_STATIC_SET_WINS"}};
    for (const auto& row : titles)
        if (row.box) row.box->setTitle(text(row.id));
    if (m_pDialog) m_pDialog->setWindowTitle(text("IDS_STC_DIALUPDLG_ADVANCE"));
}

void NetConnectAdvancedSettingDlg::setLabelLanguage() {
    const struct {
        QLabel* label;
        const char* id;
    } labels[] = {{m_IP.primaryLabel, "IDS_SETTING_STATIC_IP"},
                  {m_DNS.primaryLabel, "IDS_SETTING_STATIC_DNS"},
                  {m_DNS.secondaryLabel, "IDS_SETTING_STATIC_DNS_SECOND"},
                  {m_WINS.primaryLabel, "IDS_SETTING_STATIC_WINS1"},
                  {m_WINS.secondaryLabel, "IDS_SETTING_STATIC_WINS_SECOND"}};
    for (const auto& row : labels) row.label->setText(text(row.id));
    if (m_IP.box) showFieldNote(m_IP.box, "ip");
    if (m_WINS.box) showFieldNote(m_WINS.box, "wins");
}

void NetConnectAdvancedSettingDlg::setButtonLanguage() {
    const AddressGroup* const groups[] = {&m_IP, &m_DNS, &m_WINS};
    for (const AddressGroup* group : groups) {
        group->dynamicRadio->setText(text("IDS_SETTING_RADIO_APN_IP_DYNAMIC"));
        group->staticRadio->setText(text("IDS_SETTING_RADIO_APN_IP_STATIC"));
    }
    const struct {
        QAbstractButton* button;
        const char* id;
    } buttons[] = {{m_pChap, "IDS_SETTING_CHECK_CHAP"},
                   {m_pPap, "IDS_SETTING_CHECK_PAP"},
                   {m_pBtnOk, "IDS_OK"},
                   {m_pBtnCancel, "IDS_CANCEL"}};
    for (const auto& row : buttons)
        if (row.button) row.button->setText(text(row.id));
}
