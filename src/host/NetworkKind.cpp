// SPDX-License-Identifier: MIT
#include "NetworkKind.h"

#include <vrks.h>

#include <cstring>
#include <utility>

namespace {

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
    if (mode == VRKS_SYSTEM_MODE_NONE) return None;
    if (mode != VRKS_SYSTEM_MODE_CDMA) return Other;
    const bool isEhrpd = subMode >= VRKS_SYSTEM_SUBMODE_EHRPD_FIRST && subMode <= VRKS_SYSTEM_SUBMODE_EHRPD_LAST;
    return isEhrpd ? Ehrpd : Cdma;
}

bool NetworkKind::hasChanged() {
    const std::optional<Kind> kind = now();
    if (kind == None || kind == m_Kind) return false;
    const Kind before = std::exchange(m_Kind, kind.value_or(None));
    if (!kind) return false;
    return before != None || kind == Ehrpd;
}
