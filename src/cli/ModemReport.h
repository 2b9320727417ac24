// SPDX-License-Identifier: MIT
// What the device SDK tells of a modem, for people and for scripts.
#ifndef ORBISDIAL_CLI_MODEMREPORT_H
#define ORBISDIAL_CLI_MODEMREPORT_H

#include <vrks.h>

#include <QJsonObject>
#include <QList>
#include <QStringList>

namespace ModemReport {

// Whether the daemon that knows real modems is not there, or hangs.
bool isServiceMissing();

// The one in use; false when nothing can tell of modems.
bool current(VRKS_ModemInfo* info);

// The same. Throws a CommandError when nothing can tell.
VRKS_ModemInfo required();

// All that are there.
QList<VRKS_ModemInfo> all();

// Maker and model, or the key where the modem tells neither.
QString title(const VRKS_ModemInfo& info);

// Its state in a word.
QString status(const VRKS_ModemInfo& info);

// All of the record; null for what is unknown or not there.
QJsonObject object(const VRKS_ModemInfo& info);

// A label and the value, a line each.
QStringList lines(const VRKS_ModemInfo& info);

// One line of a report: the label in the current language, and the value as people read it.
QString line(const char* label, const QJsonValue& value);

}  // namespace ModemReport

#endif
