// SPDX-License-Identifier: MIT
#include <QListView>
#include <QStringListModel>

#include "CallTrace.h"
#include "NetConnectLeastSize.h"
#include "NetConnectLockSign.h"
#include "NetConnectPageWatch.h"
#include "NetConnectProfileRules.h"
#include "NetConnectScrollPlace.h"
#include "NetConnectSettingUILogic.h"
#include "NetConnectUIService.h"
#include "QtCompatPage.h"

namespace {

// Pixels.
const int LineEditHeight = 22;
const int ProfileGroupHeight = 60;
const int APNGroupHeight = 80;
const int AuthenticationGroupHeight = 115;
const int ProtocolGroupHeight = 50;

const int NoticeLines = 2;
const int LongestVisibleName = 24;  // in average characters; longer names show whole in the open list

template <class W>
W* named(W* widget, const char* role) {
    widget->setObjectName(QString::fromLatin1("NetConnectSettingUIPlugin_") + QString::fromLatin1(role));
    return widget;
}

// The groups have fixed heights, which leave little room above and below what they hold.
void useCompactMargins(QLayout* layout, int vertical) { layout->setContentsMargins(9, vertical, 9, vertical); }

}  // namespace

void CNetConnectUIService::initailizeUI() {
    CallTrace trace(__FILE__, "initailizeUI", "%s : %s: Entered", "%s : %s: exit");
    createLayouts();
    createProfileNameUI();
    createApnUI();
    createAuthenticationUI();
    createProtocolUI();
    createProfileSettingButtons();
    assemblePage();
    setTabOrders();
    setGroupBoxLanguage();
    setLabelLanguage();
    setButtonLanguage();
    applySettingsFromConfigFile();
    fitHeights();
}

void CNetConnectUIService::createLayouts() {
    m_pNetConnectWidget = named(new QWidget, "netConnectwdg");
    m_pPageWatch = new NetConnectPageWatch(m_pNetConnectWidget, this);
    m_pNetConnectWidget->setAttribute(Qt::WA_QuitOnClose, false);
    m_pTabWidget = named(new QTabWidget(m_pNetConnectWidget), "tabWidget");
    m_pDialupTabWidget = named(new QWidget, "DialuptabWdg");
    m_pTabWidget->addTab(m_pDialupTabWidget, QString());
    m_pTabWidget->setCurrentIndex(0);
    m_pNetConectLayout = named(new QHBoxLayout(m_pNetConnectWidget), "NetConectLayout");
    m_pDialuptabLayout = named(new QVBoxLayout(m_pDialupTabWidget), "DialuptabLayout");
    m_pBtnOtherLayout = named(new QVBoxLayout, "BtnOtherLayout");
    m_pGroupBoxLayout = named(new QVBoxLayout, "GroupBoxLayout");
    m_Page.profileGroup = named(new QGroupBox(m_pDialupTabWidget), "ProfilegroupBox");
    m_Page.apnGroup = named(new QGroupBox(m_pDialupTabWidget), "ApngroupBox");
    m_Page.authGroup = named(new QGroupBox(m_pDialupTabWidget), "AuthgroupBox");
    m_pProfileNameLayout = named(new QHBoxLayout(m_Page.profileGroup), "ProfileNameLayout");
    m_pApngrpLayout = named(new QFormLayout(m_Page.apnGroup), "ApngrpLayout");
    m_pSMSCgrpLayout = named(new QFormLayout(m_Page.authGroup), "SMSCgrpLayout");
}

ExtendLineEdit* CNetConnectUIService::createEdit(const char* role, int maximumLength) {
    ExtendLineEdit* edit = named(new ExtendLineEdit(m_pDialupTabWidget), role);
    edit->setMaxLength(maximumLength);
    edit->setContextMenuPolicy(Qt::NoContextMenu);
    return edit;
}

