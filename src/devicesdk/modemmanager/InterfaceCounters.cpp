// SPDX-License-Identifier: MIT
#include "InterfaceCounters.h"

#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace {

const char InterfacesFolder[] = "/sys/class/net";

std::optional<std::uint64_t> readCounter(const std::string& interfaceName, const char* counter) {
    std::ifstream file(fs::path(InterfacesFolder) / interfaceName / "statistics" / counter);
    std::uint64_t number;
    if (!(file >> number)) return std::nullopt;
    return number;
}

}  // namespace

std::optional<Traffic> countersOf(const std::string& interfaceName) {
    const auto received = readCounter(interfaceName, "rx_bytes");
    const auto sent = readCounter(interfaceName, "tx_bytes");
    if (!received || !sent) return std::nullopt;
    return Traffic{*received, *sent};
}

void InterfaceCounters::forget() {
    const std::lock_guard lock(m_Mutex);
    clear();
}

void InterfaceCounters::clear() {
    m_Before.clear();
    m_Interface.clear();
    m_Last = {};
}

void InterfaceCounters::beginAnew() {
    const std::lock_guard lock(m_Mutex);
    clear();
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(InterfacesFolder, error)) {
        const std::string name = entry.path().filename();
        if (const auto counted = countersOf(name)) m_Before[name] = *counted;
    }
}

void InterfaceCounters::use(const std::string& interfaceName) {
    const std::lock_guard lock(m_Mutex);
    m_Interface = interfaceName;
    read();
}

void InterfaceCounters::stop() {
    const std::lock_guard lock(m_Mutex);
    read();
    m_Interface.clear();
    m_Before.clear();
}

Traffic InterfaceCounters::get() {
    const std::lock_guard lock(m_Mutex);
    read();
    return m_Last;
}

// An interface that was made anew counts from zero.
void InterfaceCounters::read() {
    if (m_Interface.empty()) return;
    const std::optional<Traffic> counted = countersOf(m_Interface);
    if (!counted) return;
    Traffic& before = m_Before[m_Interface];
    if (counted->received < before.received || counted->sent < before.sent) before = {};
    m_Last = {counted->received - before.received, counted->sent - before.sent};
}
