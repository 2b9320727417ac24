// The process's surroundings: encoding, traces, modem and data folder.
#ifndef ORBISDIAL_CLI_PLATFORM_H
#define ORBISDIAL_CLI_PLATFORM_H

class Invocation;

namespace Platform {

// Makes UTF-8 the encoding of arguments, file names and texts, whatever the locale says, and drops traces.
// Comes before the application object. Throws a CommandError when an argument is not UTF-8.
void prepare(int argc, char** argv);

// Obeys the global options and makes sure that the modem's backend and the data folder can be had; throws a
// CommandError that names the one that can't. Comes before the first call of the device SDK.
void applyOptions(const Invocation& invocation);

}  // namespace Platform

#endif