void CNetConnectUIService::createProfileNameUI() {
    m_Page.profiles = named(new QComboBox(m_Page.profileGroup), "ProfileCombobox");
    m_Page.profileNames = new QStringListModel(m_Page.profiles);  // shares the texts; items would double their memory
    m_Page.profiles->setModel(m_Page.profileNames);
    m_Page.profiles->setMaxVisibleItems(8);
    m_Page.profiles->setCurrentIndex(0);
    m_Page.profiles->view()->setTextElideMode(Qt::ElideNone);
    m_Page.profiles->setItemDelegate(new NetConnectProfileDelegate(this, m_Page.profiles));
    // A size by its contents would measure every name, which takes seconds with thousands of them.
    m_Page.profiles->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_Page.profiles->setMinimumContentsLength(LongestVisibleName);
    m_Page.profiles->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    int nameLength = NetConnectProfileRules::DefaultNameLength;
    m_pLogic->GetFunctionConfigValue(QString::fromLatin1("ProfileNameLength"), nameLength, nameLength);
    m_Page.name = createEdit("LineEditProfileName", nameLength);
    m_Page.name->hide();
    // Attached to nothing on purpose: names are checked when they are saved, so that any text can be typed.
    new PatternValidator(patternOf("[\\S]+[^:<>|?*()\\[\\]\\/\\\\]*"), this);

    useCompactMargins(m_pProfileNameLayout, 2);
    m_pProfileNameLayout->addWidget(m_Page.profiles);
    m_pProfileNameLayout->addWidget(m_Page.name);
    connectCurrentText(m_Page.profiles, this, SLOT(onSelectProfile(const QString&)));
}

void CNetConnectUIService::createApnUI() {
    m_Page.apnDynamic = named(new QRadioButton(m_Page.apnGroup), "BtnDynamic");
    m_Page.apnDynamic->setChecked(true);
    m_Page.apnStatic = named(new QRadioButton(m_Page.apnGroup), "BtnStatic");
    m_Page.apnLabel = named(new QLabel(m_Page.apnGroup), "Apnlabel");
    m_Page.apn = createEdit("ApnlineEdit", NetConnectProfileRules::APNLength);
    m_Page.apn->setValidator(new PatternValidator(patternOf(NetConnectProfileRules::APNTypingPattern), this));
    m_Page.apnLabel->setBuddy(m_Page.apn);

    useCompactMargins(m_pApngrpLayout, 4);
    m_pApngrpLayout->setHorizontalSpacing(10);
    m_pApngrpLayout->addRow(m_Page.apnDynamic, m_Page.apnStatic);
    m_pApngrpLayout->addRow(m_Page.apnLabel, m_Page.apn);
    connect(m_Page.apnDynamic, SIGNAL(clicked()), this, SLOT(onClickDyanamicRadioButton()));
    connect(m_Page.apnStatic, SIGNAL(clicked()), this, SLOT(onClickStaticRadioButton()));
}

void CNetConnectUIService::createAuthenticationUI() {
    m_Page.accessNumber = createEdit("AccessNumberlineEdit", NetConnectProfileRules::AccessNumberLength);
    m_Page.user = createEdit("UsernamelineEdit", NetConnectProfileRules::UserNameLength);
    m_Page.password = createEdit("PasswordlineEdit", NetConnectProfileRules::PasswordLength);
    m_Page.password->setEchoMode(QLineEdit::Password);
    m_Page.accessNumberLabel = named(new QLabel(m_Page.authGroup), "AccessNumberlabel");
    m_Page.userLabel = named(new QLabel(m_Page.authGroup), "Usernamelabel");
    m_Page.passwordLabel = named(new QLabel(m_Page.authGroup), "Passwordlabel");

    useCompactMargins(m_pSMSCgrpLayout, 4);
    m_pSMSCgrpLayout->setVerticalSpacing(5);
    m_pSMSCgrpLayout->setHorizontalSpacing(20);
    m_pSMSCgrpLayout->addRow(m_Page.accessNumberLabel, m_Page.accessNumber);
    m_pSMSCgrpLayout->addRow(m_Page.userLabel, m_Page.user);
    m_pSMSCgrpLayout->addRow(m_Page.passwordLabel, m_Page.password);
    m_Page.accessNumberLabel->setBuddy(m_Page.accessNumber);
    m_Page.userLabel->setBuddy(m_Page.user);
    m_Page.passwordLabel->setBuddy(m_Page.password);

    m_Page.noticePlace = named(new QWidget(m_pDialupTabWidget), "NoticePlace");
    m_Page.passwordHint = named(new NetConnectPasswordHint(m_Page.password, m_Page.noticePlace), "PasswordHint");
    m_Page.lockNotice = named(new NetConnectLockNotice(m_Page.noticePlace), "LockNotice");
    m_Page.lockNotice->hide();
    QVBoxLayout* notices = new QVBoxLayout(m_Page.noticePlace);
    notices->setContentsMargins(0, 0, 0, 0);
    notices->addWidget(m_Page.passwordHint);
    notices->addWidget(m_Page.lockNotice);
    m_Page.askUserName = named(new QCheckBox(m_pDialupTabWidget), "CheckBoxAskUserName");
}

