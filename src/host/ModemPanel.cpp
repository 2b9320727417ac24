// SPDX-License-Identifier: MIT
#include "ModemPanel.h"

#include <vrks_simulated.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QSpinBox>
#include <cstring>
#include <utility>

#include "HostText.h"

namespace {

constexpr int NotReady = 0;
constexpr int GreatestMode = 99;  // the modes that mean something are well below

// A choice of a box; a text without an ID is the same in every language.
struct Choice {
    const char* id;
    const char* text;
    QVariant value;
};

const QVector<Choice> CardModes = {
    {"IDS_HOST_MODEM_CARD_MODE_NONE", nullptr, 0}, {nullptr, "WCDMA", 1}, {nullptr, "CDMA", 2}};

const QVector<Choice> ProductTypes = {{nullptr, "WCDMA", 0}, {nullptr, "CDMA", VRKS_PRODUCT_TYPE_CDMA}};

const QVector<Choice> Outcomes = {
    {"IDS_HOST_MODEM_ANSWERS", nullptr, "answers"},
    {"IDS_HOST_MODEM_NO_CARRIER", nullptr, "no-carrier"},
    {"IDS_HOST_MODEM_AUTHENTICATION_FAILS", nullptr, "authentication-failed"},
    {"IDS_HOST_MODEM_NO_SIGNAL", nullptr, "not-registered"},
};

// Every other failure under its technical name.
void addFailures(QComboBox* box) {
    const char* name = nullptr;
    for (int failure = VRKS_FAILURE_NONE + 1; VRKS_NetConnectSrv_GetFailureName(failure, &name) == 0; ++failure) {
        if (box->findData(QLatin1String(name)) < 0) box->addItem(QLatin1String(name), QLatin1String(name));
    }
}

// The settings' names; an item's number is the setting's.
QComboBox* makeSettingBox() {
    auto* box = new QComboBox;
    box->setObjectName(QStringLiteral("ModemPanel_Setting"));
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(12);
    char name[VRKS_TEXT_SIZE], value[VRKS_TEXT_SIZE];
    for (unsigned int i = 0; vrks_simulated_get_at(i, name, value) == 0; ++i) box->addItem(QLatin1String(name));
    return box;
}

QComboBox* makeBox(const char* name, const QVector<Choice>& choices) {
    auto* box = new QComboBox;
    box->setObjectName(QLatin1String(name));
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);  // also in another language
    for (const Choice& choice : choices) box->addItem(QLatin1String(choice.text), choice.value);
    return box;
}

QCheckBox* makeCheckBox(const char* name) {
    auto* box = new QCheckBox;
    box->setObjectName(QLatin1String(name));
    return box;
}

void retranslateBox(QComboBox* box, const QVector<Choice>& choices) {
    for (int i = 0; i < choices.size(); ++i) {
        if (choices[i].id) box->setItemText(i, hostText(choices[i].id));
    }
}

void select(QComboBox* box, const QVariant& value) { box->setCurrentIndex(qMax(0, box->findData(value))); }

// The text that a setting has now; empty for one that is not there.
QString valueOf(const char* setting) {
    char name[VRKS_TEXT_SIZE], value[VRKS_TEXT_SIZE];
    for (unsigned int i = 0; vrks_simulated_get_at(i, name, value) == 0; ++i)
        if (std::strcmp(name, setting) == 0) return QString::fromUtf8(value);
    return QString();
}

int numberAt(const char* record, int offset) {
    qint32 number = 0;
    std::memcpy(&number, record + offset, sizeof number);
    return number;
}

}  // namespace

ModemPanel::ModemPanel(QWidget* parent)
    : QWidget(parent),
      m_Imsi(new QLineEdit),
      m_Ready(makeCheckBox("ModemPanel_Ready")),
      m_MultiMode(makeCheckBox("ModemPanel_MultiMode")),
      m_CardMode(makeBox("ModemPanel_CardMode", CardModes)),
      m_ProductType(makeBox("ModemPanel_ProductType", ProductTypes)),
      m_SystemMode(makeNumber("ModemPanel_SystemMode")),
      m_SystemSubMode(makeNumber("ModemPanel_SystemSubMode")),
      m_Outcome(makeBox("ModemPanel_Outcome", Outcomes)),
      m_Setting(makeSettingBox()),
      m_Value(new QLineEdit) {
    setObjectName(QStringLiteral("ModemPanel"));
    m_Imsi->setObjectName(QStringLiteral("ModemPanel_Imsi"));
    m_Imsi->setMaxLength(VRKS_IMSI_SIZE - 1);
    m_Imsi->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), m_Imsi));
    m_Imsi->setMinimumWidth(fontMetrics().horizontalAdvance(QString(VRKS_IMSI_SIZE + 1, QLatin1Char('0'))));

    auto* form = new QFormLayout(this);
    buildCard(form);
    buildNetwork(form);
    buildSettings(form);
    makeEventButton(form, "ModemPanel_Initialise", "IDS_HOST_MODEM_INITIALISE", VRKS_EVENT_DEV_DEVICE_INIT_FINISH);
    makeEventButton(form, "ModemPanel_ChangeCard", "IDS_HOST_MODEM_CHANGE_CARD", VRKS_EVENT_DEV_CARD_CHANGED);
    auto* drop = makeButton(form, "ModemPanel_Drop", "IDS_HOST_MODEM_DROP");
    connect(drop, &QPushButton::clicked, this, [] { vrks_simulated_drop(nullptr); });
    readModem();
    readValue();
    connectControls();
}

void ModemPanel::refresh() { select(m_Outcome, valueOf("DIAL")); }

