#include "HiddenInput.h"

#include <termios.h>
#include <unistd.h>

#include <QFile>
#include <cstdio>

#include "CommandError.h"

namespace {

// Keeps a terminal from showing what is typed, while it lives.
class EchoOff {
public:
    EchoOff() : m_bTerminal(tcgetattr(STDIN_FILENO, &m_Before) == 0) {
        if (!m_bTerminal) return;
        termios silent = m_Before;
        silent.c_lflag &= ~tcflag_t(ECHO);
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent);
    }
    ~EchoOff() {
        if (!m_bTerminal) return;
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &m_Before);
        std::fputc('\n', stderr);
    }
    EchoOff(const EchoOff&) = delete;
    EchoOff& operator=(const EchoOff&) = delete;

    bool isTerminal() const { return m_bTerminal; }

private:
    termios m_Before;
    const bool m_bTerminal;
};

}  // namespace

QString readHiddenLine(const char* prompt) {
    QFile input;
    input.open(stdin, QIODevice::ReadOnly);
    const EchoOff echoOff;
    if (echoOff.isTerminal()) std::fputs(prompt, stderr);
    QByteArray line = input.readLine();
    if (line.isEmpty()) throw CommandError::failed("standard input holds no password");
    if (line.endsWith('\n')) line.chop(1);
    if (line.endsWith('\r')) line.chop(1);
    const QString text = QString::fromUtf8(line);
    if (text.toUtf8() != line) throw CommandError::failed("the password on standard input is not UTF-8");
    return text;
}
