// SPDX-License-Identifier: MIT
#include "SystemBus.h"

#include <algorithm>
#include <chrono>
#include <future>
#include <utility>

namespace {

constexpr unsigned int FirstPause = 500;
constexpr unsigned int LongestPause = 30000;  // a computer without a bus is left in peace

constexpr auto ConnectionFlags = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                                   G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);

Text address() { return Text(g_dbus_address_get_for_bus_sync(G_BUS_TYPE_SYSTEM, nullptr, nullptr)); }

Variant askBus(GDBusConnection* bus, const char* method, GVariant* parameters, GCancellable* cancellable) {
    return Variant(g_dbus_connection_call_sync(bus, "org.freedesktop.DBus", "/org/freedesktop/DBus",
                                               "org.freedesktop.DBus", method, parameters, nullptr,
                                               G_DBUS_CALL_FLAGS_NONE, -1, cancellable, nullptr));
}

bool hasOwner(GDBusConnection* bus, const char* name, GCancellable* cancellable) {
    const Variant answer = askBus(bus, "NameHasOwner", g_variant_new("(s)", name), cancellable);
    gboolean has = FALSE;
    if (answer) g_variant_get(answer.get(), "(b)", &has);
    return has;
}

bool canBeStarted(GDBusConnection* bus, const char* name, GCancellable* cancellable) {
    const Variant answer = askBus(bus, "ListActivatableNames", nullptr, cancellable);
    if (!answer) return false;
    const Variant names(g_variant_get_child_value(answer.get(), 0));
    const std::unique_ptr<const char*, Free> list(g_variant_get_strv(names.get(), nullptr));
    return g_strv_contains(list.get(), name);
}

bool isOffered(const char* name, GCancellable* cancellable) {
    const Text where = address();
    if (!where) return false;
    const Ref<GDBusConnection> bus(
        g_dbus_connection_new_for_address_sync(where.get(), ConnectionFlags, nullptr, cancellable, nullptr));
    return bus && (hasOwner(bus.get(), name, cancellable) || canBeStarted(bus.get(), name, cancellable));
}

}  // namespace

void SystemBus::drop() {
    if (m_Connection) g_signal_handlers_disconnect_by_data(m_Connection.get(), this);
    m_Connection.reset();
}

void SystemBus::connect() {
    const Text where = address();
    if (!where) return lose();
    g_dbus_connection_new_for_address(where.get(), ConnectionFlags, nullptr, nullptr, onConnected, this);
}

void SystemBus::onConnected(GObject*, GAsyncResult* result, gpointer data) {
    Ref<GDBusConnection> connection(g_dbus_connection_new_for_address_finish(result, nullptr));
    auto* self = static_cast<SystemBus*>(data);
    if (!connection) return self->lose();
    self->m_Pause = 0;
    self->m_Connection = std::move(connection);
    g_signal_connect_swapped(self->m_Connection.get(), "closed", G_CALLBACK(onClosed), self);
    self->m_Handlers.came(self->m_Connection.get());
}

void SystemBus::onClosed(SystemBus* self) { self->lose(); }

void SystemBus::lose() {
    m_Handlers.went();
    drop();
    retryLater();
}

void SystemBus::retryLater() {
    m_Pause = std::clamp(2 * m_Pause, FirstPause, LongestPause);
    g_source_unref(m_Thread.invokeLater(m_Pause, [this] { connect(); }));
}

// On a thread of its own, since a bus that hangs would hold the caller for ever.
bool SystemBus::hasService(const char* name, unsigned int milliseconds) {
    Cancellation cancellation;
    std::promise<bool> promise;
    std::future<bool> answer = promise.get_future();
    WorkerThread thread;
    thread.start();
    thread.invoke([&] { promise.set_value(isOffered(name, cancellation.get())); });
    const bool came = answer.wait_for(std::chrono::milliseconds(milliseconds)) == std::future_status::ready;
    if (!came) cancellation.cancel();
    thread.stop({});
    return came && answer.get();
}
