// SPDX-License-Identifier: MIT
#include "SessionStart.h"

#include <utility>

namespace {

// 0: it has none.
std::int64_t startOf(GVariant* bearer) {
    gboolean isConnected = FALSE;
    g_variant_lookup(bearer, "Connected", "b", &isConnected);
    const Variant counted(g_variant_lookup_value(bearer, "Stats", G_VARIANT_TYPE_VARDICT));
    guint64 start = 0;
    if (isConnected && counted) g_variant_lookup(counted.get(), "start-date", "t", &start);
    return std::int64_t(start);
}

}  // namespace

void SessionStart::ask(MMModem* modem, Answer answer) {
    if (modem != std::exchange(m_Prepared, nullptr)) begin(modem);
    m_Answer = std::move(answer);
    if (m_Due == 0) m_Answer(m_Start);
}

void SessionStart::prepare(MMModem* modem) {
    if (modem == m_Prepared || mm_modem_get_state(modem) != MM_MODEM_STATE_CONNECTED) return;
    begin(modem);
    m_Prepared = modem;
}

void SessionStart::giveUp() {
    m_Cancellation.renew();
    m_Prepared = nullptr;
}

// Not through the bearers' own objects, which take three answers each to be made.
void SessionStart::begin(MMModem* modem) {
    giveUp();
    m_Answer = nullptr;
    m_Due = 0;
    m_Start = 0;
    auto* proxy = G_DBUS_PROXY(modem);
    const char* const* paths = mm_modem_get_bearer_paths(modem);
    for (; paths && *paths; ++paths, ++m_Due)
        g_dbus_connection_call(g_dbus_proxy_get_connection(proxy), g_dbus_proxy_get_name(proxy), *paths,
                               "org.freedesktop.DBus.Properties", "GetAll",
                               g_variant_new("(s)", MM_DBUS_INTERFACE_BEARER), G_VARIANT_TYPE("(a{sv})"),
                               G_DBUS_CALL_FLAGS_NONE, -1, m_Cancellation.get(), onAnswered, this);
}

void SessionStart::onAnswered(GObject* bus, GAsyncResult* result, gpointer data) {
    GError* error = nullptr;
    const Variant answer(g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, &error));
    const Error failure(error);
    if (isCancelled(failure)) return;
    auto* self = static_cast<SessionStart*>(data);
    if (answer) {
        const Variant bearer(g_variant_get_child_value(answer.get(), 0));
        if (const std::int64_t start = startOf(bearer.get())) self->m_Start = start;
    }
    if (--self->m_Due == 0 && self->m_Answer) self->m_Answer(self->m_Start);
}
