// SPDX-License-Identifier: MIT
// What NetworkManager is given to dial with.
#ifndef ORBISDIAL_DIALSETTINGS_H
#define ORBISDIAL_DIALSETTINGS_H

#include <NetworkManager.h>

#include <cstdint>
#include <optional>
#include <string>

#include "../DialRequest.h"
#include "Ref.h"

// The moment of dialling, in seconds.
struct DialStamp {
    std::int64_t unixTime = 0;
    std::int64_t bootTime = 0;  // by a clock that runs while the computer does or sleeps, and that nobody sets

    static DialStamp now();

    bool operator==(const DialStamp& other) const { return unixTime == other.unixTime && bootTime == other.bootTime; }
};

// What decides about a connection besides the request.
struct DialTarget {
    bool isCdma = false;  // by the device, never by the profile
    bool isIpv4Only = false;
    std::string user;  // login name of whom it belongs to; empty: everybody's
    DialStamp stamp = {};
};

Ref<NMConnection> dialSettings(const DialRequest& request, const DialTarget& target);

// How NetworkManager is to keep it: gone when it ends, which it does with this process if the request wants that.
Variant activationOptions(const DialRequest& request);

// What another process of ours reads off a connection that was made here.
struct DialMark {
    std::string name;  // the profile's; empty: the connection is none of ours
    bool endsWithProcess = false;
    std::optional<DialStamp> dialled = {};
};

DialMark markOf(NMConnection* connection);

// How long the connection is up, in seconds, where ModemManager says that its data session began at a Unix time. The
// stamp counts by a clock that nobody sets; the clock on the wall is good for the short while between dialling and
// session. Nothing where the two can't be true together.
std::optional<std::int64_t> secondsUp(const DialStamp& dialled, std::int64_t sessionStart, std::int64_t bootTime);

#endif
