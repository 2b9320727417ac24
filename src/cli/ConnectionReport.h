// SPDX-License-Identifier: MIT
// What there is to tell of the data connection, for people and for scripts.
#ifndef ORBISDIAL_CLI_CONNECTIONREPORT_H
#define ORBISDIAL_CLI_CONNECTIONREPORT_H

#include <QJsonObject>
#include <QString>

#include "CommandError.h"
#include "DataConnection.h"

namespace ConnectionReport {

// Throws a CommandError when nothing can tell.
void requireKnown();

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
