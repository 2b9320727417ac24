// SPDX-License-Identifier: MIT
// Something to do later on the thread, unless it is given up before.
#ifndef ORBISDIAL_TIMER_H
#define ORBISDIAL_TIMER_H

#include <utility>

#include "WorkerThread.h"

class Timer {
public:
    explicit Timer(WorkerThread& thread) : m_Thread(thread) {}
    ~Timer() { stop(); }
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    // Instead of what waits, if something does.
    void start(unsigned int milliseconds, WorkerThread::Work work) {
        stop();
        m_Source = m_Thread.invokeLater(milliseconds, [this, work = std::move(work)] {
            const WorkerThread::Work due = work;  // stop() destroys what holds it
            stop();
            due();
        });
    }

    void stop() {
        if (!m_Source) return;
        g_source_destroy(m_Source);
        g_source_unref(m_Source);
        m_Source = nullptr;
    }

    bool isRunning() const { return m_Source != nullptr; }

private:
    WorkerThread& m_Thread;
    GSource* m_Source = nullptr;
};

#endif
