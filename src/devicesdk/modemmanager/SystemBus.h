// SPDX-License-Identifier: MIT
// The module's own connection to the system bus.
#ifndef ORBISDIAL_SYSTEMBUS_H
#define ORBISDIAL_SYSTEMBUS_H

#include <functional>

#include "Ref.h"
#include "WorkerThread.h"

// Connects, and connects again when the bus went. GLib's shared connection would end the process with the bus.
// Everything but its making happens on the thread.
class SystemBus {
public:
    struct Handlers {
        std::function<void(GDBusConnection*)> came;
        std::function<void()> went;  // also when there is none to begin with
    };

    SystemBus(WorkerThread& thread, Handlers handlers) : m_Thread(thread), m_Handlers(std::move(handlers)) {}
    SystemBus(const SystemBus&) = delete;
    SystemBus& operator=(const SystemBus&) = delete;

    void connect();

    // From another thread: ends what the thread may be waiting for, so that it can be stopped.
    void interrupt() { m_Connecting.cancel(); }

    // On the thread: gives the connection up for good.
    void drop();

private:
    static void onClosed(SystemBus* self);
    void retryLater();
    void lose();

    WorkerThread& m_Thread;
    Handlers m_Handlers;
    Ref<GDBusConnection> m_Connection;
    Cancellation m_Connecting;
    unsigned int m_Pause = 0;  // before the next attempt, milliseconds
};

#endif
