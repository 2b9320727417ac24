// SPDX-License-Identifier: MIT
#include "UnlockDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>

#include "HostText.h"
#include "LeastHeight.h"

namespace {

// 3GPP TS 31.101.
constexpr int LettersOfWidth = 52;
constexpr int LeastPin = 4;
constexpr int CodeLength = 8;

VRKS_ModemInfo modemNow() {
    VRKS_ModemInfo modem{};
    modem.size = sizeof modem;
    VRKS_DevSrv_GetModemInfo(&modem);
    return modem;
}

QLabel* makeText(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QString resultText(const VRKS_ModemInfo& modem) {
    switch (modem.unlockResult) {
        case VRKS_UNLOCK_PENDING:
            return hostText("IDS_HOST_UNLOCK_PENDING");
        case VRKS_UNLOCK_WRONG:
            return hostText("IDS_HOST_UNLOCK_WRONG");
        case VRKS_UNLOCK_NOT_ALLOWED:
            return hostText("IDS_HOST_UNLOCK_NOT_ALLOWED");
        case VRKS_UNLOCK_OTHER:
            return hostText("IDS_HOST_UNLOCK_FAILED", {QString::fromUtf8(modem.unlockWords)});
        default:
            return QString();
    }
}

void addLine(QGridLayout* grid, QWidget* widget) { grid->addWidget(widget, grid->rowCount(), 0, 1, 2); }

}  // namespace

UnlockDialog::UnlockDialog(QWidget* parent)
    : QDialog(parent),
      m_Intro(makeText("Unlock_Intro")),
      m_CodeLabel(new QLabel),
      m_PinLabel(new QLabel),
      m_RepeatLabel(new QLabel),
      m_Attempts(makeText("Unlock_Attempts")),
      m_UseLast(new QCheckBox),
      m_Result(makeText("Unlock_Result")),
      m_Buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel)) {
    setObjectName(QStringLiteral("Host_UnlockDialog"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_UseLast->setObjectName(QStringLiteral("Unlock_UseLast"));
    auto* grid = new QGridLayout(this);  // closes up where rows are hidden
    LeastHeight::keep(this);
    setMinimumWidth(LettersOfWidth * fontMetrics().averageCharWidth());  // what it says is sentences
    addLine(grid, m_Intro);
    m_Code = addField(grid, m_CodeLabel, "Unlock_Code");
    m_Pin = addField(grid, m_PinLabel, "Unlock_NewPin");
    m_Repeat = addField(grid, m_RepeatLabel, "Unlock_RepeatPin");
    for (QWidget* line : std::initializer_list<QWidget*>{m_Attempts, m_UseLast, m_Result, m_Buttons})
        addLine(grid, line);
    connect(m_UseLast, &QCheckBox::toggled, this, &UnlockDialog::refreshButtons);
    connect(m_Buttons, &QDialogButtonBox::accepted, this, &UnlockDialog::accept);
    connect(m_Buttons, &QDialogButtonBox::rejected, this, &UnlockDialog::reject);
    ask(modemNow());
    retranslate();
}

QLineEdit* UnlockDialog::addField(QGridLayout* grid, QLabel* label, const char* name) {
    auto* field = new QLineEdit;
    field->setObjectName(QLatin1String(name));
    field->setEchoMode(QLineEdit::Password);
    field->setMaxLength(CodeLength);
    field->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), field));
    field->setInputMethodHints(Qt::ImhDigitsOnly | Qt::ImhHiddenText | Qt::ImhSensitiveData);
    label->setBuddy(field);
    const int row = grid->rowCount();
    grid->addWidget(label, row, 0);
    grid->addWidget(field, row, 1);
    connect(field, &QLineEdit::textChanged, this, &UnlockDialog::refreshButtons);
    return field;
}

void UnlockDialog::refresh() {
    const VRKS_ModemInfo modem = modemNow();
    const bool isOver = modem.lock != VRKS_LOCK_PIN && modem.lock != VRKS_LOCK_PUK;
    if (isOver) return done(Accepted);
    if (modem.lock != m_Lock) ask(modem);
    m_IsPending = modem.unlockResult == VRKS_UNLOCK_PENDING;
    say(modem);
    refreshButtons();
}

