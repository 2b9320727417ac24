// SPDX-License-Identifier: MIT
// ussd, balance.

#include <unistd.h>
#include <vrks.h>

#include <QByteArray>

#include "Command.h"
#include "CommandError.h"
#include "Commands.h"
#include "ConnectionText.h"
#include "DataConnection.h"
#include "EventWait.h"
#include "HiddenInput.h"
#include "Message.h"
#include "ModemReport.h"
#include "Output.h"
#include "PresetOperator.h"
#include "ProfileSession.h"
#include "StandardOutput.h"
#include "TerminalText.h"

namespace {

constexpr int PatienceSeconds = 120;  // networks give up earlier
constexpr int EndingMs = 5000;        // the device SDK gives up earlier

CommandError::ExitStatus exitStatus(int failure) {
    switch (failure) {
        case VRKS_USSD_FAILURE_NOT_SUPPORTED:
        case VRKS_USSD_FAILURE_NETWORK:
        case VRKS_USSD_FAILURE_NOT_ALLOWED:
            return CommandError::Refused;
        case VRKS_USSD_FAILURE_TIMEOUT:
            return CommandError::TimedOut;
        default:
            return CommandError::Failed;
    }
}

VRKS_Ussd session() {
    VRKS_Ussd ussd{};
    ussd.size = sizeof ussd;
    if (VRKS_NetSrv_GetUssd(&ussd) != 0) throw CommandError::failed(message("the modem does not answer"));
    return ussd;
}

CommandError errorOf(const VRKS_Ussd& ussd) {
    return {exitStatus(ussd.failure),
            withDetails(ConnectionText::ussdFailure(ussd.failure), QString::fromUtf8(ussd.words))};
}

void requireModem() {
    if (!*ModemReport::required().id) throw CommandError::notFound(message("there is no modem"));
}

// A conversation, which is ended however the command ends: networks let a session stay open, and cost for it.
class Conversation {
public:
    // What is told of it: members of each answer's object, and a line before the first.
    struct About {
        QJsonObject object;
        QStringList lines;
    };

    Conversation(const About& about, qint64 patience, Output& output)
        : m_About(about), m_Patience(patience), m_Output(output) {}
    ~Conversation() {
        if (m_bOpen) end();
    }
    Conversation(const Conversation&) = delete;
    Conversation& operator=(const Conversation&) = delete;

    void run(const QString& command) {
        if (VRKS_NetSrv_SendUssd(command.toUtf8().constData()) != 0)
            throw CommandError::refused(message("the modem is not ready for a command, or another one is under way"));
        m_bOpen = true;
        for (VRKS_Ussd ussd = answer(); !show(ussd); ussd = answer()) {
            const QByteArray reply = readReply(ussd);
            if (hasGoneOn(ussd)) continue;
            if (reply.isEmpty()) return;
            if (VRKS_NetSrv_AnswerUssd(reply.constData()) != 0)
                throw CommandError::failed(message("the session has ended"));
        }
    }

private:
    VRKS_Ussd answer() const {
        const QDeadlineTimer deadline(m_Patience);
        for (;;) {
            const VRKS_Ussd ussd = session();
            if (ussd.state == VRKS_USSD_FAILED) throw errorOf(ussd);
            if (ussd.state != VRKS_USSD_SENT) return ussd;
            const EventWait::Waking waking = m_Events.wait(deadline);
            if (waking == EventWait::SignalCame) cancelAndEnd();
            if (waking == EventWait::TimeIsUp)
                throw CommandError::timedOut(message("the network did not answer in time"));
        }
    }

    // True for the last answer.
    bool show(const VRKS_Ussd& ussd) {
        const bool asks = m_bOpen = ussd.state == VRKS_USSD_ASKS;
        const QString text = QString::fromUtf8(ussd.text);
        QJsonObject object = m_About.object;
        object["text"] = text;
        object["asks"] = asks;
        m_Output.result(object, m_About.lines + text.split('\n'));
        m_About.lines.clear();
        return !asks;
    }

    // Meanwhile the network may end the session, or say something else.
    static bool hasGoneOn(const VRKS_Ussd& asked) {
        const VRKS_Ussd now = session();
        return now.state != asked.state || qstrcmp(now.text, asked.text) != 0;
    }

