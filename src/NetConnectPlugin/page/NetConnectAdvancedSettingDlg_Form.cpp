// SPDX-License-Identifier: MIT
#include <new>

#include "Change.h"
#include "NetConnectAdvancedSettingDlg.h"
#include "NetConnectLeastSize.h"

namespace {

const int LongestAddress = 15;

QString named(const char* role) {
    return QString::fromLatin1("NetConnectAdvancedSettingDlg_") + QString::fromLatin1(role);
}

void traceMissing(const char* format) { qDebug(format, __FILE__, "createProtocolSettingUI"); }

}  // namespace

void NetConnectAdvancedSettingDlg::InitAdvanceUI(QWidget*) {
    if (m_pMainWidget) return;
    m_IP = m_DNS = m_WINS = AddressGroup();  // the widgets of an earlier time went with their window
    m_pProtocolGroup = nullptr;
    m_pChap = m_pPap = nullptr;
    m_pMainWidget = new QWidget;
    m_pMainLayout = new QVBoxLayout(m_pMainWidget);
    m_pMainLayout->setContentsMargins(10, 10, 10, 10);
    m_pBtnOk = createButton("ButtonOkAdvance");
    m_pBtnCancel = createButton("ButtonCancelAdvance");
    createIPSettingUI();
    createProtocolSettingUI();
    createDNSSettingUI();
    createWNSSettingUI();

    m_pButtonLayout = new QHBoxLayout;
    m_pButtonLayout->setAlignment(Qt::AlignRight);
    m_pButtonLayout->setSpacing(25);
    m_pButtonLayout->addWidget(m_pBtnOk);
    m_pButtonLayout->addWidget(m_pBtnCancel);
    m_pMainLayout->addLayout(m_pButtonLayout);
    QWidget::setTabOrder(m_pBtnOk, m_pBtnCancel);
    connect(m_pBtnOk, SIGNAL(clicked()), this, SLOT(onClickOkAdvanceSetting()));
    connect(m_pBtnCancel, SIGNAL(clicked()), this, SLOT(onClickCancelAdvanceSetting()));
    SetLanguage();
    fitSizes();
}

QPushButton* NetConnectAdvancedSettingDlg::createButton(const char* role) {
    QPushButton* button = new QPushButton(m_pMainWidget);
    button->setObjectName(named(role));
    return button;
}

void NetConnectAdvancedSettingDlg::createIPSettingUI() {
    m_IP.grid = new QGridLayout;
    m_IP.box = createBox("AuthgroupBox", m_IP.grid);
    m_IP.grid->setVerticalSpacing(0);  // the height is just that of two rows
    createAddressRadios(&m_IP, "IP");
    m_IP.dynamicRadio->setChecked(true);
    createAddressRow(&m_IP, 2, "LabelIP", "LineEditIP");
    m_IP.grid->setAlignment(m_IP.primary, Qt::AlignCenter);
    connect(m_IP.dynamicRadio, SIGNAL(clicked()), this, SLOT(onClickIPDyanamicRadioButton()));
    connect(m_IP.staticRadio, SIGNAL(clicked()), this, SLOT(onClickIPStaticRadioButton()));
}

void NetConnectAdvancedSettingDlg::createProtocolSettingUI() {
    m_pProtocolLayout = new QHBoxLayout;
    m_pProtocolGroup = new (std::nothrow) QGroupBox(m_pMainWidget);
    if (!m_pProtocolGroup) return traceMissing("%s: %s: m_pGroupBoxTxtMsgHandle intialising is Failed: ");
    m_pProtocolGroup->setObjectName(named("ProtocolGroupBox"));
    m_pProtocolGroup->setLayout(m_pProtocolLayout);
    m_pMainLayout->addWidget(m_pProtocolGroup);

    m_pChap = new (std::nothrow) QCheckBox(m_pProtocolGroup);
    if (!m_pChap) return traceMissing("%s: %s: m_pCheckboxNewMsgNotify intialising is Failed: ");
    m_pChap->setObjectName(named("CheckboxNewMsgNotify"));
    m_pProtocolLayout->addWidget(m_pChap);

    m_pPap = new (std::nothrow) QCheckBox(m_pProtocolGroup);
    if (!m_pPap) return traceMissing("%s: %s: m_pCheckboxNewMsgSoundAlert intialising is Failed: ");
    m_pPap->setObjectName(named("CheckboxNewMsgSoundAlert"));
    m_pProtocolLayout->addWidget(m_pPap);
}

