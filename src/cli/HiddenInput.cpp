// SPDX-License-Identifier: MIT
#include "HiddenInput.h"

#include <poll.h>
#include <pthread.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>

#include "CommandError.h"
#include "Message.h"
#include "StandardOutput.h"
#include "TerminalText.h"

namespace {

// The signal that came; 0 when none did. To be woken is the least of what can come.
volatile std::sig_atomic_t caught = 0;

pthread_t asking;  // the thread that waits for input

extern "C" void keepSignal(int signal) {
    if (!pthread_equal(pthread_self(), asking))
        pthread_kill(asking, signal);  // the device SDK's thread has taken it
    else if (signal != SIGCONT || caught == 0)
        caught = signal;
}

// All but those that do nothing where nobody asked for them.
bool endsOrStops(int signal) { return signal != SIGCHLD && signal != SIGURG && signal != SIGWINCH; }

// While one lives signals wait, and come only while it waits for input. Those that were ignored stay so.
class KeptSignals {
public:
    KeptSignals() {
        caught = 0;
        asking = pthread_self();
        sigset_t all;
        sigfillset(&all);
        sigprocmask(SIG_BLOCK, &all, &m_MaskBefore);
        for (int signal = 1; signal < NSIG; ++signal)
            if (endsOrStops(signal)) keep(signal, &m_Before[signal]);
    }
    ~KeptSignals() {
        for (int signal = 1; signal < NSIG; ++signal)
            if (endsOrStops(signal)) sigaction(signal, &m_Before[signal], nullptr);
        sigprocmask(SIG_SETMASK, &m_MaskBefore, nullptr);
    }
    KeptSignals(const KeptSignals&) = delete;
    KeptSignals& operator=(const KeptSignals&) = delete;

    // False when a signal came instead.
    bool waitForInput() const {
        pollfd input = {STDIN_FILENO, POLLIN, 0};
        return ppoll(&input, 1, nullptr, &m_MaskBefore) >= 0 || errno != EINTR || caught == 0;
    }

private:
    // Does nothing for the few that can't be caught.
    static void keep(int signal, struct sigaction* before) {
        if (sigaction(signal, nullptr, before) != 0 || before->sa_handler == SIG_IGN) return;
        struct sigaction action = {};
        action.sa_handler = keepSignal;
        sigaction(signal, &action, nullptr);
    }

    sigset_t m_MaskBefore;
    struct sigaction m_Before[NSIG] = {};
};

// Asks at a terminal, and keeps it from showing what is typed while it lives, unless everybody may see that.
class Prompt {
public:
    Prompt(const QByteArray& text, bool isShown)
        : m_bShown(isShown), m_bTerminal(tcgetattr(STDIN_FILENO, &m_Before) == 0) {
        if (!m_bTerminal) return;
        termios silent = m_Before;
        if (!m_bShown) silent.c_lflag &= ~tcflag_t(ECHO);
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent);
        StandardOutput::write(STDERR_FILENO, text.constData(), std::size_t(text.size()));
    }
    ~Prompt() {
        if (!m_bTerminal || isBackground()) return;  // then the shell has made the terminal its own again
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &m_Before);
        if (!m_bShown) StandardOutput::write(STDERR_FILENO, "\n", 1);
    }
    Prompt(const Prompt&) = delete;
    Prompt& operator=(const Prompt&) = delete;

private:
    static bool isBackground() {
        const pid_t foreground = tcgetpgrp(STDIN_FILENO);
        return foreground > 0 && foreground != getpgrp();
    }

    const bool m_bShown;
    termios m_Before;
    const bool m_bTerminal;
};

// Reads up to the line's end, or so much that it is no password. False when a signal came.
bool readLine(const KeptSignals& kept, QByteArray* line) {
    constexpr int longest = 64 * 1024;  // bytes
    while (line->size() < longest && !line->endsWith('\n')) {
        char byte = 0;
        if (!kept.waitForInput()) return false;
        const ssize_t size = ::read(STDIN_FILENO, &byte, 1);
        if (size < 0 && (errno == EINTR || errno == EAGAIN)) continue;
        if (size < 0) throw CommandError::failed(message("standard input can't be read: %1", {std::strerror(errno)}));
        if (size == 0) break;
        line->append(byte);
    }
    return true;
}

// Stops a program in the background until it is in front, as reading would; what it sets is what is set.
void waitForForeground() {
    termios now;
    if (tcgetattr(STDIN_FILENO, &now) != 0) return;
    while (tcsetattr(STDIN_FILENO, TCSANOW, &now) != 0 && errno == EINTR) continue;
}

// When a signal comes all is put back before it does what it does; where the program then goes on, it asks again.
QByteArray askForLine(const QByteArray& prompt, bool isShown) {
    for (;;) {
        waitForForeground();
        {
            const KeptSignals kept;
            const Prompt atTerminal(prompt, isShown);
            QByteArray line;
            if (readLine(kept, &line)) return line;
        }
        raise(caught);
    }
}

QString readText(const QString& prompt, const char* name, bool isShown) {
    QByteArray line = askForLine(TerminalText::printable(prompt).toUtf8(), isShown);
    if (line.isEmpty()) throw CommandError::failed(message("%1: standard input holds none", {message(name)}));
    if (line.endsWith('\n')) line.chop(1);
    if (line.endsWith('\r')) line.chop(1);
    const QString text = QString::fromUtf8(line);
    if (text.toUtf8() != line) throw CommandError::failed(message("%1: not UTF-8 on standard input", {message(name)}));
    return text;
}

}  // namespace

QString readHiddenLine(const QString& prompt, const char* name) { return readText(prompt, name, false); }

QString readPassword(const QString& prompt) {
    return readHiddenLine(prompt, QT_TRANSLATE_NOOP("Programs", "password"));
}

QString readShownLine(const QString& prompt, const char* name) { return readText(prompt, name, true); }

bool isTerminalInput() { return ::isatty(STDIN_FILENO) == 1; }
