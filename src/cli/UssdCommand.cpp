// ussd.

#include <unistd.h>
#include <vrks.h>

#include <QByteArray>

#include "Command.h"
#include "CommandError.h"
#include "Commands.h"
#include "EventWait.h"
#include "HiddenInput.h"
#include "ModemReport.h"
#include "Output.h"
#include "StandardOutput.h"

namespace {

constexpr int PatienceSeconds = 120;  // networks give up earlier

// By VRKS_USSD_FAILURE_...
const struct {
    CommandError::ExitStatus status;
    const char* text;
} Failures[] = {
    {CommandError::Failed, "the command failed"},
    {CommandError::Refused, "the modem or the network takes no such commands"},
    {CommandError::Refused, "the network refused the command"},
    {CommandError::TimedOut, "the network did not answer"},
    {CommandError::Failed, "the session was cancelled"},
    {CommandError::Refused, "this user may not send commands"},
    {CommandError::Failed, "the command failed"},
};

VRKS_Ussd session() {
    VRKS_Ussd ussd{};
    ussd.size = sizeof ussd;
    if (VRKS_NetSrv_GetUssd(&ussd) != 0) throw CommandError::failed("the modem does not answer");
    return ussd;
}

CommandError errorOf(const VRKS_Ussd& ussd) {
    const bool isListed = ussd.failure >= 0 && ussd.failure < int(std::size(Failures));
    const auto& failure = Failures[isListed ? ussd.failure : 0];
    const QString words = QString::fromUtf8(ussd.words);
    return {failure.status, words.isEmpty() ? QString(failure.text) : QString("%1 (%2)").arg(failure.text, words)};
}

// A conversation, which is ended however the command ends: networks let a session stay open, and cost for it.
class Conversation {
public:
    Conversation(qint64 patience, Output& output) : m_Patience(patience), m_Output(output) {}
    ~Conversation() {
        if (m_bOpen) VRKS_NetSrv_CancelUssd();
    }
    Conversation(const Conversation&) = delete;
    Conversation& operator=(const Conversation&) = delete;

    void run(const QString& command) {
        if (VRKS_NetSrv_SendUssd(command.toUtf8().constData()) != 0)
            throw CommandError::refused("the modem is not ready for a command, or another one is under way");
        m_bOpen = true;
        for (VRKS_Ussd ussd = answer(); !show(ussd); ussd = answer()) {
            const QByteArray reply = readReply();
            if (reply.isEmpty()) return;
            if (VRKS_NetSrv_AnswerUssd(reply.constData()) != 0) throw CommandError::failed("the session has ended");
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
            if (waking == EventWait::TimeIsUp) throw CommandError::timedOut("the network did not answer in time");
        }
    }

    // True for the last answer.
    bool show(const VRKS_Ussd& ussd) {
        const bool asks = m_bOpen = ussd.state == VRKS_USSD_ASKS;
        const QString text = QString::fromUtf8(ussd.text);
        m_Output.result({{"text", text}, {"asks", asks}}, text.split('\n'));
        return !asks;
    }

    // The next line; empty ends the session.
    QByteArray readReply() {
        if (isTerminalInput()) StandardOutput::write(STDERR_FILENO, Prompt, sizeof Prompt - 1);
        while (!m_Input.contains('\n') && readMore()) continue;
        const int end = m_Input.indexOf('\n');
        const QByteArray line = m_Input.left(end).trimmed();
        m_Input.remove(0, end < 0 ? m_Input.size() : end + 1);
        return line;
    }

    // False at the end of the input. The network may end the session meanwhile.
    bool readMore() {
        const EventWait::Waking waking =
            m_Events.wait(QDeadlineTimer(QDeadlineTimer::Forever), EventWait::StandardInput);
        if (waking == EventWait::SignalCame) cancelAndEnd();
        const VRKS_Ussd ussd = session();
        if (ussd.state == VRKS_USSD_FAILED) throw errorOf(ussd);
        if (waking != EventWait::InputCame) return true;
        char bytes[256];
        const ssize_t size = ::read(STDIN_FILENO, bytes, sizeof bytes);
        if (size > 0) m_Input.append(bytes, int(size));
        return size > 0 && m_Input.size() < VRKS_USSD_SIZE;
    }

    [[noreturn]] static void cancelAndEnd() {
        VRKS_NetSrv_CancelUssd();
        EndingSignals::obey();
    }

    static constexpr char Prompt[] = "Answer (none ends the session): ";

    const qint64 m_Patience;
    Output& m_Output;
    const EndingSignals m_Signals;
    const EventWait m_Events;
    QByteArray m_Input;
    bool m_bOpen = false;
};

}  // namespace

void sendUssd(const Invocation& invocation, Output& output) {
    VRKS_ModemInfo info;
    if (!ModemReport::current(&info)) throw CommandError::failed("nothing can tell which modem is in use");
    if (!*info.id) throw CommandError::notFound("there is no modem");
    Conversation(invocation.patience(PatienceSeconds), output).run(invocation.arguments().first());
}
