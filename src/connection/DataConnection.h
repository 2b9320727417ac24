// SPDX-License-Identifier: MIT
// The data connection as the device SDK tells of it, in Qt's types.
#ifndef ORBISDIAL_DATACONNECTION_H
#define ORBISDIAL_DATACONNECTION_H

#include <vrks.h>

#include <QString>
#include <QStringList>

// The members mean what those of VRKS_Connection mean.
struct DataConnection {
    bool isKnown = false;  // false: nothing can tell, as while the service that connects hangs
    int state = VRKS_CONNECTION_DOWN;
    int step = VRKS_STEP_NONE;
    int failure = VRKS_FAILURE_NONE;
    bool isOwn = false;
    bool endsWithProcess = false;
    qint64 since = 0;
    qint64 seconds = -1;
    quint64 received = 0;
    quint64 sent = 0;
    QString name;
    QString usedBy;
    QString words;
    QString interfaceName;
    QString address;
    QString address6;
    QStringList dns;
    QString imsi;

    bool isUp() const { return state == VRKS_CONNECTION_UP; }
    bool isDown() const { return state == VRKS_CONNECTION_DOWN; }

    // The IMSI of the card whose volume is counted: the connection's own, or where that is not known, as while it is
    // down, the chosen modem's. Empty: none.
    QString card() const;

    // What it is now; a default-made one where nothing can tell. Any thread; waits for nothing.
    static DataConnection current();
};

// What decides whether the modem in use can dial.
struct ModemState {
    int status = VRKS_DEV_STATUS_NO_MODEM;
    int card = VRKS_CARD_UNKNOWN;
    int lock = VRKS_LOCK_NONE;
    int registration = VRKS_REGISTRATION_UNKNOWN;
    bool dialsAsCdma = false;
    bool isKnown = false;  // false: nothing can tell, as without the service that knows the modems
    QString imsi;          // empty: none, or it can't be read

    static ModemState current();

    // Why it can't dial now, VRKS_FAILURE_...; none when it can.
    int obstacle() const;
};

#endif
