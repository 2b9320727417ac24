// SPDX-License-Identifier: MIT
#include "DataConnection.h"

DataConnection DataConnection::current() {
    VRKS_Connection record{};
    record.size = sizeof record;
    DataConnection connection;
    if (VRKS_NetConnectSrv_GetConnection(&record) != 0) return connection;
    connection.isKnown = true;
    connection.state = record.state;
    connection.step = record.step;
    connection.failure = record.failure;
    connection.isOwn = record.isOwn != 0;
    connection.endsWithProcess = record.endsWithProcess != 0;
    connection.since = record.since;
    connection.seconds = record.seconds;
    connection.received = record.received;
    connection.sent = record.sent;
    connection.name = QString::fromUtf8(record.name);
    connection.usedBy = QString::fromUtf8(record.usedBy);
    connection.words = QString::fromUtf8(record.words);
    connection.interfaceName = QString::fromUtf8(record.interfaceName);
    connection.address = QString::fromUtf8(record.address);
    connection.address6 = QString::fromUtf8(record.address6);
    for (const char* server : record.dns)
        if (*server) connection.dns.append(QString::fromUtf8(server));
    connection.imsi = QString::fromLatin1(record.imsi);
    return connection;
}

QString DataConnection::card() const { return imsi.isEmpty() ? ModemState::current().imsi : imsi; }

ModemState ModemState::current() {
    VRKS_ModemInfo info{};
    info.size = sizeof info;
    ModemState modem;
    int status = VRKS_DEV_STATUS_NO_MODEM;
    if (VRKS_DevSrv_GetDevStatus(&status) != 0 || VRKS_DevSrv_GetModemInfo(&info) != 0) return modem;
    modem.isKnown = true;
    modem.status = status;
    modem.card = info.card;
    modem.lock = info.lock;
    modem.registration = info.registration;
    modem.dialsAsCdma = info.dialsAsCdma != 0;
    char imsi[VRKS_IMSI_SIZE] = "";
    if (VRKS_DevSrv_GetImsiInfo(imsi) == 0) modem.imsi = QString::fromLatin1(imsi);
    return modem;
}

int ModemState::obstacle() const {
    if (!isKnown) return VRKS_FAILURE_NO_MODEM_SERVICE;
    if (status == VRKS_DEV_STATUS_NO_MODEM) return VRKS_FAILURE_NO_MODEM;
    if (card == VRKS_CARD_NONE) return VRKS_FAILURE_NO_CARD;
    if (lock != VRKS_LOCK_NONE || status == VRKS_DEV_STATUS_LOCKED) return VRKS_FAILURE_LOCKED;
    return status == VRKS_DEV_STATUS_READY ? VRKS_FAILURE_NONE : VRKS_FAILURE_NOT_READY;
}
