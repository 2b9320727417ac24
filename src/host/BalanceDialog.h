// SPDX-License-Identifier: MIT
// Asks the network for a prepaid card's balance, and shows what it says.
#ifndef ORBISDIAL_BALANCEDIALOG_H
#define ORBISDIAL_BALANCEDIALOG_H

#include <vrks.h>

#include <QDialog>
#include <optional>

#include "OperatorIndex.h"

class QLabel;
class QLineEdit;
class QPushButton;

// It proposes the operator's command, or tells what to do where the operator has none. Nothing is sent before the user
// says so. A session that the network leaves open is answered here, and ended with the dialog. refresh() must be called
// when the device SDK told of something.
class BalanceDialog : public QDialog {
    Q_OBJECT

public:
    // The profiles that may tell the operator, see presetOperator().
    explicit BalanceDialog(const QStringList& profiles, QWidget* parent);
    ~BalanceDialog() override;

    // Asks the modem again.
    void refresh();

    void retranslate();

    void done(int result) override;

private:
    QPushButton* makeButton(const char* name, void (BalanceDialog::*slot)());
    QLineEdit* makeEdit(const char* name, QPushButton* button);
    void ask();
    void reply();
    void takeSession();
    void endSession();
    void refreshButtons();
    void makeRoom();
    QString wayText() const;

    const std::optional<OperatorEntry> m_Operator;
    bool m_IsOpen = false;  // a session of ours
    bool m_Asks = false;    // the network waits for a reply
    int m_Failure = VRKS_USSD_FAILURE_NONE;
    QString m_Words;  // the network's, for the failure
    QLabel* m_Way;
    QLabel* m_CommandLabel;
    QPushButton* m_Ask;
    QLineEdit* m_Command;
    QLabel* m_Answer;
    QLabel* m_ReplyLabel;
    QPushButton* m_Send;
    QLineEdit* m_Reply;
    QLabel* m_State;
    QPushButton* m_Close;
};

#endif
