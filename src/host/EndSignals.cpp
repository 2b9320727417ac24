// SPDX-License-Identifier: MIT
#include "EndSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <cerrno>
#include <csignal>

namespace {

constexpr int Signals[] = {SIGINT, SIGTERM, SIGHUP};

// A handler may do little more than write; the event loop reads.
int pipeEnds[] = {-1, -1};

extern "C" void writeToPipe(int) {
    const int error = errno;
    const char anything = 0;
    if (::write(pipeEnds[1], &anything, 1) < 0) {
        // The pipe is full: the loop has more than enough to read.
    }
    errno = error;
}

void handle(int signal) {
    struct sigaction before = {};
    if (::sigaction(signal, nullptr, &before) != 0 || before.sa_handler == SIG_IGN) return;
    struct sigaction action = {};
    action.sa_handler = writeToPipe;
    action.sa_flags = SA_RESTART | int(SA_RESETHAND);
    ::sigaction(signal, &action, nullptr);
}

}  // namespace

EndSignals::EndSignals() {
    if (::pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0) return;  // then they kill the program as ever
    auto* const notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, notifier, [notifier] {
        notifier->setEnabled(false);
        QCoreApplication::quit();
    });
    for (const int signal : Signals) handle(signal);
}

EndSignals::~EndSignals() {
    for (const int signal : Signals) {
        struct sigaction now = {};
        if (::sigaction(signal, nullptr, &now) == 0 && now.sa_handler == writeToPipe) ::signal(signal, SIG_DFL);
    }
    for (int& end : pipeEnds) {
        ::close(end);
        end = -1;
    }
}
