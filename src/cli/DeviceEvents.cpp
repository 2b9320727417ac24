#include "DeviceEvents.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>
#include <vrks.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdint>
#include <cstring>

#include "CommandError.h"

namespace {

constexpr int Endings[] = {SIGINT, SIGTERM, SIGHUP};

volatile std::sig_atomic_t caught = 0;
volatile int signalBell = -1;  // poll() passes over a negative one
struct sigaction before[std::size(Endings)];

int newBell() {
    const int bell = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (bell < 0) throw CommandError::failed(QString("no event counter can be had: ") + std::strerror(errno));
    return bell;
}

void ring(int bell) {
    const std::uint64_t once = 1;
    const ssize_t ignored = ::write(bell, &once, sizeof once);  // fails only when it rings already
    (void)ignored;
}

void silence(int bell) {
    std::uint64_t count = 0;
    const ssize_t ignored = ::read(bell, &count, sizeof count);
    (void)ignored;
}

// On whichever thread the signal comes.
extern "C" void keepEnding(int signal) {
    const int error = errno;
    caught = signal;
    ring(signalBell);
    errno = error;
}

void onEvent(int, void* bell) { ring(*static_cast<const int*>(bell)); }

int milliseconds(const QDeadlineTimer& deadline) {
    if (deadline.isForever()) return -1;
    return int(std::min<qint64>(deadline.remainingTime(), INT_MAX));
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

DeviceEvents::DeviceEvents() : m_Bell(newBell()) {
    VRKS_DevSrv_RegisterEventCallback(onEvent, const_cast<int*>(&m_Bell));
}

DeviceEvents::~DeviceEvents() {
    VRKS_DevSrv_UnRegisterEventCallback(onEvent, const_cast<int*>(&m_Bell));
    ::close(m_Bell);
}

DeviceEvents::Waking DeviceEvents::wait(const QDeadlineTimer& deadline, Also also) const {
    pollfd watched[] = {{signalBell, POLLIN, 0},
                        {m_Bell, POLLIN, 0},
                        {also == StandardInput ? STDIN_FILENO : -1, POLLIN, 0},
                        {also == StandardOutput ? STDOUT_FILENO : -1, 0, 0}};
    int ready = -1;
    while ((ready = ::poll(watched, std::size(watched), milliseconds(deadline))) < 0 && errno == EINTR) continue;
    if (ready <= 0) return TimeIsUp;
    if (watched[0].revents) return SignalCame;
    if (watched[1].revents) {
        silence(m_Bell);
        return Changed;
    }
    return watched[2].revents ? InputCame : ReaderGone;
}
