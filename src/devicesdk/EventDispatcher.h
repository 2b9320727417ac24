// SPDX-License-Identifier: MIT
// Delivers a backend's events to the registered callbacks, on a thread of its own.
#ifndef ORBISDIAL_EVENTDISPATCHER_H
#define ORBISDIAL_EVENTDISPATCHER_H

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

#include "EventSink.h"
#include "vrks.h"

// Who gets events; exactly one of the two functions is set.
struct Listener {
    VRKS_DevInitEventCallback device = nullptr;
    VRKS_EventCallback other = nullptr;
    void* data = nullptr;  // for the other one

    bool isNull() const { return !device && !other; }
    bool operator==(const Listener& that) const {
        return device == that.device && other == that.other && data == that.data;
    }
};

// Every operation is safe from any thread, the event thread included. The thread starts with the first event that
// somebody listens to: until then a program that has no other stays without threads, where memory is had at less cost.
// An object must outlive every caller, so it is never destroyed, only stopped.
class EventDispatcher : public EventSink {
public:
    // False when the listener is null or registered already.
    bool add(const Listener& listener);

    // False when the listener was not registered. Either way it is not running when this returns, unless
    // this is called from within it.
    bool remove(const Listener& listener);

    // Queues one of VRKS_DevInitEventCallback, however many wait already; dropped when nobody listens.
    void queueDevice(int event);

    void raiseDevice(int event) override;
    void raise(int event) override;

    // Waits until every event raised before was delivered, but for those that are kept since nobody listens; false,
    // at once, on the event thread.
    bool waitDelivered();

    // Drops the waiting events, waits for a running callback and ends the thread for good.
    void stop();

private:
    using Lock = std::unique_lock<std::mutex>;
    using Clock = std::chrono::steady_clock;

    struct Event {
        int number;
        bool isDevice;
        std::uint64_t serial;  // grows with each event
        Clock::time_point due;
    };

    bool isEventThread() const;
    bool isRegistered(const Listener& listener) const;
    bool hasListener(const Event& event) const;
    bool isOutstanding(std::uint64_t last) const;
    bool hasDeliverable() const;
    void startThread();
    void raiseOnce(int event, bool isDevice);
    void run();
    bool takeEvent(Event* event);
    void waitForEvent(Lock& lock);
    void deliver(Lock& lock, const Event& event);

    std::mutex m_Mutex;  // guards everything below; never held while a callback runs
    std::condition_variable m_Changed;
    std::vector<Listener> m_Listeners;
    std::deque<Event> m_Queue;     // delivered one by one
    std::vector<Event> m_Pending;  // at most one of a kind, in the order in which they came
    std::uint64_t m_LastSerial = 0;
    std::uint64_t m_SerialRunning = 0;           // 0: none
    std::map<int, Clock::time_point> m_NextDue;  // when the next pending device event of a kind may come
    Listener m_Running;
    bool m_IsStopped = false;
    std::thread m_Thread;
    std::thread::id m_EventThread;  // of the thread while it runs
};

#endif
