// SPDX-License-Identifier: MIT
#include "HangUpSignal.h"

#include <unistd.h>

#include <cstring>

namespace {

constexpr char Path[] = "/com/kestra/orbisdial";
constexpr char Interface[] = "com.kestra.orbisdial.Connection";
constexpr char Member[] = "HangingUp";

}  // namespace

HangUpSignal::HangUpSignal(GDBusConnection* bus, Handler came)
    : m_Bus(static_cast<GDBusConnection*>(g_object_ref(bus))),
      m_Came(std::move(came)),
      m_Subscription(g_dbus_connection_signal_subscribe(bus, nullptr, Interface, Member, Path, nullptr,
                                                        G_DBUS_SIGNAL_FLAGS_NONE, onCame, this, nullptr)) {}

HangUpSignal::~HangUpSignal() { g_dbus_connection_signal_unsubscribe(m_Bus.get(), m_Subscription); }

void HangUpSignal::send(const char* connection) {
    g_dbus_connection_emit_signal(m_Bus.get(), nullptr, Path, Interface, Member, g_variant_new("(s)", connection),
                                  nullptr);
}

void HangUpSignal::onCame(GDBusConnection* bus, const char* sender, const char*, const char*, const char*,
                          GVariant* parameters, gpointer data) {
    auto* self = static_cast<HangUpSignal*>(data);
    const char* connection = nullptr;
    if (!g_variant_is_of_type(parameters, G_VARIANT_TYPE("(s)"))) return;
    g_variant_get(parameters, "(&s)", &connection);
    if (std::strcmp(connection, Nothing) != 0) return self->m_Came(connection);
    g_dbus_connection_call(bus, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                           "GetConnectionUnixUser", g_variant_new("(s)", sender), G_VARIANT_TYPE("(u)"),
                           G_DBUS_CALL_FLAGS_NONE, -1, self->m_Cancellation.get(), onSender, self);
}

// One that has left the bus already can't be told any more.
void HangUpSignal::onSender(GObject* bus, GAsyncResult* result, gpointer self) {
    GError* error = nullptr;
    const Variant answer(g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, &error));
    const Error failure(error);
    if (!answer) return;
    guint32 user = 0;
    g_variant_get(answer.get(), "(u)", &user);
    if (user == 0 || user == ::geteuid()) static_cast<HangUpSignal*>(self)->m_Came(Nothing);
}
