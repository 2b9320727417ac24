// Delivers a backend's events to the registered callbacks, on a thread of its own.
#ifndef ORBISDIAL_EVENTDISPATCHER_H
#define ORBISDIAL_EVENTDISPATCHER_H

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

#include "vrks.h"

// Every operation is safe from any thread, the event thread included. The thread starts with the first
// callback or event. An object must outlive every caller, so it is never destroyed, only stopped.
class EventDispatcher {
public:
    // False when the callback is null or registered already.
    bool add(VRKS_DevInitEventCallback callback);

    // False when the callback was not registered. Either way it is not running when this returns, unless
    // this is called from within it.
    bool remove(VRKS_DevInitEventCallback callback);

    // Queues an event and returns at once.
    void raise(int event);

    // Waits until every event raised before was delivered; false, at once, on the event thread.
    bool waitDelivered();

    // Drops the waiting events, waits for a running callback and ends the thread for good.
    void stop();

private:
    using Lock = std::unique_lock<std::mutex>;

    bool isEventThread() const;
    bool isRegistered(VRKS_DevInitEventCallback callback) const;
    void startThread();
    void run();
    void deliver(Lock& lock, int event);

    std::mutex m_Mutex;  // guards everything below; never held while a callback runs
    std::condition_variable m_Changed;
    std::vector<VRKS_DevInitEventCallback> m_Callbacks;
    std::deque<int> m_Events;
    std::uint64_t m_Raised = 0;  // how many events, since the process began
    std::uint64_t m_Delivered = 0;
    VRKS_DevInitEventCallback m_Running = nullptr;
    bool m_IsStopped = false;
    std::thread m_Thread;
    std::thread::id m_EventThread;  // of the thread while it runs
};

#endif
