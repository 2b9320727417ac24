// SPDX-License-Identifier: MIT
#include "BalanceDialog.h"

#include <QAccessible>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "ConnectionText.h"
#include "HostText.h"
#include "LeastHeight.h"
#include "PresetOperator.h"

namespace {

constexpr int LongestCommand = 182;  // characters, 3GPP TS 23.038

VRKS_Ussd session() {
    VRKS_Ussd ussd{};
    ussd.size = sizeof ussd;
    VRKS_NetSrv_GetUssd(&ussd);
    return ussd;
}

// Whether there is a modem that takes commands now.
bool canSend() {
    VRKS_ModemInfo modem{};
    modem.size = sizeof modem;
    return VRKS_DevSrv_GetModemInfo(&modem) == 0 && modem.status == VRKS_DEV_STATUS_READY && modem.hasUssd;
}

QLabel* makeText(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setWordWrap(true);
    return label;
}

// A screen reader tells of what the network said.
void say(QLabel* label, const QString& text) {
    label->setVisible(!text.isEmpty());
    if (label->text() == text) return;
    label->setText(text);
    QAccessibleEvent alert(label, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

}  // namespace

BalanceDialog::BalanceDialog(const QStringList& profiles, QWidget* parent)
    : QDialog(parent),
      m_Operator(presetOperator(profiles)),
      m_Way(makeText("Balance_Way")),
      m_CommandLabel(new QLabel),
      m_Ask(makeButton("Balance_Ask", &BalanceDialog::ask)),
      m_Command(makeEdit("Balance_Command", m_Ask)),
      m_Answer(makeText("Balance_Answer")),
      m_ReplyLabel(new QLabel),
      m_Send(makeButton("Balance_Send", &BalanceDialog::reply)),
      m_Reply(makeEdit("Balance_Reply", m_Send)),
      m_State(makeText("Balance_State")),
      m_Close(new QPushButton) {
    setObjectName(QStringLiteral("Host_BalanceDialog"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_Answer->setFrameShape(QFrame::StyledPanel);
    m_Answer->setMargin(fontMetrics().height() / 2);
    m_CommandLabel->setBuddy(m_Command);
    m_ReplyLabel->setBuddy(m_Reply);
    m_Close->setObjectName(QStringLiteral("Balance_Close"));
    m_Close->setAutoDefault(false);
    connect(m_Close, &QPushButton::clicked, this, &QDialog::reject);

    auto* grid = new QGridLayout(this);
    LeastHeight::keep(this);
    grid->addWidget(m_Way, 0, 0, 1, 3);
    grid->addWidget(m_CommandLabel, 1, 0);
    grid->addWidget(m_Command, 1, 1);
    grid->addWidget(m_Ask, 1, 2);
    grid->addWidget(m_Answer, 2, 0, 1, 3);
    grid->addWidget(m_ReplyLabel, 3, 0);
    grid->addWidget(m_Reply, 3, 1);
    grid->addWidget(m_Send, 3, 2);
    grid->addWidget(m_State, 4, 0, 1, 3);
    grid->addWidget(m_Close, 5, 2);
    grid->setColumnStretch(1, 1);
    setMinimumWidth(60 * fontMetrics().averageCharWidth());  // answers are sentences
    grid->setRowStretch(2, 1);
    const BalanceQuery* const command = m_Operator ? balanceCommand(*m_Operator) : nullptr;
    if (command) m_Command->setText(command->number);
    say(m_Answer, QString());
    retranslate();
}

BalanceDialog::~BalanceDialog() { endSession(); }

QPushButton* BalanceDialog::makeButton(const char* name, void (BalanceDialog::*slot)()) {
    auto* button = new QPushButton;
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);  // the edit in use says which one the Enter key means
    connect(button, &QPushButton::clicked, this, slot);
    return button;
}

QLineEdit* BalanceDialog::makeEdit(const char* name, QPushButton* button) {
    auto* edit = new QLineEdit;
    edit->setObjectName(QLatin1String(name));
    edit->setMaxLength(LongestCommand);
    connect(edit, &QLineEdit::textChanged, this, &BalanceDialog::refreshButtons);
    connect(edit, &QLineEdit::returnPressed, button, &QPushButton::click);
    return edit;
}

void BalanceDialog::refresh() {
    if (m_IsOpen) takeSession();
    retranslate();
}

void BalanceDialog::retranslate() {
    setWindowTitle(hostText("IDS_HOST_BALANCE_TITLE"));
    m_Way->setText(wayText());
    m_CommandLabel->setText(hostText("IDS_HOST_BALANCE_COMMAND"));
    m_Ask->setText(hostText("IDS_HOST_BALANCE_ASK"));
    m_ReplyLabel->setText(hostText("IDS_HOST_BALANCE_REPLY"));
    m_Send->setText(hostText("IDS_HOST_BALANCE_SEND"));
    m_Close->setText(hostText("IDS_HOST_CLOSE"));
    refreshButtons();
}

void BalanceDialog::done(int result) {
    endSession();
    QDialog::done(result);
}

void BalanceDialog::ask() {
    const QByteArray command = m_Command->text().trimmed().toUtf8();
    m_IsOpen = VRKS_NetSrv_SendUssd(command.constData()) == 0;
    m_Failure = m_IsOpen ? VRKS_USSD_FAILURE_NONE : VRKS_USSD_FAILURE_OTHER;
    m_Words.clear();
    say(m_Answer, QString());
    refreshButtons();
}

void BalanceDialog::reply() {
    const QByteArray text = m_Reply->text().trimmed().toUtf8();
    m_Reply->clear();
    m_Asks = false;
    if (VRKS_NetSrv_AnswerUssd(text.constData()) != 0) m_Failure = VRKS_USSD_FAILURE_OTHER;
    refreshButtons();
}

void BalanceDialog::takeSession() {
    const VRKS_Ussd ussd = session();
    if (ussd.state == VRKS_USSD_SENT) return;
    const bool asked = m_Asks;
    m_Asks = ussd.state == VRKS_USSD_ASKS;
    m_IsOpen = m_Asks;
    m_Failure = ussd.state == VRKS_USSD_FAILED ? ussd.failure : VRKS_USSD_FAILURE_NONE;
    m_Words = QString::fromUtf8(ussd.words);
    if (ussd.state != VRKS_USSD_FAILED) say(m_Answer, QString::fromUtf8(ussd.text));
    refreshButtons();
    if (m_Asks && !asked) m_Reply->setFocus();
}

// Networks let a session stay open, and cost for it.
void BalanceDialog::endSession() {
    if (m_IsOpen) VRKS_NetSrv_CancelUssd();
    m_IsOpen = m_Asks = false;
}

void BalanceDialog::refreshButtons() {
    const bool isWaiting = m_IsOpen && !m_Asks;
    const bool isPossible = canSend();
    m_Command->setEnabled(!m_IsOpen);
    m_Ask->setEnabled(!m_IsOpen && isPossible && !m_Command->text().trimmed().isEmpty());
    for (QWidget* widget :
         {static_cast<QWidget*>(m_ReplyLabel), static_cast<QWidget*>(m_Reply), static_cast<QWidget*>(m_Send)})
        widget->setVisible(m_Asks);
    m_Send->setEnabled(!m_Reply->text().trimmed().isEmpty());
    QString state = ConnectionText::ussdFailure(m_Failure);
    if (!state.isEmpty() && !m_Words.isEmpty()) state += QLatin1Char('\n') + m_Words;
    if (isWaiting) state = hostText("IDS_HOST_BALANCE_WAITING");
    if (!isPossible && state.isEmpty()) state = hostText("IDS_HOST_BALANCE_NOT_NOW");
    say(m_State, state);
    makeRoom();
}

// A layout grows with lines that wrap, but its window does not.
void BalanceDialog::makeRoom() {
    if (!layout()) return;
    layout()->activate();
    const int needed = layout()->totalHeightForWidth(width());
    if (needed > height()) resize(width(), needed);
}

QString BalanceDialog::wayText() const {
    if (!m_Operator || m_Operator->balanceQueries.isEmpty()) return hostText("IDS_HOST_BALANCE_UNKNOWN");
    const QString& name = m_Operator->names.first();
    if (const BalanceQuery* const command = balanceCommand(*m_Operator))
        return hostText("IDS_HOST_BALANCE_BY_COMMAND", {name, command->number});
    QStringList lines{hostText("IDS_HOST_BALANCE_BY_HAND", {name})};
    for (const BalanceQuery& query : m_Operator->balanceQueries)
        lines.append(directed(ConnectionText::balanceByHand(query)));
    return lines.join(QLatin1Char('\n'));
}
