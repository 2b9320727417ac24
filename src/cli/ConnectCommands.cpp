// SPDX-License-Identifier: MIT
// connect, disconnect, status.

#include <unistd.h>
#include <vrks_simulated.h>

#include "AutoConnectPolicy.h"
#include "Command.h"
#include "CommandError.h"
#include "Commands.h"
#include "ConnectionReport.h"
#include "ConnectionSettings.h"
#include "ConnectionText.h"
#include "CredentialsMark.h"
#include "DialCall.h"
#include "EventWait.h"
#include "HiddenInput.h"
#include "Message.h"
#include "Output.h"
#include "ProfileSession.h"
#include "VolumeCount.h"

namespace {

constexpr int AddressMs = 1000;
constexpr int TellingMs = 500;
constexpr int HangUpSeconds = 15;  // the service takes a second or two

struct Wanted {
    QString name;
    DialupProfile profile;
    bool mustAsk = false;  // for user name and password
};

QString wantedName(const ProfileSession& session, const Invocation& invocation) {
    if (!invocation.arguments().isEmpty()) return invocation.arguments().first();
    const QString name = session.defaultName();
    if (name.isEmpty())
        throw CommandError::notFound(message("there is no default profile; name one: orbisctl connect NAME"));
    return name;
}

bool mustAsk(const ProfileSession& session, const DialupProfile& profile) {
    const UserPrompt prompt = session->GetUserNamePasswdPromptInfo();
    return profile.popusername == "true" && prompt.promptPwd == "true" && prompt.userCheck == "true";
}

// A damaged file of other profiles is no reason to stay without a network.
void warnOfProblem(ProfileSession* session) {
    try {
        session->finish();
    } catch (const CommandError& error) {
        printWarning(error.text);
    }
}

Wanted wantedProfile(const Invocation& invocation) {
    ProfileSession session(ProfileSession::Reading);
    Wanted wanted;
    wanted.name = wantedName(session, invocation);
    wanted.profile = session.readableProfile(wanted.name);
    wanted.mustAsk = mustAsk(session, wanted.profile);
    warnOfProblem(&session);
    return wanted;
}

// Where nobody can be asked, what is stored must do.
void askCredentials(Wanted* wanted) {
    if (!wanted->mustAsk || !isTerminalInput()) return;
    DialupProfile& profile = wanted->profile;
    const QString user =
        readShownLine(message("User name [%1]: ", {profile.user}), QT_TRANSLATE_NOOP("Programs", "user name"));
    if (!user.isEmpty()) profile.user = user;
    const QString password =
        readPassword(profile.password.isEmpty() ? message("Password: ") : message("Password [as stored]: "));
    if (!password.isEmpty()) profile.password = password;
}

void refuseUndiallable(const Wanted& wanted) {
    const QString field = DialCall::badField(wanted.profile);
    if (field.isEmpty()) return;
    const QString text = ConnectionText::badField(field, wanted.name);
    throw CommandError::refused(withReason(field, text.isEmpty() ? message("can't be dialled with") : text));
}

void warn(const QStringList& notes) {
    for (const QString& note : notes)
        if (!note.isEmpty()) printWarning(note);
}

// False when it did not end in time, or was not allowed to. A signal is why it is to end, and no reason to wait less.
bool waitUntilDown(const EventWait& events, const QDeadlineTimer& deadline) {
    for (;;) {
        const DataConnection connection = DataConnection::current();
        if (connection.isDown()) return true;
        if (connection.isUp() && connection.failure != VRKS_FAILURE_NONE) return false;
        if (events.wait(deadline, EventWait::NoSignal) == EventWait::TimeIsUp) return false;
    }
}

class Dialling {
public:
    Dialling(const Invocation& invocation, Output& output)
        : m_bHolds(invocation.isSet("hold")), m_Deadline(invocation.patience()), m_Output(output) {}

