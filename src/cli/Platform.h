// SPDX-License-Identifier: MIT
// The process's surroundings: encoding, traces, modem and data folder.
#ifndef ORBISDIAL_CLI_PLATFORM_H
#define ORBISDIAL_CLI_PLATFORM_H

#include <QStringList>

struct CommandError;
class Invocation;

namespace Platform {

// Makes UTF-8 the encoding of arguments, file names and texts, whatever the locale says, and drops traces.
// Comes before the application object.
void prepare();

// Throws a CommandError when an argument is not UTF-8.
void requireUtf8(int argc, char** argv);

// Obeys the global options and makes sure that the modem's backend can be had; throws a CommandError when it can't.
// Comes before the first call of the device SDK.
void applyOptions(const Invocation& invocation);

// What --data-dir and --device do. Throw a CommandError for a value that makes no sense.
void useDataFolder(const QString& folder);
void useDevice(const QString& kind);
QStringList deviceKinds();

// Whether modems and connections are daemons' to tell, as those of real modems are.
bool asksDaemons();

// Why the data folder can't be had, which is made when it is missing; null when it can.
QString dataFolderProblem();

// True when there is no data folder, and so nothing of the user's. False also when it can't be looked at.
bool isDataFolderMissing();

}  // namespace Platform

#endif
