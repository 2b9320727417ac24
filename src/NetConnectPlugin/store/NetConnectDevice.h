// SPDX-License-Identifier: MIT
// What the plug-in asks the device SDK, in Qt's types. Nothing else of the plug-in knows the SDK's records and sizes.
#ifndef ORBISDIAL_NETCONNECTDEVICE_H
#define ORBISDIAL_NETCONNECTDEVICE_H

#include <QString>

// Whether the SIM card serves CDMA and WCDMA, and in which mode it is now. A card that can't be asked is not
// multi-mode.
struct NetConnectCardMode {
    enum Mode { None = 0, CDMA = 2 };  // every other mode is a WCDMA one

    NetConnectCardMode() : isMultiMode(false), mode(None) {}

    bool isCDMA() const { return isMultiMode && mode == CDMA; }
    bool isWCDMA() const { return isMultiMode && mode != None && mode != CDMA; }

    bool isMultiMode;
    unsigned int mode;
};

namespace NetConnectDevice {

// Where a trace of a query says that it was made.
struct Caller {
    const char* file;
    const char* function;
};

bool isReady();
NetConnectCardMode cardMode();
NetConnectCardMode cardMode(const Caller& caller);

// The name that the device is customised for, as it gives it; empty when it gives none.
QString customizeName();
QString customizeName(const Caller& caller);

// Whether a customise name stands for a configuration of its own.
bool isCustomized(const QString& customizeName);

bool isCDMAProduct(const Caller& caller);

// Null when the card can't be read.
QString imsi();

// What the card calls its own operator; empty when it does not say.
QString cardOperator();

// Whether the network is an enhanced high-rate packet data one; false, and traced, when that can't be had.
bool isEhrpd(const Caller& caller);

// User name and password of the device's data-service profile; false when it has none.
bool credentials(QString* user, QString* password, const Caller& caller);

// Ends with a slash; empty when it can't be had. The SDK's answer is stored for the trace.
QString userDataDirectory(long* answer);

}  // namespace NetConnectDevice

#endif
