// SPDX-License-Identifier: MIT
#include "EventDispatcher.h"

#include <algorithm>
#include <system_error>

namespace {

// Between two device events of a kind. A window reads its lists again at each; this leaves it time for its user.
constexpr std::chrono::milliseconds DeviceEventPause(100);

}  // namespace

bool EventDispatcher::isEventThread() const { return std::this_thread::get_id() == m_EventThread; }

bool EventDispatcher::isRegistered(const Listener& listener) const {
    return std::find(m_Listeners.begin(), m_Listeners.end(), listener) != m_Listeners.end();
}

bool EventDispatcher::hasListener(const Event& event) const {
    return std::any_of(m_Listeners.begin(), m_Listeners.end(),
                       [&](const Listener& listener) { return event.isDevice == (listener.device != nullptr); });
}

bool EventDispatcher::hasDeliverable() const {
    return !m_Queue.empty() ||
           std::any_of(m_Pending.begin(), m_Pending.end(), [this](const Event& event) { return hasListener(event); });
}

// Where no thread can be had the events are kept, and the next one asks for it again.
void EventDispatcher::startThread() {
    if (m_IsStopped || m_Thread.joinable() || !hasDeliverable()) return;
    try {
        m_Thread = std::thread(&EventDispatcher::run, this);
    } catch (const std::system_error&) {
    }
}

bool EventDispatcher::add(const Listener& listener) {
    const Lock lock(m_Mutex);
    if (listener.isNull() || isRegistered(listener)) return false;
    m_Listeners.push_back(listener);
    startThread();  // an event may have been kept
    m_Changed.notify_all();
    return true;
}

// Waits for a callback that is not registered too: it may have removed itself and still be running.
bool EventDispatcher::remove(const Listener& listener) {
    Lock lock(m_Mutex);
    if (listener.isNull()) return false;
    const auto place = std::find(m_Listeners.begin(), m_Listeners.end(), listener);
    const bool found = place != m_Listeners.end();
    if (found) m_Listeners.erase(place);
    if (!isEventThread()) m_Changed.wait(lock, [&] { return !(m_Running == listener); });
    m_Changed.notify_all();
    return found;
}

void EventDispatcher::queueDevice(int event) {
    const Lock lock(m_Mutex);
    if (m_IsStopped) return;
    m_Queue.push_back({event, true, ++m_LastSerial, {}});
    startThread();
    m_Changed.notify_all();
}

void EventDispatcher::raiseDevice(int event) { raiseOnce(event, true); }

void EventDispatcher::raise(int event) { raiseOnce(event, false); }

void EventDispatcher::raiseOnce(int event, bool isDevice) {
    const Lock lock(m_Mutex);
    const auto isSame = [&](const Event& other) { return other.number == event && other.isDevice == isDevice; };
    if (m_IsStopped || std::any_of(m_Pending.begin(), m_Pending.end(), isSame)) return;
    m_Pending.push_back({event, isDevice, ++m_LastSerial, isDevice ? m_NextDue[event] : Clock::time_point()});
    startThread();
    m_Changed.notify_all();
}

bool EventDispatcher::isOutstanding(std::uint64_t last) const {
    if (m_SerialRunning != 0 && m_SerialRunning <= last) return true;
    if (!m_Queue.empty() && m_Queue.front().serial <= last) return true;
    return std::any_of(m_Pending.begin(), m_Pending.end(),
                       [&](const Event& event) { return event.serial <= last && hasListener(event); });
}

bool EventDispatcher::waitDelivered() {
    Lock lock(m_Mutex);
    if (isEventThread()) return false;
    m_Changed.wait(lock, [this, last = m_LastSerial] { return !isOutstanding(last); });
    return true;
}

void EventDispatcher::stop() {
    Lock lock(m_Mutex);
    m_IsStopped = true;
    m_Queue.clear();
    m_Pending.clear();
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
    while (!m_IsStopped) {
        Event event;
        if (!takeEvent(&event)) {
            waitForEvent(lock);
            continue;
        }
        m_SerialRunning = event.serial;
        deliver(lock, event);
        m_SerialRunning = 0;
        m_Changed.notify_all();
    }
    m_EventThread = {};
    m_Changed.notify_all();
}

// The oldest of those that can be delivered now.
bool EventDispatcher::takeEvent(Event* event) {
    const Clock::time_point now = Clock::now();
    const auto pending = std::find_if(m_Pending.begin(), m_Pending.end(), [&](const Event& candidate) {
        return candidate.due <= now && hasListener(candidate);
    });
    const bool isPending = pending != m_Pending.end();
    if (!m_Queue.empty() && (!isPending || m_Queue.front().serial < pending->serial)) {
        *event = m_Queue.front();
        m_Queue.pop_front();
        return true;
    }
    if (!isPending) return false;
    *event = *pending;
    m_Pending.erase(pending);
    if (event->isDevice) m_NextDue[event->number] = now + DeviceEventPause;
    return true;
}

// Until something changes or a pending event is due.
void EventDispatcher::waitForEvent(Lock& lock) {
    Clock::time_point first = Clock::time_point::max();
    for (const Event& event : m_Pending)
        if (hasListener(event)) first = std::min(first, event.due);
    if (first == Clock::time_point::max()) {
        m_Changed.wait(lock);
    } else {
        m_Changed.wait_until(lock, first);
    }
}

// A callback may add and remove callbacks, so the list is gone through as it was and asked again each time.
void EventDispatcher::deliver(Lock& lock, const Event& event) {
    const auto listeners = m_Listeners;
    for (const Listener& listener : listeners) {
        if (event.isDevice != (listener.device != nullptr) || m_IsStopped || !isRegistered(listener)) continue;
        m_Running = listener;
        lock.unlock();
        event.isDevice ? void(listener.device(event.number, nullptr)) : listener.other(event.number, listener.data);
        lock.lock();
        m_Running = {};
        m_Changed.notify_all();
    }
}
