// What NetworkManager is given to dial with.
#ifndef ORBISDIAL_DIALSETTINGS_H
#define ORBISDIAL_DIALSETTINGS_H

#include <NetworkManager.h>

#include <string>

#include "../DialRequest.h"
#include "Ref.h"

// What decides about a connection besides the request.
struct DialTarget {
    bool isCdma = false;  // by the device, never by the profile
    bool isIpv4Only = false;
    std::string user;  // login name of whom it belongs to; empty: everybody's
};

Ref<NMConnection> dialSettings(const DialRequest& request, const DialTarget& target);

// How NetworkManager is to keep it: gone when it ends, which it does with this process if the request wants that.
Variant activationOptions(const DialRequest& request);

// What another process of ours reads off a connection that was made here.
struct DialMark {
    std::string name;  // the profile's; empty: the connection is none of ours
    bool endsWithProcess = false;
};

DialMark markOf(NMConnection* connection);

#endif