void NetConnectAdvancedSettingDlg::createDNSSettingUI() {
    m_DNS.grid = new QGridLayout;
    m_DNS.box = createBox("GroupBoxDNSSetting", m_DNS.grid);
    createAddressRadios(&m_DNS, "DNS");
    createAddressRow(&m_DNS, 2, "LabelPrimaryDNS", "LineEditPrimaryDNS");
    createAddressRow(&m_DNS, 3, "LabelSecondaryDNS", "LineEditSecondaryDNS");
    connect(m_DNS.dynamicRadio, SIGNAL(clicked()), this, SLOT(onClickDNSDyanamicRadioButton()));
    connect(m_DNS.staticRadio, SIGNAL(clicked()), this, SLOT(onClickDNSStaticRadioButton()));
}

// The edits bear the DNS names, as the host's style sheets know them.
void NetConnectAdvancedSettingDlg::createWNSSettingUI() {
    m_WINS.grid = new QGridLayout;
    m_WINS.box = createBox("GroupBoxWINSSetting", m_WINS.grid);
    createAddressRadios(&m_WINS, "WINS");
    createAddressRow(&m_WINS, 2, "LabelPrimaryWINS", "LineEditPrimaryDNS");
    createAddressRow(&m_WINS, 3, "LabelSecondaryWINS", "LineEditSecondaryDNS");
    connect(m_WINS.dynamicRadio, SIGNAL(clicked()), this, SLOT(onClickWINSDyanamicRadioButton()));
    connect(m_WINS.staticRadio, SIGNAL(clicked()), this, SLOT(onClickWINSStaticRadioButton()));
}

QGroupBox* NetConnectAdvancedSettingDlg::createBox(const char* role, QLayout* layout) {
    QGroupBox* box = new QGroupBox(m_pMainWidget);
    box->setObjectName(named(role));
    layout->setContentsMargins(10, 10, 19, 2);
    box->setLayout(layout);
    m_pMainLayout->addWidget(box);
    return box;
}

void NetConnectAdvancedSettingDlg::createAddressRadios(AddressGroup* group, const char* kind) {
    group->dynamicRadio = new QRadioButton(group->box);
    group->dynamicRadio->setObjectName(named("RadioButton") + QString::fromLatin1(kind) +
                                       QString::fromLatin1("Dynamic"));
    group->staticRadio = new QRadioButton(group->box);
    group->staticRadio->setObjectName(named("RadioButtom") + QString::fromLatin1(kind) + QString::fromLatin1("Static"));
    group->grid->addWidget(group->dynamicRadio, 1, 1, Qt::AlignLeft);
    group->grid->addWidget(group->staticRadio, 1, 2, Qt::AlignLeft);
}

void NetConnectAdvancedSettingDlg::createAddressRow(AddressGroup* group, int row, const char* labelRole,
                                                    const char* editRole) {
    QLabel*& label = group->primary ? group->secondaryLabel : group->primaryLabel;
    ExtendLineEdit*& edit = group->primary ? group->secondary : group->primary;
    label = new QLabel(group->box);
    label->setObjectName(named(labelRole));
    edit = new ExtendLineEdit(group->box);
    edit->setObjectName(named(editRole));
    edit->setValidator(m_pValidator);
    edit->setMaxLength(LongestAddress);
    label->setBuddy(edit);
    group->grid->addWidget(label, row, 1, Qt::AlignLeft);
    group->grid->addWidget(edit, row, 3, Qt::AlignLeft);
}

void NetConnectAdvancedSettingDlg::fitSizes() {
    QLineEdit* const edits[] = {m_IP.primary, m_DNS.primary, m_DNS.secondary, m_WINS.primary, m_WINS.secondary};
    for (QLineEdit* edit : edits) {
        setLeastHeight(edit, 22);
        edit->setFixedWidth(isFontLarge(edit) ? qMax(182, edit->sizeHint().width()) : 182);
    }
    setLeastHeight(m_IP.box, 77);
    if (m_pProtocolGroup) setLeastHeight(m_pProtocolGroup, 60);
    if (m_pDialog) setLeastSize(m_pDialog, QSize(Change::GetLangName() == QLatin1String("ru") ? 460 : 434, 463));
}
