// SPDX-License-Identifier: MIT
// The one thread on which the module talks to the bus.
#ifndef ORBISDIAL_WORKERTHREAD_H
#define ORBISDIAL_WORKERTHREAD_H

#include <glib.h>

#include <deque>
#include <functional>
#include <mutex>
#include <thread>

// libmm-glib and libnm may be used on one thread only: their objects are made, used and given up here, and their
// signals arrive here, in a main context of its own that is the thread's default one. It has nothing to do with the
// program's event loop, and a program without one is served as well.
class WorkerThread {
public:
    using Work = std::function<void()>;

    WorkerThread() = default;
    ~WorkerThread();
    WorkerThread(const WorkerThread&) = delete;
    WorkerThread& operator=(const WorkerThread&) = delete;

    // Once, before anything else.
    void start();

    // Runs the work on the thread, in the order of the calls; never within the call, even on the thread itself.
    // Safe from any thread. After stop() the work is dropped.
    void invoke(Work work);

    // On the thread: runs the work once when the time is over. Destroy the source to give it up, and unref it.
    GSource* invokeLater(unsigned int milliseconds, Work work);

    GMainContext* context() const { return m_Context; }

    // Drops the work that waits, runs the last one and ends the thread. Not from the thread itself.
    void stop(Work last);

private:
    void run();
    void wake();
    static gboolean runQueue(gpointer self);

    GMainContext* m_Context = nullptr;
    GMainLoop* m_Loop = nullptr;
    std::mutex m_Mutex;  // guards what follows
    std::deque<Work> m_Queue;
    bool m_IsStopped = false;
    std::thread m_Thread;
};

#endif
