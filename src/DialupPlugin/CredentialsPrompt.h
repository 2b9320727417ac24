// SPDX-License-Identifier: MIT
// Asks for the user name and the password of one connection.
//
// The answer is accept() or reject(); what was typed goes no further than this dialog and its reader.
#ifndef ORBISDIAL_CREDENTIALSPROMPT_H
#define ORBISDIAL_CREDENTIALSPROMPT_H

#include <QDialog>

#include "NetConnectRecords.h"

class QLabel;
class QLineEdit;
class QPushButton;

class CredentialsPrompt : public QDialog {
    Q_OBJECT

public:
    // The edits start with what the profile holds. The name is the profile's name as the user knows it.
    CredentialsPrompt(const QString& name, const DialupProfile& profile, QWidget* parent);

    // What was typed.
    QString user() const;
    QString password() const;

    // Sets every text in the current language.
    void retranslate();

private:
    QString m_Name;
    QLabel* m_Text;
    QLabel* m_UserLabel;
    QLabel* m_PasswordLabel;
    QLineEdit* m_User;
    QLineEdit* m_Password;
    QPushButton* m_Connect;
    QPushButton* m_Cancel;
};

#endif
