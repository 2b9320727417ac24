// SPDX-License-Identifier: MIT
#include "SystemBus.h"

#include <algorithm>
#include <utility>

namespace {

constexpr unsigned int FirstPause = 500;
constexpr unsigned int LongestPause = 30000;  // a computer without a bus is left in peace

constexpr auto ConnectionFlags = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                                   G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);

Text address() { return Text(g_dbus_address_get_for_bus_sync(G_BUS_TYPE_SYSTEM, nullptr, nullptr)); }

}  // namespace

void SystemBus::drop() {
    if (m_Connection) g_signal_handlers_disconnect_by_data(m_Connection.get(), this);
    m_Connection.reset();
}

// Waited for, since there is nothing to be done without a bus: GLib's other way is to wait on two more threads.
void SystemBus::connect() {
    const Text where = address();
    if (!where) return lose();
    m_Connection.reset(
        g_dbus_connection_new_for_address_sync(where.get(), ConnectionFlags, nullptr, m_Connecting.get(), nullptr));
    if (!m_Connection) return lose();
    m_Pause = 0;
    g_signal_connect_swapped(m_Connection.get(), "closed", G_CALLBACK(onClosed), this);
    m_Handlers.came(m_Connection.get());
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
