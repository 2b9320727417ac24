#include "HostSettingsPage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>

#include "CommonUtils.h"
#include "HostText.h"
#include "Languages.h"

namespace {

const QString SwitchGroup = QStringLiteral("ConnectionSetting");
const QString SwitchKey = QStringLiteral("load");
const QString True = QStringLiteral("true");

bool keepsDefault() { return CommonUtils::GetSettings(SwitchGroup, SwitchKey).contains(True); }

bool storeSwitch(bool on) {
    return CommonUtils::SetSettings(SwitchGroup, SwitchKey, on ? True : QStringLiteral("false"));
}

}  // namespace

HostSettingsPage::~HostSettingsPage() { delete m_Widget; }

int HostSettingsPage::OnClickSettingOkButton() {
    if (!m_Widget || store()) return 1;
    CommonUtils::ShowMessage(QMessageBox::Warning, m_Widget, hostText("IDS_HOST_TITLE"),
                             hostText("IDS_HOST_SETTINGS_NOT_SAVED"), QStringLiteral("IDS_OK"));
    return 0;
}

int HostSettingsPage::OnClickSettingCancelButton() { return 1; }

int HostSettingsPage::ShowSettingDialog(QWidget* parent, QRect& rect) {
    if (!m_Widget) build();
    load();
    m_Widget->setParent(parent);
    m_Widget->setGeometry(rect);
    m_Widget->show();
    return 1;
}

QString HostSettingsPage::GetModuleName() { return hostText("IDS_HOST_SETTINGS_NAME"); }

int HostSettingsPage::HideSetting() {
    if (OnClickSettingOkButton() == 0) return 0;
    if (m_Widget) m_Widget->hide();
    return 1;
}

bool HostSettingsPage::IsActiveSetting() { return m_Widget && m_Widget->isVisible(); }

void HostSettingsPage::retranslate() {
    if (!m_Widget) return;
    m_LanguageLabel->setText(hostText("IDS_HOST_LANGUAGE"));
    m_KeepDefault->setText(hostText("IDS_HOST_LOCK_DEFAULT"));
}

void HostSettingsPage::build() {
    m_Widget = new QWidget;
    m_Widget->setObjectName(QStringLiteral("Host_SettingsPage"));
    m_LanguageLabel = new QLabel;
    m_Language = new QComboBox;
    m_Language->setObjectName(QStringLiteral("Host_LanguageBox"));
    m_LanguageLabel->setBuddy(m_Language);
    for (const QString& code : Change::GetLanguages()) m_Language->addItem(Languages::title(code), code);
    m_KeepDefault = new QCheckBox;
    m_KeepDefault->setObjectName(QStringLiteral("Host_KeepDefaultBox"));

    auto* form = new QFormLayout(m_Widget);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->addRow(m_LanguageLabel, m_Language);
    form->addRow(m_KeepDefault);
    retranslate();
}

void HostSettingsPage::load() {
    m_Language->setCurrentIndex(m_Language->findData(Change::GetLangName()));
    m_KeepDefault->setChecked(keepsDefault());
}

bool HostSettingsPage::store() {
    if (m_KeepDefault->isChecked() != keepsDefault() && !storeSwitch(m_KeepDefault->isChecked())) return false;
    const QString code = m_Language->currentData().toString();
    if (code.isEmpty() || code == Change::GetLangName()) return true;
    if (!Languages::store(code)) return false;
    emit languageChosen(code);
    return true;
}
