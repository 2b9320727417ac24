// SPDX-License-Identifier: MIT
#include "BearerErrors.h"

#include <ModemManager.h>

// Not through the bearers' own objects: they come and go with each attempt.
BearerErrors::BearerErrors(GDBusConnection* bus)
    : m_Bus(static_cast<GDBusConnection*>(g_object_ref(bus))),
      m_Subscription(g_dbus_connection_signal_subscribe(bus, MM_DBUS_SERVICE, "org.freedesktop.DBus.Properties",
                                                        "PropertiesChanged", nullptr, MM_DBUS_INTERFACE_BEARER,
                                                        G_DBUS_SIGNAL_FLAGS_NONE, onChanged, this, nullptr)) {}

BearerErrors::~BearerErrors() { g_dbus_connection_signal_unsubscribe(m_Bus.get(), m_Subscription); }

// Emptied when a new attempt begins.
void BearerErrors::onChanged(GDBusConnection*, const char*, const char*, const char*, const char*, GVariant* parameters,
                             gpointer self) {
    const Variant properties(g_variant_get_child_value(parameters, 1));
    const char* name = nullptr;
    const char* words = nullptr;
    if (!g_variant_lookup(properties.get(), "ConnectionError", "(&s&s)", &name, &words) || !*name) return;
    static_cast<BearerErrors*>(self)->m_Errors.push_back({name, words});
}
