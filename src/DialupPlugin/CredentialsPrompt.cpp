// SPDX-License-Identifier: MIT
#include "CredentialsPrompt.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

#include "ConnectionText.h"
#include "ExtendLineEdit.h"

namespace {

template <class T>
T* named(T* widget, const char* name) {
    widget->setObjectName(QLatin1String("DialupPlugin_") + QLatin1String(name));
    return widget;
}

}  // namespace

CredentialsPrompt::CredentialsPrompt(const QString& name, const DialupProfile& profile, QWidget* parent)
    : QDialog(parent),
      m_Name(name),
      m_Text(named(new QLabel, "PromptText")),
      m_UserLabel(named(new QLabel, "UserLabel")),
      m_PasswordLabel(named(new QLabel, "PasswordLabel")),
      m_User(named(new ExtendLineEdit, "UserEdit")),
      m_Password(named(new ExtendLineEdit, "PasswordEdit")) {
    named(this, "CredentialsPrompt");
    setAttribute(Qt::WA_DeleteOnClose);
    m_Text->setTextFormat(Qt::PlainText);
    m_Text->setWordWrap(true);
    m_User->setText(profile.user);
    m_Password->setText(profile.password);
    m_Password->setEchoMode(QLineEdit::Password);
    m_UserLabel->setBuddy(m_User);
    m_PasswordLabel->setBuddy(m_Password);

    // No standard buttons: on a language change the box would give them Qt's own texts.
    auto* buttons = new QDialogButtonBox;
    m_Connect = named(buttons->addButton(QString(), QDialogButtonBox::AcceptRole), "ConnectButton");
    m_Cancel = named(buttons->addButton(QString(), QDialogButtonBox::RejectRole), "CancelButton");
    m_Connect->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* form = new QFormLayout(this);
    form->addRow(m_Text);
    form->addRow(m_UserLabel, m_User);
    form->addRow(m_PasswordLabel, m_Password);
    form->addRow(buttons);
    retranslate();
}

QString CredentialsPrompt::user() const { return m_User->text(); }

QString CredentialsPrompt::password() const { return m_Password->text(); }

void CredentialsPrompt::retranslate() {
    setWindowTitle(ConnectionText::text("IDS_DIALUP_PROMPT_TITLE"));
    m_Text->setText(ConnectionText::text("IDS_DIALUP_PROMPT_TEXT", m_Name));
    m_UserLabel->setText(ConnectionText::text("IDS_DIALUP_USER"));
    m_PasswordLabel->setText(ConnectionText::text("IDS_DIALUP_PASSWORD"));
    m_Connect->setText(ConnectionText::text("IDS_DIALUP_CONNECT"));
    m_Cancel->setText(ConnectionText::text("IDS_DIALUP_CANCEL"));
}
