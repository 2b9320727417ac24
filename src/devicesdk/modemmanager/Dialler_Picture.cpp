// SPDX-License-Identifier: MIT
// What the picture shows of the connection.
#include "Dialler.h"

namespace {

template <class Visitor>
void visit(const GPtrArray* items, Visitor visitor) {
    for (guint i = 0; items && i < items->len; ++i) visitor(static_cast<NMIPAddress*>(items->pdata[i]));
}

// The first address that others reach; empty when there is none.
std::string addressOf(NMIPConfig* config) {
    std::string found;
    if (!config) return found;
    visit(nm_ip_config_get_addresses(config), [&](NMIPAddress* address) {
        const std::string text = nm_ip_address_get_address(address);
        const bool isLinkLocal = text.compare(0, 4, "fe80") == 0;
        if (found.empty() && !isLinkLocal) found = text;
    });
    return found;
}

void addNameServers(std::vector<std::string>& servers, NMIPConfig* config) {
    const char* const* names = config ? nm_ip_config_get_nameservers(config) : nullptr;
    for (; names && *names; ++names) servers.emplace_back(*names);
}

int stepOfModem(MMModemState state) {
    if (state >= MM_MODEM_STATE_REGISTERED) return VRKS_STEP_CONNECTING;
    return state >= MM_MODEM_STATE_ENABLED ? VRKS_STEP_REGISTERING : VRKS_STEP_PREPARING;
}

}  // namespace

std::string Dialler::modemPath() const {
    NMDevice* device = m_Phase > Phase::Looking && m_Watch ? m_Watch->device() : nullptr;
    if (device) return textOf(nm_device_get_udi(device));
    MMObject* modem = m_Host.modemInUse();
    return modem ? textOf(mm_object_get_path(modem)) : std::string();
}

std::string Dialler::modemKey() const { return m_Modem.get() ? textOf(mm_modem_get_device(m_Modem.get())) : ""; }

// NetworkManager's preparing holds all that the modem does until it is connected.
int Dialler::step() const {
    NMDevice* device = m_Watch ? m_Watch->device() : nullptr;
    if (m_Phase <= Phase::Asking || !device) return VRKS_STEP_PREPARING;
    const NMDeviceState state = nm_device_get_state(device);
    if (state >= NM_DEVICE_STATE_IP_CONFIG) return VRKS_STEP_ADDRESSING;
    if (state > NM_DEVICE_STATE_PREPARE) return VRKS_STEP_CONNECTING;
    return m_Modem.get() ? stepOfModem(mm_modem_get_state(m_Modem.get())) : VRKS_STEP_PREPARING;
}

void Dialler::describeLink(Connection& connection) const {
    NMActiveConnection* active = m_Watch->connection();
    NMDevice* device = m_Watch->device();
    NMIPConfig* ipv4 = nm_active_connection_get_ip4_config(active);
    NMIPConfig* ipv6 = nm_active_connection_get_ip6_config(active);
    if (device) connection.interfaceName = textOf(nm_device_get_ip_iface(device));
    connection.modem = modemPath();
    connection.address = addressOf(ipv4);
    connection.address6 = addressOf(ipv6);
    addNameServers(connection.dns, ipv4);
    addNameServers(connection.dns, ipv6);
}

Connection Dialler::described() const {
    Connection connection;
    connection.name = m_Dialled.request.name;
    connection.isOwn = m_Dialled.isOwn;
    connection.endsWithProcess = m_Dialled.endsWithProcess;
    connection.since = m_Dialled.since;
    connection.upSince = m_Dialled.upSince;
    NMActiveConnection* active = m_Watch ? m_Watch->connection() : nullptr;
    const bool isEnding = active && nm_active_connection_get_state(active) == NM_ACTIVE_CONNECTION_STATE_DEACTIVATING;
    if (isHangingUp() || isEnding || m_Phase == Phase::Ended) {
        connection.state = VRKS_CONNECTION_HANGING_UP;
    } else if (m_Phase == Phase::Up) {
        connection.state = VRKS_CONNECTION_UP;
        connection.failure = m_Dialled.refusal.kind;
        connection.words = m_Dialled.refusal.words;
        describeLink(connection);
    } else {
        connection.state = VRKS_CONNECTION_DIALLING;
        connection.step = step();
    }
    return connection;
}

// A hanging up that the machine has not seen yet must not be taken back; hence it is looked at within the edit.
void Dialler::publish() {
    m_Host.change([this](Picture& picture) {
        const Connection connection = described();
        if (connection == picture.connection) return false;
        picture.connection = connection;
        return true;
    });
    if (m_Phase == Phase::Up && m_Watch->device()) m_Counters.use(textOf(nm_device_get_ip_iface(m_Watch->device())));
}

void Dialler::publishUser(const std::string& usedBy) {
    m_Host.change([&](Picture& picture) {
        if (m_WaitingDials > 0 || picture.connection.usedBy == usedBy) return false;
        picture.connection.usedBy = usedBy;
        return true;
    });
}
