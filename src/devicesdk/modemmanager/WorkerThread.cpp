// SPDX-License-Identifier: MIT
#include "WorkerThread.h"

#include <csignal>

namespace {

// The program's signals belong to the program's own threads; what the libraries start inherits this.
class SignalsBlocked {
public:
    SignalsBlocked() {
        sigset_t all;
        ::sigfillset(&all);
        ::pthread_sigmask(SIG_SETMASK, &all, &m_Before);
    }
    ~SignalsBlocked() { ::pthread_sigmask(SIG_SETMASK, &m_Before, nullptr); }
    SignalsBlocked(const SignalsBlocked&) = delete;
    SignalsBlocked& operator=(const SignalsBlocked&) = delete;

private:
    sigset_t m_Before;
};

gboolean runWork(gpointer work) {
    (*static_cast<WorkerThread::Work*>(work))();
    return G_SOURCE_REMOVE;
}

void deleteWork(gpointer work) { delete static_cast<WorkerThread::Work*>(work); }

}  // namespace

WorkerThread::~WorkerThread() {
    if (m_Thread.joinable()) stop({});
    if (m_Loop) g_main_loop_unref(m_Loop);
    if (m_Context) g_main_context_unref(m_Context);
}

void WorkerThread::start() {
    m_Context = g_main_context_new();
    m_Loop = g_main_loop_new(m_Context, FALSE);
    const SignalsBlocked blocked;
    m_Thread = std::thread(&WorkerThread::run, this);
}

void WorkerThread::invoke(Work work) {
    {
        const std::lock_guard lock(m_Mutex);
        if (m_IsStopped) return;
        m_Queue.push_back(std::move(work));
        if (m_Queue.size() > 1) return;  // its turn comes with the first one's
    }
    wake();
}

// g_main_context_invoke() would run the work at once while the thread has not begun.
void WorkerThread::wake() {
    GSource* source = g_idle_source_new();
    g_source_set_priority(source, G_PRIORITY_DEFAULT);
    g_source_set_callback(source, runQueue, this, nullptr);
    g_source_attach(source, m_Context);
    g_source_unref(source);
}

GSource* WorkerThread::invokeLater(unsigned int milliseconds, Work work) {
    GSource* source = g_timeout_source_new(milliseconds);
    g_source_set_callback(source, runWork, new Work(std::move(work)), deleteWork);
    g_source_attach(source, m_Context);
    return source;
}

void WorkerThread::stop(Work last) {
    {
        const std::lock_guard lock(m_Mutex);
        m_Queue.clear();
    }
    invoke([this, last = std::move(last)] {
        if (last) last();
        g_main_loop_quit(m_Loop);
    });
    {
        const std::lock_guard lock(m_Mutex);
        m_IsStopped = true;
    }
    m_Thread.join();
}

void WorkerThread::run() {
    g_main_context_push_thread_default(m_Context);
    g_main_loop_run(m_Loop);
    g_main_context_pop_thread_default(m_Context);
}

// What is invoked meanwhile has its own turn.
gboolean WorkerThread::runQueue(gpointer data) {
    auto* self = static_cast<WorkerThread*>(data);
    std::deque<Work> queue;
    {
        const std::lock_guard lock(self->m_Mutex);
        queue.swap(self->m_Queue);
    }
    for (const Work& work : queue) work();
    return G_SOURCE_REMOVE;
}
