// SPDX-License-Identifier: MIT
#include "NewProfileDialog.h"

#include <QAccessible>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "HostText.h"
#include "LeastHeight.h"
#include "Plugins.h"

namespace {

constexpr int LettersOfWidth = 40;

QLabel* makeText(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

// The first profile of one's own is meant to be used.
bool isFirst() {
    IPresetLibrary* const library = Plugins::presets();
    QString standard;
    if (INetConnectSetting* const profiles = Plugins::profiles()) profiles->GetDefaultDialUpProfileName(&standard);
    return standard.isEmpty() || (library && !library->HasOwnProfiles());
}

int longestName() {
    QString length;
    if (INetConnectSetting* const profiles = Plugins::profiles())
        profiles->GetFunctionConfigStringValues(QStringLiteral("ProfileNameLength"), &length);
    constexpr int UsualLength = 48;
    return length.toInt() > 0 ? length.toInt() : UsualLength;
}

}  // namespace

NewProfileDialog::NewProfileDialog(const DialupProfile& values, const QString& wish, QWidget* parent)
    : QDialog(parent),
      m_Values(values),
      m_Intro(makeText("NewProfile_Intro")),
      m_NameLabel(new QLabel),
      m_Name(new QLineEdit),
      m_MakeDefault(new QCheckBox),
      m_Problem(makeText("NewProfile_Problem")),
      m_Buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel)) {
    setObjectName(QStringLiteral("Host_NewProfileDialog"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setAttribute(Qt::WA_DeleteOnClose);
    m_Name->setObjectName(QStringLiteral("NewProfile_Name"));
    m_Name->setMaxLength(longestName());
    m_Name->setMinimumWidth(LettersOfWidth * fontMetrics().averageCharWidth());
    m_NameLabel->setBuddy(m_Name);
    m_MakeDefault->setObjectName(QStringLiteral("NewProfile_MakeDefault"));
    m_MakeDefault->setEnabled(mayBecomeDefault());
    m_MakeDefault->setChecked(m_MakeDefault->isEnabled() && isFirst());
    m_Problem->hide();
    auto* form = new QFormLayout(this);
    LeastHeight::keep(this);
    form->addRow(m_Intro);
    form->addRow(m_NameLabel, m_Name);
    form->addRow(m_MakeDefault);
    form->addRow(m_Problem);
    form->addRow(m_Buttons);
    connect(m_Name, &QLineEdit::textChanged, this, &NewProfileDialog::refreshButton);
    connect(m_Buttons, &QDialogButtonBox::accepted, this, &NewProfileDialog::accept);
    connect(m_Buttons, &QDialogButtonBox::rejected, this, &NewProfileDialog::reject);
    QString name;
    if (IPresetLibrary* const library = Plugins::presets()) library->ProposeProfileName(wish, &name);
    m_Name->setText(name);
    m_Name->setSelection(name.size(), -name.size());  // a long one shows its beginning
    retranslate();
}

NewProfileDialog::~NewProfileDialog() { m_Values.password.fill(QChar()); }

void NewProfileDialog::retranslate() {
    setWindowTitle(hostText("IDS_HOST_NEW_PROFILE_TITLE"));
    m_Intro->setText(hostText("IDS_HOST_NEW_PROFILE_INTRO", {m_Values.name}));
    m_NameLabel->setText(hostText("IDS_HOST_NEW_PROFILE_NAME"));
    m_Problem->hide();  // it was said in the language of before
    m_MakeDefault->setText(hostText("IDS_HOST_NEW_PROFILE_DEFAULT"));
    m_MakeDefault->setToolTip(mayBecomeDefault() ? QString() : hostText("IDS_HOST_NEW_PROFILE_CONNECTED"));
    m_MakeDefault->setAccessibleDescription(m_MakeDefault->toolTip());
    m_Buttons->button(QDialogButtonBox::Ok)->setText(hostText("IDS_HOST_NEW_PROFILE_MAKE"));
    m_Buttons->button(QDialogButtonBox::Cancel)->setText(hostText("IDS_HOST_CANCEL"));
}

void NewProfileDialog::accept() {
    IPresetLibrary* const library = Plugins::presets();
    if (!library) return reject();
    DialupProfile profile = m_Values;
    profile.name = m_Name->text().trimmed();
    QString reason;
    if (library->AddOwnProfile(profile, &reason) == 0) {
        INetConnectSetting* const profiles = Plugins::profiles();
        if (m_MakeDefault->isChecked() && profiles) profiles->SetDefaultDialUpProfileName(profile.name);
        emit made(profile.name);
        return QDialog::accept();
    }
    m_Problem->setText(reason);
    m_Problem->show();
    m_Name->setFocus();
    m_Name->selectAll();
    QAccessibleEvent alert(m_Problem, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

// As in the settings: not under a connection that is up.
bool NewProfileDialog::mayBecomeDefault() const {
    IDialupUIService* const dialer = Plugins::dialer();
    return !dialer || !dialer->IsConnected();
}

void NewProfileDialog::refreshButton() {
    m_Buttons->button(QDialogButtonBox::Ok)->setEnabled(!m_Name->text().trimmed().isEmpty());
}
