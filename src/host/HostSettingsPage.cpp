// SPDX-License-Identifier: MIT
#include "HostSettingsPage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <utility>

#include "CommonUtils.h"
#include "ConnectionSettings.h"
#include "HostSettings.h"
#include "HostText.h"
#include "Languages.h"
#include "LimitBox.h"

namespace {

template <HostSettings::Switch Which>
bool isOn() {
    return HostSettings::isOn(Which);
}

template <HostSettings::Switch Which>
bool store(bool on) {
    return HostSettings::set(Which, on);
}

constexpr struct {
    const char* name;
    const char* text;
    bool (*isOn)();
    bool (*store)(bool);
} Boxes[] = {
    {"Host_KeepDefaultBox", "IDS_HOST_LOCK_DEFAULT", isOn<HostSettings::KeepsDefault>,
     store<HostSettings::KeepsDefault>},
    {"Host_NotifyBox", "IDS_HOST_NOTIFY", isOn<HostSettings::Notifies>, store<HostSettings::Notifies>},
    {"Host_CloseToTrayBox", "IDS_HOST_CLOSE_TO_TRAY", isOn<HostSettings::ClosesToTray>,
     store<HostSettings::ClosesToTray>},
    {"Host_StartWithSessionBox", "IDS_HOST_START_WITH_SESSION", HostSettings::startsWithSession,
     HostSettings::setStartsWithSession},
    {"Host_StaysConnectedBox", "IDS_HOST_STAYS_CONNECTED", ConnectionSettings::staysAfterExit,
     ConnectionSettings::setStaysAfterExit},
};

}  // namespace

HostSettingsPage::~HostSettingsPage() { delete m_Widget; }

int HostSettingsPage::OnClickSettingOkButton() {
    if (!m_IsOpen) return 1;
    m_IsOpen = !store();
    if (!m_IsOpen) return 1;
    CommonUtils::ShowMessage(QMessageBox::Warning, m_Widget, hostText("IDS_HOST_TITLE"),
                             hostText("IDS_HOST_SETTINGS_NOT_SAVED"), QStringLiteral("IDS_OK"));
    return 0;
}

int HostSettingsPage::OnClickSettingCancelButton() {
    m_IsOpen = false;
    return 1;
}

int HostSettingsPage::ShowSettingDialog(QWidget* parent, QRect& rect) {
    if (!m_Widget) build();
    if (!m_IsOpen) load();
    m_Widget->setParent(parent);
    m_Widget->setGeometry(rect);
    m_Widget->show();
    return 1;
}

QString HostSettingsPage::GetModuleName() { return hostText("IDS_HOST_SETTINGS_NAME"); }

int HostSettingsPage::HideSetting() {
    if (m_Widget) m_Widget->hide();
    return 1;
}

bool HostSettingsPage::IsActiveSetting() { return m_Widget && m_Widget->isVisible(); }

void HostSettingsPage::retranslate() {
    if (!m_Widget) return;
    m_LanguageLabel->setText(hostText("IDS_HOST_LANGUAGE"));
    m_Limit->retranslate();
    for (const Box& box : std::as_const(m_Boxes)) box.widget->setText(hostText(box.text));
}

void HostSettingsPage::build() {
    m_Widget = new QWidget;
    m_Widget->setObjectName(QStringLiteral("Host_SettingsPage"));
    m_LanguageLabel = new QLabel;
    m_Language = new QComboBox;
    m_Language->setObjectName(QStringLiteral("Host_LanguageBox"));
    m_Language->setSizeAdjustPolicy(QComboBox::AdjustToContents);  // also with a larger font
    m_LanguageLabel->setBuddy(m_Language);
    for (const QString& code : Change::GetLanguages()) m_Language->addItem(Languages::title(code), code);
    auto* form = new QFormLayout(m_Widget);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->addRow(m_LanguageLabel, m_Language);
    m_Boxes.clear();
    for (const auto& box : Boxes) {
        auto* widget = new QCheckBox;
        widget->setObjectName(QLatin1String(box.name));
        form->addRow(widget);
        m_Boxes.append({widget, box.text, box.isOn, box.store});
    }
    m_Limit = new LimitBox;
    auto* limit = new QHBoxLayout;  // its long label would move the language away from its own
    limit->addWidget(m_Limit->label());
    limit->addWidget(m_Limit);
    limit->addStretch();
    form->addRow(limit);
    retranslate();
}

void HostSettingsPage::load() {
    m_IsOpen = true;
    m_Language->setCurrentIndex(m_Language->findData(Change::GetLangName()));
    for (const Box& box : std::as_const(m_Boxes)) box.widget->setChecked(box.isOn());
    m_Limit->load();
}

bool HostSettingsPage::store() {
    if (!m_Widget) return true;
    for (const Box& box : std::as_const(m_Boxes)) {
        const bool on = box.widget->isChecked();
        if (on != box.isOn() && !box.store(on)) return false;
    }
    return m_Limit->store() && storeLanguage();
}

bool HostSettingsPage::storeLanguage() {
    const QString code = m_Language->currentData().toString();
    if (code.isEmpty() || code == Change::GetLangName()) return true;
    if (!Languages::store(code)) return false;
    emit languageChosen(code);
    return true;
}
