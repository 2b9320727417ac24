// SPDX-License-Identifier: MIT
// pin, puk.

#include <QRegularExpression>

#include "Command.h"
#include "CommandError.h"
#include "Commands.h"
#include "EventWait.h"
#include "HiddenInput.h"
#include "Message.h"
#include "ModemReport.h"
#include "Output.h"

namespace {

constexpr int PatienceSeconds = 60;  // a card answers within seconds

struct LockKind {
    int lock;
    const char* name;
    const char* command;
    const char* loss;  // what comes after the last attempt, and how to take it
};

constexpr LockKind Pin{VRKS_LOCK_PIN, "PIN", "pin",
                       QT_TRANSLATE_NOOP("Programs", "%1; then the card asks for its PUK; --last takes it")};
constexpr LockKind Puk{VRKS_LOCK_PUK, "PUK", "puk",
                       QT_TRANSLATE_NOOP("Programs", "%1; then the card is lost; --last takes it")};

VRKS_ModemInfo modemInUse() {
    const VRKS_ModemInfo info = ModemReport::required();
    if (!*info.id) throw CommandError::notFound(message("there is no modem"));
    if (info.card == VRKS_CARD_NONE) throw CommandError::notFound(message("there is no SIM card"));
    return info;
}

QString attemptsText(int attempts) {
    if (attempts < 0) return message("how many attempts are left is not known");
    return message("attempts left: %1", {QString::number(attempts)});
}

[[noreturn]] void refuseOtherLock(int lock, const LockKind& wanted) {
    for (const LockKind& kind : {Pin, Puk})
        if (kind.lock == lock)
            throw CommandError::refused(
                message("the card asks for its %1; see orbisctl %2", {kind.name, kind.command}));
    if (lock == VRKS_LOCK_NONE) throw CommandError::refused(message("the card asks for no %1", {wanted.name}));
    throw CommandError::refused(message("the card is locked in a way that neither PIN nor PUK opens"));
}

// What nobody knows the number of may be the last, too.
void refuseLast(const VRKS_ModemInfo& info, const LockKind& kind, bool mayBeLast) {
    if (mayBeLast || info.attempts > 1) return;
    throw CommandError::refused(message(kind.loss, {attemptsText(info.attempts)}));
}

VRKS_ModemInfo lockedModem(const LockKind& kind, bool mayBeLast) {
    const VRKS_ModemInfo info = modemInUse();
    if (info.lock != kind.lock) refuseOtherLock(info.lock, kind);
    refuseLast(info, kind, mayBeLast);
    return info;
}

// The cards' own rule, so that what can't be one costs no attempt: 3GPP TS 31.101, clause 9.
void requireDigits(const QString& text, int fewest, const char* rule) {
    const QRegularExpression digits(QString("\\A[0-9]{%1,8}\\z").arg(fewest));
    if (!digits.match(text).hasMatch()) throw CommandError::failed(message(rule));
}

QString readPin(const QString& prompt) {
    const QString pin = readHiddenLine(prompt, "PIN");
    requireDigits(pin, 4, QT_TRANSLATE_NOOP("Programs", "a PIN has 4 to 8 digits"));
    return pin;
}

QString readPuk(const QString& prompt) {
    const QString puk = readHiddenLine(prompt, "PUK");
    requireDigits(puk, 8, QT_TRANSLATE_NOOP("Programs", "a PUK has 8 digits"));
    return puk;
}

QString readNewPin() {
    const QString pin = readPin(message("New PIN: "));
    if (isTerminalInput() && readPin(message("New PIN again: ")) != pin)
        throw CommandError::failed(message("the two PINs differ"));
    return pin;
}

[[noreturn]] void refuse(const VRKS_ModemInfo& info, const LockKind& kind) {
    const QString words = QString::fromUtf8(info.unlockWords);
    if (info.unlockResult == VRKS_UNLOCK_NOT_ALLOWED)
        throw CommandError::refused(withDetails(message("this user may not unlock the card"), words));
    if (info.unlockResult != VRKS_UNLOCK_WRONG)
        throw CommandError::failed(withDetails(message("the card can't be unlocked"), words));
    if (info.lock == kind.lock)
        throw CommandError::refused(message("wrong %1: %2", {kind.name, attemptsText(info.attempts)}));
    if (info.lock == VRKS_LOCK_PUK)
        throw CommandError::refused(message("wrong %1: the card now asks for its PUK", {kind.name}));
    throw CommandError::refused(message("wrong %1: nothing opens the card any more", {kind.name}));
}

// The events are listened to before the code is on its way, so that the result is never missed.
void waitForResult(const EventWait& events, const QDeadlineTimer& deadline, const LockKind& kind, Output& output) {
    VRKS_ModemInfo info;
    while (ModemReport::current(&info) && info.unlockResult == VRKS_UNLOCK_PENDING)
        if (events.wait(deadline) == EventWait::TimeIsUp)
            throw CommandError::timedOut(message("the card does not answer; whether it took the code is not known"));
    if (info.unlockResult != VRKS_UNLOCK_DONE) refuse(info, kind);
    output.result({{"unlocked", true}}, {message("the card is unlocked")});
}

void requireBegun(long status) {
    if (status != 0) throw CommandError::failed(message("the card takes no code now"));
}

}  // namespace

void enterPin(const Invocation& invocation, Output& output) {
    const bool mayBeLast = invocation.isSet("last");
    const qint64 patience = invocation.patience(PatienceSeconds);
    const VRKS_ModemInfo info = lockedModem(Pin, mayBeLast);
    const QString pin = readPin(message("PIN (%1): ", {attemptsText(info.attempts)}));
    lockedModem(Pin, mayBeLast);  // somebody may have tried meanwhile
    const EventWait events;
    requireBegun(VRKS_DevSrv_EnterPin(pin.toLatin1().constData()));
    waitForResult(events, QDeadlineTimer(patience), Pin, output);
}

void enterPuk(const Invocation& invocation, Output& output) {
    const bool mayBeLast = invocation.isSet("last");
    const qint64 patience = invocation.patience(PatienceSeconds);
    const VRKS_ModemInfo info = lockedModem(Puk, mayBeLast);
    const QString puk = readPuk(message("PUK (%1): ", {attemptsText(info.attempts)}));
    const QString pin = readNewPin();
    lockedModem(Puk, mayBeLast);
    const EventWait events;
    requireBegun(VRKS_DevSrv_EnterPuk(puk.toLatin1().constData(), pin.toLatin1().constData()));
    waitForResult(events, QDeadlineTimer(patience), Puk, output);
}
