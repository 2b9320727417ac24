// SPDX-License-Identifier: MIT
// One operation of the logic on the user's profiles: locks, takes in, and writes or gathers.
#ifndef ORBISDIAL_NETCONNECTOPERATION_H
#define ORBISDIAL_NETCONNECTOPERATION_H

#include "UserStore.h"

// Makes sure that the user's file is locked and that what other processes changed is taken in, before the
// operation changes the lists. Operations nest. GUI thread, for the logic's own use.
class NetConnectOperation {
public:
    NetConnectOperation() { UserStore::instance().beginOperation(); }
    ~NetConnectOperation() { UserStore::instance().endOperation(); }

    // True when the user's file could not be locked or read: nothing will be stored.
    bool hasFailed() const { return UserStore::instance().hasFailed(); }

    // Writes the user's profiles and default, or leaves that to the open NetConnectStoreAction: 0 or 25.
    int store() { return UserStore::instance().store(); }
    int storeDefault(const NetConnectDefault& value) { return UserStore::instance().storeDefault(value); }

private:
    Q_DISABLE_COPY(NetConnectOperation)
};

#endif
