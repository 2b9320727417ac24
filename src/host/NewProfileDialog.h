// SPDX-License-Identifier: MIT
// Makes a profile of the user's own from another one: asks for its name.
#ifndef ORBISDIAL_NEWPROFILEDIALOG_H
#define ORBISDIAL_NEWPROFILEDIALOG_H

#include <QDialog>

#include "NetConnectRecords.h"

class QCheckBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;

// What is wrong with a name is said below it, and the dialog stays. It must only be made where there is an
// IPresetLibrary.
class NewProfileDialog : public QDialog {
    Q_OBJECT

public:
    // The values, their password in plain text, for the new profile; its name is proposed after the wish.
    NewProfileDialog(const DialupProfile& values, const QString& wish, QWidget* parent);

    ~NewProfileDialog() override;

    void retranslate();

signals:
    // The profile is stored.
    void made(const QString& name);

protected:
    void accept() override;

private:
    bool mayBecomeDefault() const;
    void refreshButton();

    DialupProfile m_Values;
    QLabel* m_Intro;
    QLabel* m_NameLabel;
    QLineEdit* m_Name;
    QCheckBox* m_MakeDefault;
    QLabel* m_Problem;
    QDialogButtonBox* m_Buttons;
};

#endif