void UnlockDialog::retranslate() {
    setWindowTitle(hostText("IDS_HOST_UNLOCK_TITLE"));
    m_Intro->setText(hostText(wantsPuk() ? "IDS_HOST_UNLOCK_PUK_INTRO" : "IDS_HOST_UNLOCK_PIN_INTRO"));
    m_CodeLabel->setText(hostText(wantsPuk() ? "IDS_HOST_UNLOCK_PUK" : "IDS_HOST_UNLOCK_PIN"));
    m_PinLabel->setText(hostText("IDS_HOST_UNLOCK_NEW_PIN"));
    m_RepeatLabel->setText(hostText("IDS_HOST_UNLOCK_REPEAT_PIN"));
    m_UseLast->setText(hostText("IDS_HOST_UNLOCK_USE_LAST"));
    m_Buttons->button(QDialogButtonBox::Ok)->setText(hostText("IDS_HOST_UNLOCK_NOW"));
    m_Buttons->button(QDialogButtonBox::Cancel)->setText(hostText("IDS_HOST_CANCEL"));
    say(modemNow());
    refreshButtons();
}

void UnlockDialog::accept() {
    if (!isComplete() || m_IsPending || (m_IsLast && !m_UseLast->isChecked())) return;
    const QByteArray code = m_Code->text().toLatin1();
    const QByteArray pin = m_Pin->text().toLatin1();
    m_IsSent = true;
    const bool wasSent = (wantsPuk() ? VRKS_DevSrv_EnterPuk(code, pin) : VRKS_DevSrv_EnterPin(code)) == 0;
    m_UseLast->setChecked(false);
    m_Code->clear();
    if (!wasSent) return m_Result->setText(hostText("IDS_HOST_UNLOCK_FAILED", {QString()}));
    refresh();
}

// The form for what the card asks for now.
void UnlockDialog::ask(const VRKS_ModemInfo& modem) {
    m_Lock = modem.lock;
    for (QLineEdit* field : {m_Code, m_Pin, m_Repeat}) field->clear();
    for (QWidget* widget : {static_cast<QWidget*>(m_PinLabel), static_cast<QWidget*>(m_Pin),
                            static_cast<QWidget*>(m_RepeatLabel), static_cast<QWidget*>(m_Repeat)})
        widget->setVisible(wantsPuk());
    m_Code->setFocus();
    m_UseLast->setChecked(false);
    if (!isHidden()) retranslate();
}

void UnlockDialog::say(const VRKS_ModemInfo& modem) {
    m_IsLast = modem.attempts == 1;
    QString attempts = modem.attempts < 0 ? hostText("IDS_HOST_UNLOCK_ATTEMPTS_UNKNOWN")
                                          : hostText("IDS_HOST_UNLOCK_ATTEMPTS", {QString::number(modem.attempts)});
    if (m_IsLast)
        attempts += QLatin1Char('\n') + hostText(wantsPuk() ? "IDS_HOST_UNLOCK_LAST_PUK" : "IDS_HOST_UNLOCK_LAST_PIN");
    m_Attempts->setText(attempts);
    m_UseLast->setVisible(m_IsLast);
    if (!m_IsLast) m_UseLast->setChecked(false);
    m_Result->setText(m_IsSent ? resultText(modem) : QString());
    m_Result->setVisible(!m_Result->text().isEmpty());
}

void UnlockDialog::refreshButtons() {
    const bool mayTry = !m_IsPending && (!m_IsLast || m_UseLast->isChecked());
    m_Buttons->button(QDialogButtonBox::Ok)->setEnabled(mayTry && isComplete());
}

bool UnlockDialog::isComplete() const {
    const auto isPin = [](const QLineEdit* field) { return field->text().size() >= LeastPin; };
    if (!wantsPuk()) return isPin(m_Code);
    return m_Code->text().size() == CodeLength && isPin(m_Pin) && m_Repeat->text() == m_Pin->text();
}