    void run(const Wanted& wanted) {
        begin(wanted);
        const DataConnection connection = waitForOutcome();
        keepOutcome(wanted, connection);
        if (!connection.isUp()) throw ConnectionReport::error(connection);
        m_Volume.follow();
        warn({ConnectionText::addressNote(wanted.profile, connection)});
        showUp(connection);
        if (m_bHolds) hold(connection.name);
    }

private:
    void begin(const Wanted& wanted) {
        while (DataConnection::current().state == VRKS_CONNECTION_HANGING_UP)
            waitForMore(QT_TRANSLATE_NOOP("Programs", "the connection has not ended yet"));
        if (isThere(wanted.name)) return;
        warn(ConnectionText::notes(wanted.profile));
        const DialCall call(wanted.profile, wanted.name, m_bHolds);
        m_bHasDialled = call.dial() == 0;
        if (m_bHasDialled || isThere(wanted.name)) return;  // another program may have been faster
        throw ConnectionReport::error(DataConnection::current());
    }

    // One of this name is as good as a new one.
    static bool isThere(const QString& name) {
        const DataConnection present = DataConnection::current();
        if (present.isDown() || present.name == name) return !present.isDown();
        const char* const text = present.isUp()
                                     ? QT_TRANSLATE_NOOP("Programs", "%1 is connected; see orbisctl disconnect")
                                     : QT_TRANSLATE_NOOP("Programs", "%1 is being connected; see orbisctl disconnect");
        throw CommandError::refused(message(text, {quoted(present.name)}));
    }

    DataConnection waitForOutcome() {
        for (;;) {
            const DataConnection connection = DataConnection::current();
            if (connection.isUp()) return withAddress(connection);
            if (connection.isDown()) return connection;
            showStep(connection);
            waitForMore(QT_TRANSLATE_NOOP("Programs", "no connection in time"));
        }
    }

    // A window does not try by itself what the network refused here.
    void keepOutcome(const Wanted& wanted, const DataConnection& connection) const {
        const bool isRefused = connection.isDown() && AutoConnectPolicy::isRefusal(connection.failure);
        if (!m_bHasDialled || !(isRefused || connection.isUp()) || !AutoConnectSettings::isOn(wanted.name)) return;
        if (!AutoConnectSettings::setRefused(wanted.name, isRefused ? CredentialsMark::of(wanted.profile) : QString()))
            printWarning(message("the settings of automatic connection can't be stored"));
    }

    // Services tell the address a moment after the connection is up.
    DataConnection withAddress(DataConnection connection) {
        const QDeadlineTimer deadline(AddressMs);
        while (connection.isUp() && connection.address.isEmpty() && connection.address6.isEmpty()) {
            const EventWait::Waking waking = m_Events.wait(deadline);
            if (waking == EventWait::SignalCame) obey();
            if (waking == EventWait::TimeIsUp) break;
            connection = DataConnection::current();
        }
        return connection;
    }

    void waitForMore(const char* late) {
        const EventWait::Waking waking = m_Events.wait(m_Deadline);
        if (waking == EventWait::Changed) return;
        if (waking == EventWait::SignalCame) obey();
        hangUpOwn();
        throw CommandError::timedOut(message(late));
    }

    [[noreturn]] void obey() {
        hangUpOwn();
        EndingSignals::obey();
    }

    // What another process began is left to it.
    void hangUpOwn() {
        if (DataConnection::current().isOwn) hangUp();
    }

    // Counted while the interface is still there, and with the last counts.
    bool hangUp() {
        m_Volume.count();
        const bool isEnded =
            VRKS_NetConnectSrv_HangUp() == 0 && waitUntilDown(m_Events, QDeadlineTimer(HangUpSeconds * 1000));
        m_Volume.count();
        return isEnded;
    }

    void showStep(const DataConnection& connection) {
        const QString step = ConnectionReport::step(connection);
        if (step != m_Step && !step.isEmpty() && ::isatty(STDERR_FILENO)) printDiagnostic(step);
        m_Step = step;
    }

    void showUp(const DataConnection& connection) {
        QString line = ConnectionReport::line(connection);
        if (vrks_simulated_active() && !m_bHolds) line = message("%1; it ends with this program, see --hold", {line});
        m_Output.result(ConnectionReport::object(connection), {line});
    }

