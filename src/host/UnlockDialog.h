// SPDX-License-Identifier: MIT
// Unlocks the SIM card: asks for its PIN, or for its PUK and a new PIN.
#ifndef ORBISDIAL_UNLOCKDIALOG_H
#define ORBISDIAL_UNLOCKDIALOG_H

#include <vrks.h>

#include <QDialog>

class QCheckBox;
class QDialogButtonBox;
class QGridLayout;
class QLabel;
class QLineEdit;

// It says how many attempts are left, and spends the last one only after somebody agreed. It stays until the card is
// unlocked, gone, or somebody closes it; refresh() must be called when the modem changed.
class UnlockDialog : public QDialog {
    Q_OBJECT

public:
    explicit UnlockDialog(QWidget* parent = nullptr);

    // Asks the modem again.
    void refresh();

    void retranslate();

protected:
    void accept() override;  // sends what was typed

private:
    QLineEdit* addField(QGridLayout* grid, QLabel* label, const char* name);
    void ask(const VRKS_ModemInfo& modem);
    void refreshButtons();
    void say(const VRKS_ModemInfo& modem);
    bool isComplete() const;
    bool wantsPuk() const { return m_Lock == VRKS_LOCK_PUK; }

    int m_Lock = VRKS_LOCK_NONE;
    bool m_IsLast = false;
    bool m_IsSent = false;  // something of ours was sent, and the result is of interest
    bool m_IsPending = false;
    QLabel* m_Intro;
    QLabel* m_CodeLabel;
    QLabel* m_PinLabel;
    QLabel* m_RepeatLabel;
    QLineEdit* m_Code;  // PIN or PUK
    QLineEdit* m_Pin;   // the new one
    QLineEdit* m_Repeat;
    QLabel* m_Attempts;
    QCheckBox* m_UseLast;
    QLabel* m_Result;
    QDialogButtonBox* m_Buttons;
};

#endif
