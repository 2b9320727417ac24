// SPDX-License-Identifier: MIT
// Waiting for what the device SDK reports; nothing is asked for again and again.
#ifndef ORBISDIAL_CLI_EVENTWAIT_H
#define ORBISDIAL_CLI_EVENTWAIT_H

#include <QDeadlineTimer>

#include "DeviceEvents.h"

// While one lives, the signals by which a user or the session ends a program wake a wait instead. Only the first that
// comes does; those that were ignored stay so. One at a time.
class EndingSignals {
public:
    EndingSignals();
    ~EndingSignals();
    EndingSignals(const EndingSignals&) = delete;
    EndingSignals& operator=(const EndingSignals&) = delete;

    // Lets the signal that came do what it does: the program ends by it.
    [[noreturn]] static void obey();
};

// Listens to the SDK while it lives. What happens between two waits ends the second one at once, and a signal that came
// each one: who has obeyed it, and goes on waiting, wants NoSignal.
class EventWait {
public:
    enum Waking {
        Changed,     // something did; a query tells what it is now
        SignalCame,  // while an EndingSignals lives
        TimeIsUp,    // see the deadline
        InputCame,   // standard input can be read, or has ended
        ReaderGone,  // of the standard output
    };
    enum Also { NothingElse, StandardInput, StandardOutput, NoSignal };

    Waking wait(const QDeadlineTimer& deadline, Also also = NothingElse) const;

private:
    const DeviceEvents m_Events;
};

#endif
