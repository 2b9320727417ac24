// SPDX-License-Identifier: MIT
// pin, puk.

#include <QRegularExpression>

#include "Command.h"
#include "CommandError.h"
#include "Commands.h"
#include "EventWait.h"
#include "HiddenInput.h"
#include "ModemReport.h"
#include "Output.h"

namespace {

constexpr int PatienceSeconds = 60;  // a card answers within seconds

struct LockKind {
    int lock;
    const char* name;
    const char* command;
    const char* loss;  // what comes after the last attempt
};

constexpr LockKind Pin{VRKS_LOCK_PIN, "PIN", "pin", "then the card asks for its PUK"};
constexpr LockKind Puk{VRKS_LOCK_PUK, "PUK", "puk", "then the card is lost"};

VRKS_ModemInfo modemInUse() {
    VRKS_ModemInfo info;
    if (!ModemReport::current(&info)) throw CommandError::failed("nothing can tell which modem is in use");
    if (!*info.id) throw CommandError::notFound("there is no modem");
    if (info.card == VRKS_CARD_NONE) throw CommandError::notFound("there is no SIM card");
    return info;
}

QString attemptsText(int attempts) {
    if (attempts < 0) return "how many attempts are left is not known";
    return attempts == 1 ? QString("1 attempt is left") : QString("%1 attempts are left").arg(attempts);
}

[[noreturn]] void refuseOtherLock(int lock, const LockKind& wanted) {
    for (const LockKind& kind : {Pin, Puk})
        if (kind.lock == lock)
            throw CommandError::refused(
                QString("the card asks for its %1; see orbisctl %2").arg(kind.name, kind.command));
    if (lock == VRKS_LOCK_NONE) throw CommandError::refused(QString("the card asks for no %1").arg(wanted.name));
    throw CommandError::refused("the card is locked in a way that neither PIN nor PUK opens");
}

// What nobody knows the number of may be the last, too.
void refuseLast(const VRKS_ModemInfo& info, const LockKind& kind, bool mayBeLast) {
    if (mayBeLast || info.attempts > 1) return;
    throw CommandError::refused(QString("%1, %2; --last takes it").arg(attemptsText(info.attempts), kind.loss));
}

VRKS_ModemInfo lockedModem(const LockKind& kind, bool mayBeLast) {
    const VRKS_ModemInfo info = modemInUse();
    if (info.lock != kind.lock) refuseOtherLock(info.lock, kind);
    refuseLast(info, kind, mayBeLast);
    return info;
}

// The cards' own rule, so that what can't be one costs no attempt: 3GPP TS 31.101, clause 9.
QString checkedDigits(const QString& text, const char* name, int fewest) {
    const QRegularExpression digits(QString("\\A[0-9]{%1,8}\\z").arg(fewest));
    if (digits.match(text).hasMatch()) return text;
    throw CommandError::failed(QString("a %1 has %2 digits").arg(name, fewest == 8 ? "8" : "4 to 8"));
}

QString readPin(const QString& prompt) { return checkedDigits(readHiddenLine(prompt, "PIN"), "PIN", 4); }

QString readNewPin() {
    const QString pin = readPin("New PIN: ");
    if (isTerminalInput() && readPin("New PIN again: ") != pin) throw CommandError::failed("the two PINs differ");
    return pin;
}

[[noreturn]] void refuse(const VRKS_ModemInfo& info, const LockKind& kind) {
    const QString words = QString::fromUtf8(info.unlockWords);
    const QString details = words.isEmpty() ? QString() : " (" + words + ')';
    if (info.unlockResult == VRKS_UNLOCK_NOT_ALLOWED)
        throw CommandError::refused("this user may not unlock the card" + details);
    if (info.unlockResult != VRKS_UNLOCK_WRONG) throw CommandError::failed("the card can't be unlocked" + details);
    const QString wrong = QString("wrong %1: ").arg(kind.name);
    if (info.lock == kind.lock) throw CommandError::refused(wrong + attemptsText(info.attempts));
    if (info.lock == VRKS_LOCK_PUK) throw CommandError::refused(wrong + "the card now asks for its PUK");
    throw CommandError::refused(wrong + "nothing opens the card any more");
}

// The events are listened to before the code is on its way, so that the result is never missed.
void waitForResult(const EventWait& events, const QDeadlineTimer& deadline, const LockKind& kind, Output& output) {
    VRKS_ModemInfo info;
    while (ModemReport::current(&info) && info.unlockResult == VRKS_UNLOCK_PENDING)
        if (events.wait(deadline) == EventWait::TimeIsUp)
            throw CommandError::timedOut("the card does not answer; whether it took the code is not known");
    if (info.unlockResult != VRKS_UNLOCK_DONE) refuse(info, kind);
    output.result({{"unlocked", true}}, {"the card is unlocked"});
}

void requireBegun(long status) {
    if (status != 0) throw CommandError::failed("the card takes no code now");
}

}  // namespace

void enterPin(const Invocation& invocation, Output& output) {
    const bool mayBeLast = invocation.isSet("last");
    const qint64 patience = invocation.patience(PatienceSeconds);
    const VRKS_ModemInfo info = lockedModem(Pin, mayBeLast);
    const QString pin = readPin(QString("PIN (%1): ").arg(attemptsText(info.attempts)));
    lockedModem(Pin, mayBeLast);  // somebody may have tried meanwhile
    const EventWait events;
    requireBegun(VRKS_DevSrv_EnterPin(pin.toLatin1().constData()));
    waitForResult(events, QDeadlineTimer(patience), Pin, output);
}

void enterPuk(const Invocation& invocation, Output& output) {
    const bool mayBeLast = invocation.isSet("last");
    const qint64 patience = invocation.patience(PatienceSeconds);
    const VRKS_ModemInfo info = lockedModem(Puk, mayBeLast);
    const QString prompt = QString("PUK (%1): ").arg(attemptsText(info.attempts));
    const QString puk = checkedDigits(readHiddenLine(prompt, "PUK"), "PUK", 8);
    const QString pin = readNewPin();
    lockedModem(Puk, mayBeLast);
    const EventWait events;
    requireBegun(VRKS_DevSrv_EnterPuk(puk.toLatin1().constData(), pin.toLatin1().constData()));
    waitForResult(events, QDeadlineTimer(patience), Puk, output);
}
