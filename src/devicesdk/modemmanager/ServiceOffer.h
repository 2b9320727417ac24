// SPDX-License-Identifier: MIT
// Whether somebody offers a name on the bus, or would be started for it.
#ifndef ORBISDIAL_SERVICEOFFER_H
#define ORBISDIAL_SERVICEOFFER_H

#include <chrono>
#include <functional>
#include <future>

#include "Ref.h"

// Asked and answered on one thread, and told to another one that waits.
class ServiceOffer {
public:
    explicit ServiceOffer(const char* name) : m_Name(name) {}

    // Once. The answer never comes when the offer goes before, or the bus.
    void ask(GDBusConnection* bus, std::function<void(bool isRunning)> offered);

    // Where there is no bus to ask.
    void deny() { tell(Absent); }

    // From another thread, once: waits for the answer, for so long at most. False when there was none.
    bool await(std::chrono::milliseconds longest);

private:
    enum Found { Absent, Startable, Running };

    static void onOwner(GObject* bus, GAsyncResult* result, gpointer self);
    static void onNames(GObject* bus, GAsyncResult* result, gpointer self);
    void call(GDBusConnection* bus, const char* method, GVariant* parameters, GAsyncReadyCallback answered);
    void tell(Found found);

    const char* m_Name;
    std::function<void(bool isRunning)> m_Offered;
    bool m_IsTold = false;
    std::promise<bool> m_Answer;
    Cancellation m_Cancellation;
};

#endif
