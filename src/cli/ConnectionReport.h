// SPDX-License-Identifier: MIT
// What there is to tell of the data connection, for people and for scripts.
#ifndef ORBISDIAL_CLI_CONNECTIONREPORT_H
#define ORBISDIAL_CLI_CONNECTIONREPORT_H

#include <QJsonObject>
#include <QString>

#include "CommandError.h"
#include "DataConnection.h"

namespace ConnectionReport {

// Why nothing can tell: as connecting would fail without the daemon that is to tell; or there is no backend that could
// ask one.
CommandError silence(int failure, const QString& withoutBackend);

// Throws a CommandError when nothing can tell.
void requireKnown();

// The one that there is. None of a modem that nobody can tell of has failed for that reason.
DataConnection present();

// Its state and all that belongs to it; null for what is unknown or not there.
QJsonObject object(const DataConnection& connection);

// The same without what changes all the time.
QJsonObject lasting(const DataConnection& connection);

// In one line.
QString line(const DataConnection& connection);

// How far dialling is, as a sentence.
QString step(const DataConnection& connection);

// Why it ended or could not be made.
CommandError error(const DataConnection& connection);

}  // namespace ConnectionReport

#endif
