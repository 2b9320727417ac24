// SPDX-License-Identifier: MIT
#include "Later.h"

using Clock = std::chrono::steady_clock;

void Later::run(std::chrono::milliseconds delay, std::function<void()> task) {
    const Lock lock(m_Mutex);
    if (m_IsStopped) return;
    m_Tasks.emplace(Clock::now() + delay, std::move(task));
    if (!m_Thread.joinable()) m_Thread = std::thread(&Later::work, this);
    m_Changed.notify_all();
}

void Later::stop() {
    Lock lock(m_Mutex);
    m_IsStopped = true;
    m_Tasks.clear();
    m_Changed.notify_all();
    if (!m_Thread.joinable()) return;
    std::thread ending = std::move(m_Thread);
    lock.unlock();
    ending.join();
}

void Later::work() {
    Lock lock(m_Mutex);
    while (!m_IsStopped) {
        if (m_Tasks.empty()) {
            m_Changed.wait(lock);
            continue;
        }
        const auto first = m_Tasks.begin();
        if (const auto due = first->first; due > Clock::now()) {
            m_Changed.wait_until(lock, due);
            continue;
        }
        const auto task = std::move(first->second);
        m_Tasks.erase(first);
        lock.unlock();
        task();
        lock.lock();
    }
}
