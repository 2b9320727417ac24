// SPDX-License-Identifier: MIT
// What a test of connections asks and sees of the SDK.
#ifndef ORBISDIAL_TESTS_CONNECTIONS_H
#define ORBISDIAL_TESTS_CONNECTIONS_H

#include <QtTest>

#include "vrks.h"

constexpr int Patience = 30000;  // milliseconds; the daemons take their time on a busy machine

struct Request {
    QByteArray name = "Home";
    QByteArray apn = "internet.example";
    QByteArray user;
    QByteArray password;
    bool allowsChap = false;
    bool allowsPap = false;
    bool endsWithProcess = true;
};

inline bool dial(const Request& request = {}) {
    VRKS_DialRequest record{};
    record.size = sizeof record;
    record.name = request.name;
    record.apn = request.apn;
    record.user = request.user;
    record.password = request.password;
    record.allowsChap = request.allowsChap;
    record.allowsPap = request.allowsPap;
    record.endsWithProcess = request.endsWithProcess;
    return VRKS_NetConnectSrv_Dial(&record) == 0;
}

inline bool hangUp() { return VRKS_NetConnectSrv_HangUp() == 0; }

inline VRKS_Connection connection() {
    VRKS_Connection record{};
    record.size = sizeof record;
    VRKS_NetConnectSrv_GetConnection(&record);
    return record;
}

inline int deviceStatus() {
    int status = -1;
    VRKS_DevSrv_GetDevStatus(&status);
    return status;
}

inline bool hasLink() { return QFile::exists("/sys/class/net/ppp0"); }

// For a failed comparison.
inline QByteArray shown() {
    const VRKS_Connection now = connection();
    const char* failure = "";
    VRKS_NetConnectSrv_GetFailureName(now.failure, &failure);
    return QString("state %1 step %2 failure %3 (%4) name '%5' used by '%6' on %7")
        .arg(now.state)
        .arg(now.step)
        .arg(failure, now.words, now.name, now.usedBy, now.interfaceName)
        .toUtf8();
}

// All that is told a moment after the connection is up.
inline bool hasAddress() {
    const VRKS_Connection now = connection();
    return *now.interfaceName && *now.address && *now.dns[1];
}

#define TRY_CONNECTION(condition) QTRY_VERIFY2_WITH_TIMEOUT(condition, shown(), Patience)
#define TRY_UP() TRY_CONNECTION(connection().state == VRKS_CONNECTION_UP)
#define TRY_DOWN(expected)                                          \
    do {                                                            \
        TRY_CONNECTION(connection().state == VRKS_CONNECTION_DOWN); \
        QVERIFY2(connection().failure == (expected), shown());      \
    } while (false)

#endif
