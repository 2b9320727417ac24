// SPDX-License-Identifier: MIT
#include "Probe.h"

namespace {

using Done = std::function<void(const GError* error)>;

void onAnswer(GObject* bus, GAsyncResult* result, gpointer data) {
    const std::unique_ptr<Done> done(static_cast<Done*>(data));
    GError* raw = nullptr;
    const Variant answer(g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, &raw));
    const Error error(raw);
    if (!isCancelled(error)) (*done)(error.get());
}

}  // namespace

void probe(GDBusConnection* bus, const Daemon& daemon, int milliseconds, GCancellable* cancellable, Done done) {
    g_dbus_connection_call(bus, daemon.name, daemon.path, "org.freedesktop.DBus.Properties", "Get",
                           g_variant_new("(ss)", daemon.name, "Version"), nullptr, G_DBUS_CALL_FLAGS_NO_AUTO_START,
                           milliseconds, cancellable, onAnswer, new Done(std::move(done)));
}
