// SPDX-License-Identifier: MIT
#include "NetworkKind.h"

#include <vrks.h>

#include <cstring>
#include <utility>

namespace {

// System modes and sub-modes of the device SDK.
constexpr int NoNetworkMode = 0;
constexpr int CdmaMode = 2;
constexpr int FirstEhrpdSubMode = 31;
constexpr int LastEhrpdSubMode = 36;

int numberAt(const unsigned char* place) {
    int number = 0;
    std::memcpy(&number, place, sizeof number);
    return number;
}

}  // namespace

// Nothing: there is no modem.
std::optional<NetworkKind::Kind> NetworkKind::now() {
    unsigned char record[VRKS_SYSINFO_SIZE];
    if (VRKS_NetSrv_GetSysInfoEx(record) != 0) return std::nullopt;
    const int mode = numberAt(record + VRKS_SYSINFO_MODE_OFFSET);
    const int subMode = numberAt(record + VRKS_SYSINFO_SUBMODE_OFFSET);
    if (mode == NoNetworkMode) return None;
    if (mode != CdmaMode) return Other;
    return subMode >= FirstEhrpdSubMode && subMode <= LastEhrpdSubMode ? Ehrpd : Cdma;
}

bool NetworkKind::hasChanged() {
    const std::optional<Kind> kind = now();
    if (kind == None || kind == m_Kind) return false;
    const Kind before = std::exchange(m_Kind, kind.value_or(None));
    if (!kind) return false;
    return before != None || kind == Ehrpd;
}
