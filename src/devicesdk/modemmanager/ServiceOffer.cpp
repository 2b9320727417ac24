// SPDX-License-Identifier: MIT
#include "ServiceOffer.h"

#include <utility>

namespace {

// Of an answer's one value; null when the call failed.
Variant answerOf(GObject* bus, GAsyncResult* result, bool* isCancelledCall) {
    GError* raw = nullptr;
    const Variant answer(g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, &raw));
    *isCancelledCall = isCancelled(Error(raw));
    return Variant(answer ? g_variant_get_child_value(answer.get(), 0) : nullptr);
}

}  // namespace

void ServiceOffer::ask(GDBusConnection* bus, std::function<void(bool isRunning)> offered) {
    m_Offered = std::move(offered);
    call(bus, "NameHasOwner", g_variant_new("(s)", m_Name), onOwner);
}

bool ServiceOffer::await(std::chrono::milliseconds longest) {
    std::future<bool> answer = m_Answer.get_future();
    return answer.wait_for(longest) == std::future_status::ready && answer.get();
}

void ServiceOffer::call(GDBusConnection* bus, const char* method, GVariant* parameters, GAsyncReadyCallback answered) {
    g_dbus_connection_call(bus, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method,
                           parameters, nullptr, G_DBUS_CALL_FLAGS_NONE, -1, m_Cancellation.get(), answered, this);
}

void ServiceOffer::onOwner(GObject* bus, GAsyncResult* result, gpointer data) {
    bool isGone = false;
    const Variant hasOwner = answerOf(bus, result, &isGone);
    if (isGone) return;
    auto* self = static_cast<ServiceOffer*>(data);
    if (hasOwner && g_variant_get_boolean(hasOwner.get())) return self->tell(Running);
    self->call(G_DBUS_CONNECTION(bus), "ListActivatableNames", nullptr, onNames);
}

void ServiceOffer::onNames(GObject* bus, GAsyncResult* result, gpointer data) {
    bool isGone = false;
    const Variant names = answerOf(bus, result, &isGone);
    if (isGone) return;
    auto* self = static_cast<ServiceOffer*>(data);
    const std::unique_ptr<const char*, Free> list(names ? g_variant_get_strv(names.get(), nullptr) : nullptr);
    self->tell(list && g_strv_contains(list.get(), self->m_Name) ? Startable : Absent);
}

void ServiceOffer::tell(Found found) {
    if (std::exchange(m_IsTold, true)) return;
    if (found != Absent) m_Offered(found == Running);
    m_Answer.set_value(found != Absent);
}
