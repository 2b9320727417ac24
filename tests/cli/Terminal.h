// SPDX-License-Identifier: MIT
// A program in the foreground of a terminal of its own, as a shell with job control starts it.
#ifndef ORBISDIAL_TESTS_TERMINAL_H
#define ORBISDIAL_TESTS_TERMINAL_H

#include <fcntl.h>
#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <QtTest>
#include <csignal>
#include <vector>

class Terminal {
public:
    explicit Terminal(QList<QByteArray> command) {
        std::vector<char*> arguments;
        for (QByteArray& word : command) arguments.push_back(word.data());
        arguments.push_back(nullptr);
        int answer[2] = {};
        if (::pipe(answer) != 0) qFatal("no pipe");
        m_Shell = ::forkpty(&m_Master, nullptr, nullptr, nullptr);
        if (m_Shell == 0) shell(answer[1], arguments.data());
        if (m_Shell < 0 || ::read(answer[0], &m_Program, sizeof m_Program) != sizeof m_Program) qFatal("no terminal");
        for (const int end : answer) ::close(end);
        ::fcntl(m_Master, F_SETFL, O_NONBLOCK);
    }
    ~Terminal() {
        ::kill(m_Program, SIGKILL);
        ::kill(m_Shell, SIGKILL);
        ::waitpid(m_Shell, nullptr, 0);
        ::close(m_Master);
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    // What the terminal has shown so far.
    QByteArray screen() {
        char bytes[4096];
        for (ssize_t size = 0; (size = ::read(m_Master, bytes, sizeof bytes)) > 0;) m_Screen.append(bytes, int(size));
        return m_Screen;
    }

    void type(const QByteArray& text) const { QCOMPARE(::write(m_Master, text.constData(), text.size()), text.size()); }

    bool hasEcho() const {
        termios now = {};
        ::tcgetattr(m_Master, &now);
        return (now.c_lflag & ECHO) != 0;
    }

    void send(int signal) const { ::kill(m_Program, signal); }

    bool isStopped() const {
        QFile file(QString("/proc/%1/stat").arg(m_Program));
        return file.open(QIODevice::ReadOnly) && file.readAll().contains(") T ");
    }

    // The exit status as a shell tells it, more than 128 for a signal; -1 while it runs.
    int status() const {
        siginfo_t end = {};
        ::waitid(P_PID, id_t(m_Shell), &end, WEXITED | WNOHANG | WNOWAIT);
        return end.si_pid == m_Shell ? end.si_status : -1;
    }

private:
    // Starts the program in a group of its own, so that it can be stopped, and ends as it ends.
    [[noreturn]] static void shell(int answer, char** arguments) {
        ::signal(SIGTTOU, SIG_IGN);
        const pid_t program = ::fork();
        if (program == 0) {
            ::setpgid(0, 0);
            ::tcsetpgrp(STDIN_FILENO, ::getpid());
            ::signal(SIGTTOU, SIG_DFL);
            ::execv(arguments[0], arguments);
            ::_exit(127);
        }
        int status = 0;
        if (::write(answer, &program, sizeof program) < 0) ::_exit(127);
        ::waitpid(program, &status, 0);
        ::_exit(WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status));
    }

    int m_Master = -1;
    pid_t m_Shell = -1;
    pid_t m_Program = -1;
    QByteArray m_Screen;
};

#endif
