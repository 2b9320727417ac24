#include "EventDispatcher.h"

#include <algorithm>

bool EventDispatcher::isEventThread() const { return std::this_thread::get_id() == m_EventThread; }

bool EventDispatcher::isRegistered(VRKS_DevInitEventCallback callback) const {
    return std::find(m_Callbacks.begin(), m_Callbacks.end(), callback) != m_Callbacks.end();
}

void EventDispatcher::startThread() {
    if (m_IsStopped || m_Thread.joinable()) return;
    m_Thread = std::thread(&EventDispatcher::run, this);
}

bool EventDispatcher::add(VRKS_DevInitEventCallback callback) {
    const Lock lock(m_Mutex);
    if (!callback || isRegistered(callback)) return false;
    startThread();
    m_Callbacks.push_back(callback);
    return true;
}

// Waits for a callback that is not registered too: it may have removed itself and still be running.
bool EventDispatcher::remove(VRKS_DevInitEventCallback callback) {
    Lock lock(m_Mutex);
    if (!callback) return false;
    const auto place = std::find(m_Callbacks.begin(), m_Callbacks.end(), callback);
    const bool found = place != m_Callbacks.end();
    if (found) m_Callbacks.erase(place);
    if (!isEventThread()) m_Changed.wait(lock, [&] { return m_Running != callback; });
    return found;
}

void EventDispatcher::raise(int event) {
    const Lock lock(m_Mutex);
    if (m_IsStopped) return;
    startThread();
    m_Events.push_back(event);
    ++m_Raised;
    m_Changed.notify_all();
}

bool EventDispatcher::waitDelivered() {
    Lock lock(m_Mutex);
    if (isEventThread()) return false;
    m_Changed.wait(lock, [this, last = m_Raised] { return m_Delivered >= last; });
    return true;
}

void EventDispatcher::stop() {
    Lock lock(m_Mutex);
    m_IsStopped = true;
    m_Events.clear();
    m_Changed.notify_all();
    if (!m_Thread.joinable()) return;

    std::thread ending = std::move(m_Thread);
    lock.unlock();
    const bool isWithinCallback = ending.get_id() == std::this_thread::get_id();  // which ended the process
    isWithinCallback ? ending.detach() : ending.join();
}

void EventDispatcher::run() {
    Lock lock(m_Mutex);
    m_EventThread = std::this_thread::get_id();
    for (;;) {
        m_Changed.wait(lock, [this] { return m_IsStopped || !m_Events.empty(); });
        if (m_IsStopped) break;
        const int event = m_Events.front();
        m_Events.pop_front();
        deliver(lock, event);
        ++m_Delivered;
        m_Changed.notify_all();
    }
    m_Delivered = m_Raised;
    m_EventThread = {};
    m_Changed.notify_all();
}

// A callback may add and remove callbacks, so the list is gone through as it was and asked again each time.
void EventDispatcher::deliver(Lock& lock, int event) {
    const auto callbacks = m_Callbacks;
    for (VRKS_DevInitEventCallback callback : callbacks) {
        if (m_IsStopped || !isRegistered(callback)) continue;
        m_Running = callback;
        lock.unlock();
        callback(event, nullptr);
        lock.lock();
        m_Running = nullptr;
        m_Changed.notify_all();
    }
}
