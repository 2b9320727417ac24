// SPDX-License-Identifier: MIT
#include "NetworkWatch.h"

#include "Probe.h"

namespace {

template <class Item, class Condition>
Item* findIn(const GPtrArray* items, Condition condition) {
    for (guint i = 0; items && i < items->len; ++i) {
        auto* item = static_cast<Item*>(items->pdata[i]);
        if (condition(item)) return item;
    }
    return nullptr;
}

}  // namespace

bool isEnding(NMActiveConnection* connection) {
    const NMActiveConnectionState state = nm_active_connection_get_state(connection);
    return state == NM_ACTIVE_CONNECTION_STATE_DEACTIVATING || state == NM_ACTIVE_CONNECTION_STATE_DEACTIVATED;
}

NetworkWatch::NetworkWatch(GDBusConnection* bus, Handlers handlers)
    : m_Handlers(std::move(handlers)),
      m_Changes([this] { changed(); }),
      m_Device([this] { changed(); }),
      m_Connection([this] { changed(); }),
      m_Ipv4([this] { changed(); }),
      m_Ipv6([this] { changed(); }) {
    // A client that is made while NetworkManager hangs takes it for absent, for good.
    probe(bus, NetworkManagerDaemon, ProbeWithoutEnd, m_Cancellation.get(), [this, bus](const GError* error) {
        m_IsCut = g_error_matches(error, G_DBUS_ERROR, G_DBUS_ERROR_NO_REPLY);
        make(bus);
    });
}

// What it may do is seen when it does it.
void NetworkWatch::make(GDBusConnection* bus) {
    g_async_initable_new_async(NM_TYPE_CLIENT, G_PRIORITY_DEFAULT, m_Cancellation.get(), onMade, this,
                               NM_CLIENT_DBUS_CONNECTION, bus, NM_CLIENT_INSTANCE_FLAGS,
                               guint(NM_CLIENT_INSTANCE_FLAGS_NO_AUTO_FETCH_PERMISSIONS), nullptr);
}

NetworkWatch::~NetworkWatch() { follow(static_cast<NMDevice*>(nullptr)); }

void NetworkWatch::onMade(GObject* source, GAsyncResult* result, gpointer self) {
    GError* error = nullptr;
    GObject* client = g_async_initable_new_finish(G_ASYNC_INITABLE(source), result, &error);
    const Error failure(error);
    if (isCancelled(failure)) return;
    auto* watch = static_cast<NetworkWatch*>(self);
    if (client) watch->m_Client.reset(NM_CLIENT(client));
    watch->m_Changes.follow(watch->m_Client.get());
    watch->m_HasBegun = true;
    watch->m_Handlers.begun();
}

NMDevice* NetworkWatch::deviceOf(const std::string& modemPath) const {
    if (!isRunning() || modemPath.empty()) return nullptr;
    return findIn<NMDevice>(nm_client_get_devices(m_Client.get()), [&](NMDevice* device) {
        const char* udi = nm_device_get_udi(device);
        return udi && modemPath == udi;
    });
}

NMActiveConnection* NetworkWatch::markedConnection(Course course) const {
    if (!isRunning()) return nullptr;
    return findIn<NMActiveConnection>(nm_client_get_active_connections(m_Client.get()), [=](NMActiveConnection* one) {
        return isEnding(one) == (course == Ending) && !markOf(one).name.empty();
    });
}

bool NetworkWatch::has(NMActiveConnection* connection) const {
    if (!isRunning() || nm_active_connection_get_state(connection) == NM_ACTIVE_CONNECTION_STATE_DEACTIVATED)
        return false;
    const GPtrArray* all = nm_client_get_active_connections(m_Client.get());
    return findIn<NMActiveConnection>(all, [=](NMActiveConnection* one) { return one == connection; }) != nullptr;
}

bool NetworkWatch::has(NMDevice* device) const {
    if (!isRunning()) return false;
    return findIn<NMDevice>(nm_client_get_devices(m_Client.get()), [=](NMDevice* one) { return one == device; }) !=
           nullptr;
}

void NetworkWatch::follow(NMDevice* device) {
    NMDevice* before = m_Device.get();
    if (before == device) return;
    if (before) g_signal_handlers_disconnect_by_data(before, this);
    m_Device.follow(device);
    if (device) g_signal_connect(device, "state-changed", G_CALLBACK(onDeviceState), this);
}

void NetworkWatch::follow(NMActiveConnection* connection) {
    m_Connection.follow(connection);
    followAddresses();
}

void NetworkWatch::followAddresses() {
    NMActiveConnection* connection = m_Connection.get();
    m_Ipv4.follow(connection ? nm_active_connection_get_ip4_config(connection) : nullptr);
    m_Ipv6.follow(connection ? nm_active_connection_get_ip6_config(connection) : nullptr);
}

void NetworkWatch::changed() {
    followAddresses();
    m_Handlers.changed();
}

void NetworkWatch::onDeviceState(NMDevice*, guint now, guint, guint reason, NetworkWatch* self) {
    self->m_Handlers.deviceStateChanged(NMDeviceState(now), reason);
    self->changed();
}
