// SPDX-License-Identifier: MIT
// Runs tasks later, on a thread of its own.
#ifndef ORBISDIAL_LATER_H
#define ORBISDIAL_LATER_H

#include <chrono>
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <thread>

// Every operation is safe from any thread. The thread starts with the first task. Never destroyed, only stopped.
class Later {
public:
    void run(std::chrono::milliseconds delay, std::function<void()> task);

    // Drops the waiting tasks, waits for a running one and ends the thread for good. Not from within a task.
    void stop();

private:
    using Lock = std::unique_lock<std::mutex>;

    void work();

    std::mutex m_Mutex;  // guards everything below; never held while a task runs
    std::condition_variable m_Changed;
    std::multimap<std::chrono::steady_clock::time_point, std::function<void()>> m_Tasks;
    bool m_IsStopped = false;
    std::thread m_Thread;
};

#endif