void CNetConnectUIService::createProtocolUI() {
    m_Page.protocolGroup = new QGroupBox(m_pDialupTabWidget);
    m_Page.chap = new QCheckBox(m_Page.protocolGroup);
    m_Page.pap = new QCheckBox(m_Page.protocolGroup);
    QHBoxLayout* boxes = new QHBoxLayout(m_Page.protocolGroup);
    useCompactMargins(boxes, 0);
    boxes->addWidget(m_Page.chap);
    boxes->addWidget(m_Page.pap);
}

void CNetConnectUIService::createProfileSettingButtons() {
    const struct {
        QPushButton* PageWidgets::*member;
        const char* role;
        const char* slot;
    } buttons[] = {{&PageWidgets::newProfile, "pBtnnewProfile", SLOT(onClickNewProfileButton())},
                   {&PageWidgets::deleteProfile, "BtnDeleteProfile", SLOT(onClickDeleteButton())},
                   {&PageWidgets::edit, "BtnEditProfile", SLOT(onClickEditButton())},
                   {&PageWidgets::save, "BtnsaveProfile", SLOT(onClickSaveButton())},
                   {&PageWidgets::undo, "BtnUndoProfile", SLOT(onClickUndoButton())},
                   {&PageWidgets::setDefault, "BtnSetDefaultProfile", SLOT(onClickDefaultButton())},
                   {&PageWidgets::importProfiles, "ButtonImportProfile", SLOT(onClickImportButton())},
                   {&PageWidgets::exportProfiles, "ButtonExportProfile", SLOT(onClickExportButton())}};
    for (const auto& row : buttons) {
        QPushButton* button = named(new QPushButton(m_pNetConnectWidget), row.role);
        m_Page.*row.member = button;
        m_pBtnOtherLayout->addWidget(button);
        button->installEventFilter(m_pPageWatch);
        connect(button, SIGNAL(clicked()), this, row.slot);
    }
    m_pBtnOtherLayout->setSpacing(7);
    m_pBtnOtherLayout->insertSpacing(5, 90);
    m_pBtnOtherLayout->setSizeConstraint(QLayout::SetMaximumSize);
    m_pBtnOtherLayout->addStretch();
}

void CNetConnectUIService::assemblePage() {
    m_pGroupBoxLayout->addWidget(m_Page.profileGroup);
    m_pGroupBoxLayout->addWidget(m_Page.apnGroup);
    m_pGroupBoxLayout->addWidget(m_Page.authGroup);
    m_pGroupBoxLayout->addWidget(m_Page.noticePlace);
    m_pGroupBoxLayout->addWidget(m_Page.askUserName);
    m_pGroupBoxLayout->addWidget(m_Page.protocolGroup);
    m_pGroupBoxLayout->addStretch();
    m_pDialuptabLayout->addWidget(new NetConnectScrollPlace(m_pGroupBoxLayout));
    m_pNetConectLayout->addWidget(m_pTabWidget);
    m_pNetConectLayout->addLayout(m_pBtnOtherLayout);
}

// Of the fields first, since their groups follow them.
void CNetConnectUIService::fitHeights() {
    const struct {
        QWidget* widget;
        int least;
    } heights[] = {{m_Page.name, LineEditHeight},
                   {m_Page.apn, LineEditHeight},
                   {m_Page.accessNumber, LineEditHeight},
                   {m_Page.user, LineEditHeight},
                   {m_Page.password, LineEditHeight},
                   {m_Page.profileGroup, ProfileGroupHeight},
                   {m_Page.apnGroup, APNGroupHeight},
                   {m_Page.authGroup, AuthenticationGroupHeight},
                   {m_Page.protocolGroup, ProtocolGroupHeight}};
    if (!m_Page.noticePlace) return;
    for (const auto& row : heights) setLeastHeight(row.widget, row.least);
    m_Page.noticePlace->setFixedHeight(NoticeLines * m_Page.noticePlace->fontMetrics().lineSpacing());
}

void CNetConnectUIService::setTabOrders() {
    QWidget* const order[] = {m_Page.profiles,      m_Page.name,           m_Page.apnDynamic,    m_Page.apnStatic,
                              m_Page.apn,           m_Page.accessNumber,   m_Page.user,          m_Page.password,
                              m_Page.askUserName,   m_Page.chap,           m_Page.pap,           m_Page.newProfile,
                              m_Page.deleteProfile, m_Page.edit,           m_Page.save,          m_Page.undo,
                              m_Page.setDefault,    m_Page.importProfiles, m_Page.exportProfiles};
    for (size_t i = 1; i < sizeof(order) / sizeof(order[0]); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}
