// SPDX-License-Identifier: MIT
// Hears of the modems' changed properties on the bus, as a program of nothing else would.
#ifndef ORBISDIAL_BUSLISTENER_H
#define ORBISDIAL_BUSLISTENER_H

#include <atomic>
#include <chrono>
#include <thread>

typedef struct _GMainLoop GMainLoop;

// Listens on a thread of its own while it lives.
class BusListener {
public:
    using Clock = std::chrono::steady_clock;

    BusListener();
    ~BusListener();
    BusListener(const BusListener&) = delete;
    BusListener& operator=(const BusListener&) = delete;

    // Forgets what it has heard.
    void clear() { m_Heard = 0; }

    // When it heard of a modem's technology; the clock's zero: not yet.
    Clock::time_point heard() const { return Clock::time_point(Clock::duration(m_Heard)); }

    // Of the signal's arrival.
    void hear() { m_Heard = Clock::now().time_since_epoch().count(); }

private:
    void run();

    std::atomic<Clock::rep> m_Heard{0};
    std::atomic<bool> m_IsListening{false};
    GMainLoop* m_Loop;
    std::thread m_Thread;
};

#endif
