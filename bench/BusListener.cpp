// SPDX-License-Identifier: MIT
#include "BusListener.h"

#include <gio/gio.h>

#include "Measure.h"

namespace {

void onChanged(GDBusConnection*, const gchar*, const gchar*, const gchar*, const gchar*, GVariant* parameters,
               gpointer listener) {
    GVariant* const changed = g_variant_get_child_value(parameters, 1);
    GVariant* const technology = g_variant_lookup_value(changed, "AccessTechnologies", G_VARIANT_TYPE_UINT32);
    if (technology) static_cast<BusListener*>(listener)->hear();
    if (technology) g_variant_unref(technology);
    g_variant_unref(changed);
}

}  // namespace

BusListener::BusListener() : m_Loop(g_main_loop_new(g_main_context_new(), FALSE)), m_Thread([this] { run(); }) {
    while (!m_IsListening) std::this_thread::yield();
}

BusListener::~BusListener() {
    g_main_loop_quit(m_Loop);
    m_Thread.join();
    g_main_context_unref(g_main_loop_get_context(m_Loop));
    g_main_loop_unref(m_Loop);
}

void BusListener::run() {
    g_main_context_push_thread_default(g_main_loop_get_context(m_Loop));
    const auto flags = GDBusConnectionFlags(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                            G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    gchar* const address = g_dbus_address_get_for_bus_sync(G_BUS_TYPE_SYSTEM, nullptr, nullptr);
    GDBusConnection* const bus = g_dbus_connection_new_for_address_sync(address, flags, nullptr, nullptr, nullptr);
    g_free(address);
    Measure::require(bus, "connecting to the bus");
    g_dbus_connection_signal_subscribe(bus, nullptr, "org.freedesktop.DBus.Properties", "PropertiesChanged", nullptr,
                                       "org.freedesktop.ModemManager1.Modem", G_DBUS_SIGNAL_FLAGS_NONE, onChanged, this,
                                       nullptr);
    g_dbus_connection_flush_sync(bus, nullptr, nullptr);
    m_IsListening = true;
    g_main_loop_run(m_Loop);
    g_object_unref(bus);
    g_main_context_pop_thread_default(g_main_loop_get_context(m_Loop));
}
