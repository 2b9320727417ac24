// SPDX-License-Identifier: MIT
// How the processes of ours tell one another that somebody hangs up: NetworkManager tells only that it was asked to.
#ifndef ORBISDIAL_HANGUPSIGNAL_H
#define ORBISDIAL_HANGUPSIGNAL_H

#include <functional>
#include <string>

#include "Ref.h"

// A signal on the system's bus, which reaches the others before NetworkManager hears of it: the bus keeps the order of
// what one process sends. Who may not end a connection may send it all the same, so it tells how one ended, and never
// ends one. Everything happens on the thread.
class HangUpSignal {
public:
    // In a connection's place: nothing is up, and who waits to connect by himself is to stop. Only what the same user
    // or root sends reaches the handler.
    static constexpr char Nothing[] = "/";

    // Told of the connection's D-Bus path at NetworkManager; of this process's own signals, too.
    using Handler = std::function<void(const std::string& connection)>;

    HangUpSignal(GDBusConnection* bus, Handler came);
    ~HangUpSignal();
    HangUpSignal(const HangUpSignal&) = delete;
    HangUpSignal& operator=(const HangUpSignal&) = delete;

    void send(const char* connection);

private:
    static void onSender(GObject* bus, GAsyncResult* result, gpointer self);
    static void onCame(GDBusConnection*, const char*, const char*, const char*, const char*, GVariant* parameters,
                       gpointer self);

    Ref<GDBusConnection> m_Bus;
    Handler m_Came;
    guint m_Subscription;
    Cancellation m_Cancellation;
};

#endif