    void hold(const QString& name) {
        m_Deadline = QDeadlineTimer(QDeadlineTimer::Forever);
        while (!m_Volume.follow().isDown()) {
            if (m_Events.wait(m_Deadline) != EventWait::SignalCame) continue;
            const bool isEnded = hangUp();
            if (!isEnded) printDiagnostic(message("the connection can't be ended"));
            if (isEnded) showDown(name);
            EndingSignals::obey();
        }
        const DataConnection ended = DataConnection::current();
        if (ended.failure != VRKS_FAILURE_NONE) throw ConnectionReport::error(ended);
        showDown(name);
    }

    void showDown(const QString& name) {
        m_Output.result(ConnectionReport::object(DataConnection::current()), {message("disconnected: %1", {name})});
    }

    const bool m_bHolds;
    QDeadlineTimer m_Deadline;
    Output& m_Output;
    const EndingSignals m_Signals;
    const EventWait m_Events;
    VolumeCount m_Volume;
    bool m_bHasDialled = false;
    QString m_Step;
};

// A window that pauses before it connects by itself; whether there is one nobody tells.
void stopWaitingOnes(const EventWait& events) {
    const QDeadlineTimer deadline(TellingMs);
    VRKS_NetConnectSrv_HangUp();
    while (DataConnection::current().failure != VRKS_FAILURE_HUNG_UP && events.wait(deadline) == EventWait::Changed) {
    }
}

// Shows each state once. What a reader does not take ends it.
void watch(Output& output) {
    const EventWait events;
    QJsonObject shown;
    do {
        const DataConnection connection = ConnectionReport::present();
        const QJsonObject now = ConnectionReport::lasting(connection);
        if (now != shown) output.result(ConnectionReport::object(connection), {ConnectionReport::line(connection)});
        shown = now;
    } while (events.wait(QDeadlineTimer(QDeadlineTimer::Forever), EventWait::StandardOutput) != EventWait::ReaderGone);
}

CommandError stillUp() {
    const DataConnection connection = DataConnection::current();
    if (!connection.isUp() || connection.failure == VRKS_FAILURE_NONE)
        return CommandError::timedOut(message("the connection has not ended yet"));
    const QString text = message("the connection can't be ended");
    return CommandError::refused(withDetails(text, ConnectionText::details(connection)));
}

}  // namespace

void connectProfile(const Invocation& invocation, Output& output) {
    invocation.patience();  // a wrong one is told before anything is asked
    Wanted wanted = wantedProfile(invocation);
    ConnectionReport::requireKnown();
    askCredentials(&wanted);
    refuseUndiallable(wanted);
    Dialling(invocation, output).run(wanted);
}

void disconnect(const Invocation& invocation, Output& output) {
    ConnectionReport::requireKnown();
    const QDeadlineTimer deadline(invocation.patience(HangUpSeconds));
    const EventWait events;
    const DataConnection before = DataConnection::current();
    if (!before.usedBy.isEmpty())
        throw CommandError::refused(message("the connection of %1 is not ours to end", {quoted(before.usedBy)}));
    if (before.isDown()) {
        if (!vrks_simulated_active()) stopWaitingOnes(events);
        return output.result({{"disconnected", QJsonValue()}}, {message("not connected")});
    }
    VolumeCount volume;
    volume.count();
    const bool isEnding = before.state == VRKS_CONNECTION_HANGING_UP || VRKS_NetConnectSrv_HangUp() == 0;
    if (!isEnding && !DataConnection::current().isDown())
        throw CommandError::refused(message("the connection can't be ended"));
    const bool isDown = waitUntilDown(events, deadline);
    volume.count();
    if (!isDown) throw stillUp();
    output.result({{"disconnected", before.name}}, {message("disconnected: %1", {before.name})});
}

void showStatus(const Invocation& invocation, Output& output) {
    ConnectionReport::requireKnown();
    if (invocation.isSet("watch")) return watch(output);
    const DataConnection connection = ConnectionReport::present();
    const bool isUnknown = connection.failure == VRKS_FAILURE_NO_MODEM_SERVICE;
    QStringList lines;
    if (!isUnknown) lines.append(ConnectionReport::line(connection));
    output.result(ConnectionReport::object(connection), lines);
    if (isUnknown) throw ConnectionReport::error(connection);
}