    // The next line; empty ends the session. None when the network goes on without it.
    QByteArray readReply(const VRKS_Ussd& asked) {
        if (isTerminalInput()) askForReply();
        while (!m_Input.contains('\n') && readMore(asked)) continue;
        if (hasGoneOn(asked)) {
            if (isTerminalInput()) StandardOutput::write(STDERR_FILENO, "\n", 1);
            return {};
        }
        const int end = m_Input.indexOf('\n');
        const QByteArray line = m_Input.left(end).trimmed();
        m_Input.remove(0, end < 0 ? m_Input.size() : end + 1);
        return line;
    }

    static void askForReply() {
        const QByteArray prompt = TerminalText::printable(message("Answer (none ends the session): ")).toUtf8();
        StandardOutput::write(STDERR_FILENO, prompt.constData(), std::size_t(prompt.size()));
    }

    // False at the end of the input, and when the network goes on.
    bool readMore(const VRKS_Ussd& asked) {
        const EventWait::Waking waking =
            m_Events.wait(QDeadlineTimer(QDeadlineTimer::Forever), EventWait::StandardInput);
        if (waking == EventWait::SignalCame) cancelAndEnd();
        if (hasGoneOn(asked)) return false;
        if (waking != EventWait::InputCame) return true;
        char bytes[256];
        const ssize_t size = ::read(STDIN_FILENO, bytes, sizeof bytes);
        if (size > 0) m_Input.append(bytes, int(size));
        return size > 0 && m_Input.size() < VRKS_USSD_SIZE;
    }

    [[noreturn]] void cancelAndEnd() const {
        end();
        EndingSignals::obey();
    }

    // A second signal ends the program at once.
    void end() const {
        if (VRKS_NetSrv_CancelUssd() != 0) return;
        const QDeadlineTimer deadline(EndingMs);
        VRKS_Ussd ussd{};
        ussd.size = sizeof ussd;
        while (VRKS_NetSrv_GetUssd(&ussd) == 0 && ussd.state == VRKS_USSD_SENT &&
               m_Events.wait(deadline, EventWait::NoSignal) == EventWait::Changed)
            continue;
    }

    About m_About;
    const qint64 m_Patience;
    Output& m_Output;
    const EndingSignals m_Signals;
    const EventWait m_Events;
    QByteArray m_Input;
    bool m_bOpen = false;
};

// Whose balance: the operator of the profile in use, of the default, or of what is proposed for the card.
OperatorEntry operatorInUse() {
    const DataConnection connection = DataConnection::current();
    ProfileSession session(ProfileSession::Reading);
    QStringList profiles{session.defaultName(), session->ProposedDefault()};
    if (!connection.isDown()) profiles.prepend(connection.name);
    const std::optional<OperatorEntry> found = presetOperator(profiles);
    if (!found)
        throw CommandError::notFound(
            message("neither the profile nor the SIM card tells the operator; see orbisctl ussd CODE"));
    return *found;
}

QJsonObject about(const OperatorEntry& entry, const BalanceQuery& query) {
    return {{"operator", entry.names.first()},
            {"country", entry.country},
            {"way", BalanceQuery::wordOf(query.way)},
            {"number", query.number}};
}

// There is nothing to send: the user is told, and does it.
[[noreturn]] void tellByHand(const OperatorEntry& entry, Output& output) {
    const QString& name = entry.names.first();
    if (entry.balanceQueries.isEmpty())
        throw CommandError::notFound(message("how %1 tells a balance is not known; see orbisctl ussd CODE", {name}));
    for (const BalanceQuery& query : entry.balanceQueries) {
        QJsonObject object = about(entry, query);
        object["message"] = query.way == BalanceQuery::Message ? QJsonValue(query.text) : QJsonValue();
        output.result(object, {ConnectionText::balanceByHand(query)});
    }
    throw CommandError::refused(message("nothing was sent: %1 tells a balance by message or phone alone", {name}));
}

}  // namespace

void sendUssd(const Invocation& invocation, Output& output) {
    requireModem();
    Conversation({}, invocation.patience(PatienceSeconds), output).run(invocation.arguments().first());
}

void askBalance(const Invocation& invocation, Output& output) {
    const qint64 patience = invocation.patience(PatienceSeconds);
    requireModem();
    const OperatorEntry entry = operatorInUse();
    const BalanceQuery* const query = balanceCommand(entry);
    if (!query) tellByHand(entry, output);
    const QString line = message("%1, %2:", {entry.names.first(), query->number});
    Conversation({about(entry, *query), {line}}, patience, output).run(query->number);
}
