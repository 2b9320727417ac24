// SPDX-License-Identifier: MIT
#include "SignalBarrier.h"

#include "Ref.h"

namespace {

using Done = std::function<void()>;

void onAnswer(GObject* source, GAsyncResult* result, gpointer data) {
    const std::unique_ptr<Done> done(static_cast<Done*>(data));
    GError* raw = nullptr;
    const Variant answer(g_dbus_connection_call_finish(G_DBUS_CONNECTION(source), result, &raw));
    if (!isCancelled(Error(raw))) (*done)();
}

}  // namespace

// One more question to the same object is answered behind them.
void afterSignals(GDBusProxy* proxy, GCancellable* cancellable, std::function<void()> done) {
    g_dbus_connection_call(g_dbus_proxy_get_connection(proxy), g_dbus_proxy_get_name(proxy),
                           g_dbus_proxy_get_object_path(proxy), "org.freedesktop.DBus.Properties", "GetAll",
                           g_variant_new("(s)", g_dbus_proxy_get_interface_name(proxy)), nullptr,
                           G_DBUS_CALL_FLAGS_NO_AUTO_START, -1, cancellable, onAnswer, new Done(std::move(done)));
}