void ModemPanel::retranslate() {
    for (const Text& text : std::as_const(m_Texts)) text.widget->setProperty("text", hostText(text.id));
    m_Imsi->setPlaceholderText(hostText("IDS_HOST_MODEM_NO_CARD"));
    retranslateBox(m_CardMode, CardModes);
    retranslateBox(m_Outcome, Outcomes);
}

void ModemPanel::buildCard(QFormLayout* form) {
    addRow(form, "IDS_HOST_MODEM_IMSI", m_Imsi);
    form->addRow(m_Ready);
    form->addRow(m_MultiMode);
    m_Texts.append({m_Ready, "IDS_HOST_MODEM_READY"});
    m_Texts.append({m_MultiMode, "IDS_HOST_MODEM_MULTI_MODE"});
    addRow(form, "IDS_HOST_MODEM_CARD_MODE", m_CardMode);
}

void ModemPanel::buildNetwork(QFormLayout* form) {
    addRow(form, "IDS_HOST_MODEM_PRODUCT_TYPE", m_ProductType);
    addRow(form, "IDS_HOST_MODEM_SYSTEM_MODE", m_SystemMode);
    addRow(form, "IDS_HOST_MODEM_SYSTEM_SUBMODE", m_SystemSubMode);
    addRow(form, "IDS_HOST_MODEM_OUTCOME", m_Outcome);
}

void ModemPanel::buildSettings(QFormLayout* form) {
    addFailures(m_Outcome);
    m_Value->setObjectName(QStringLiteral("ModemPanel_Value"));
    addRow(form, "IDS_HOST_MODEM_SETTING", m_Setting);
    form->addRow(QString(), m_Value);
}

void ModemPanel::addRow(QFormLayout* form, const char* id, QWidget* field) {
    auto* label = new QLabel;
    label->setBuddy(field);
    form->addRow(label, field);
    m_Texts.append({label, id});
}

QSpinBox* ModemPanel::makeNumber(const char* name) {
    auto* number = new QSpinBox;
    number->setObjectName(QLatin1String(name));
    number->setMaximum(GreatestMode);
    return number;
}

QPushButton* ModemPanel::makeButton(QFormLayout* form, const char* name, const char* id) {
    auto* button = new QPushButton;
    button->setObjectName(QLatin1String(name));
    form->addRow(button);
    m_Texts.append({button, id});
    return button;
}

void ModemPanel::makeEventButton(QFormLayout* form, const char* name, const char* id, int event) {
    connect(makeButton(form, name, id), &QPushButton::clicked, this, [event] { vrks_simulated_raise_event(event); });
}

void ModemPanel::readModem() {
    char imsi[VRKS_IMSI_SIZE] = "";
    int status = NotReady;
    int productType = 0;
    unsigned char isMultiMode = 0;
    unsigned int cardMode = 0;
    char systemInfo[VRKS_SYSINFO_SIZE] = "";
    VRKS_DevSrv_GetImsiInfo(imsi);
    VRKS_DevSrv_GetDevStatus(&status);
    VRKS_DevSrv_GetProductType(&productType);
    VRKS_DevSrv_GetMultiModeCardStatus(&isMultiMode, nullptr, nullptr, &cardMode);
    VRKS_NetSrv_GetSysInfoEx(systemInfo);

    m_Imsi->setText(QString::fromLatin1(imsi));
    m_Ready->setChecked(status == VRKS_DEV_STATUS_READY);
    m_MultiMode->setChecked(isMultiMode != 0);
    select(m_CardMode, cardMode);
    select(m_ProductType, productType);
    m_SystemMode->setValue(numberAt(systemInfo, VRKS_SYSINFO_MODE_OFFSET));
    m_SystemSubMode->setValue(numberAt(systemInfo, VRKS_SYSINFO_SUBMODE_OFFSET));
}

void ModemPanel::readValue() {
    char name[VRKS_TEXT_SIZE], value[VRKS_TEXT_SIZE];
    if (vrks_simulated_get_at(unsigned(m_Setting->currentIndex()), name, value) == 0)
        m_Value->setText(QString::fromUtf8(value));
}

void ModemPanel::connectControls() {
    const auto activated = QOverload<int>::of(&QComboBox::activated);
    const auto valueChanged = QOverload<int>::of(&QSpinBox::valueChanged);
    connect(m_Imsi, &QLineEdit::editingFinished, this, [this] { set("IMSI", m_Imsi->text()); });
    connect(m_Ready, &QCheckBox::clicked, this,
            [this](bool on) { set("STATUS", on ? VRKS_DEV_STATUS_READY : NotReady); });
    connect(m_MultiMode, &QCheckBox::clicked, this, [this](bool on) { set("MULTI_MODE", int(on)); });
    connect(m_CardMode, activated, this, [this] { set("CARD_MODE", m_CardMode->currentData()); });
    connect(m_ProductType, activated, this, [this] { set("PRODUCT_TYPE", m_ProductType->currentData()); });
    connect(m_SystemMode, valueChanged, this, [this](int mode) { set("SYS_MODE", mode); });
    connect(m_SystemSubMode, valueChanged, this, [this](int mode) { set("SYS_SUBMODE", mode); });
    connect(m_Outcome, activated, this, &ModemPanel::setOutcome);
    connect(m_Setting, activated, this, &ModemPanel::readValue);
    connect(m_Value, &QLineEdit::editingFinished, this, &ModemPanel::setValue);
}

void ModemPanel::set(const char* name, const QVariant& value) {
    const QByteArray text = value.toString().toUtf8();
    vrks_simulated_change(name, text.isEmpty() ? nullptr : text.constData());
    readValue();
}

// A value that the setting can't hold gives way to the one it has.
void ModemPanel::setValue() {
    set(m_Setting->currentText().toLatin1(), m_Value->text());
    readModem();
}

void ModemPanel::setOutcome() { set("DIAL", m_Outcome->currentData()); }
