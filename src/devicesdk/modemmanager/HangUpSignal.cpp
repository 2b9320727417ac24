// SPDX-License-Identifier: MIT
#include "HangUpSignal.h"

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

void HangUpSignal::onCame(GDBusConnection*, const char*, const char*, const char*, const char*, GVariant* parameters,
                          gpointer self) {
    const char* connection = nullptr;
    if (!g_variant_is_of_type(parameters, G_VARIANT_TYPE("(s)"))) return;
    g_variant_get(parameters, "(&s)", &connection);
    static_cast<HangUpSignal*>(self)->m_Came(connection);
}
