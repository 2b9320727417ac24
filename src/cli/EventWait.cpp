// SPDX-License-Identifier: MIT
#include "EventWait.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <QEventLoop>
#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <optional>

#include "CommandError.h"
#include "Message.h"

namespace {

constexpr int Endings[] = {SIGINT, SIGTERM, SIGHUP};

volatile std::sig_atomic_t caught = 0;
volatile int signalBell = -1;
struct sigaction before[std::size(Endings)];

int newBell() {
    const int bell = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (bell < 0) throw CommandError::failed(message("no event counter can be had: %1", {std::strerror(errno)}));
    return bell;
}

void ring(int bell) {
    const std::uint64_t once = 1;
    const ssize_t ignored = ::write(bell, &once, sizeof once);  // fails only when it rings already
    (void)ignored;
}

// On whichever thread the signal comes.
extern "C" void keepEnding(int signal) {
    const int error = errno;
    caught = signal;
    ring(signalBell);
    errno = error;
}

// One cause to end a wait; none for a negative descriptor.
class Waker {
public:
    Waker(QEventLoop* loop, int descriptor, QSocketNotifier::Type type, EventWait::Waking waking) {
        if (descriptor < 0) return;
        m_Notifier.emplace(descriptor, type);
        QObject::connect(&*m_Notifier, &QSocketNotifier::activated, loop, [loop, waking] { loop->exit(waking); });
    }

private:
    std::optional<QSocketNotifier> m_Notifier;
};

void endLoopAt(const QDeadlineTimer& deadline, QEventLoop* loop, QTimer* timer) {
    if (deadline.isForever()) return;
    timer->setTimerType(Qt::PreciseTimer);  // others may be early
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, loop, [loop] { loop->exit(EventWait::TimeIsUp); });
    timer->start(int(std::min<qint64>(deadline.remainingTime(), INT_MAX)));
}

}  // namespace

EndingSignals::EndingSignals() {
    caught = 0;
    signalBell = newBell();
    struct sigaction action = {};
    action.sa_handler = keepEnding;
    action.sa_flags = int(SA_RESETHAND);  // the second one ends the program, whatever that leaves behind
    for (std::size_t i = 0; i < std::size(Endings); ++i) {
        sigaction(Endings[i], nullptr, &before[i]);
        if (before[i].sa_handler != SIG_IGN) sigaction(Endings[i], &action, nullptr);
    }
}

EndingSignals::~EndingSignals() {
    for (std::size_t i = 0; i < std::size(Endings); ++i) sigaction(Endings[i], &before[i], nullptr);
    ::close(signalBell);
    signalBell = -1;
}

void EndingSignals::obey() {
    std::signal(caught, SIG_DFL);
    std::raise(caught);
    std::_Exit(CommandError::Failed);
}

EventWait::Waking EventWait::wait(const QDeadlineTimer& deadline, Also also) const {
    QEventLoop loop;
    QTimer timer;
    QObject::connect(&m_Events, &DeviceEvents::changed, &loop, [&loop] { loop.exit(Changed); });
    endLoopAt(deadline, &loop, &timer);
    const Waker input(&loop, also == StandardInput ? STDIN_FILENO : -1, QSocketNotifier::Read, InputCame);
    const Waker output(&loop, also == StandardOutput ? STDOUT_FILENO : -1, QSocketNotifier::Exception, ReaderGone);
    const Waker ending(&loop, also == NoSignal ? -1 : signalBell, QSocketNotifier::Read, SignalCame);
    return Waking(loop.exec());
}
