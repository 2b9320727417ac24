// SPDX-License-Identifier: MIT
// What the commands do; each is one row of the table in Command.cpp.
#ifndef ORBISDIAL_CLI_COMMANDS_H
#define ORBISDIAL_CLI_COMMANDS_H

#include <QString>

class Invocation;
class Output;

// ReadingCommands.cpp
void listProfiles(const Invocation& invocation, Output& output);
void showProfiles(const Invocation& invocation, Output& output);
void showConfiguration(const Invocation& invocation, Output& output);

// CheckCommand.cpp
void checkShippedFiles(const Invocation& invocation, Output& output);

// ChangingCommands.cpp
QString settableFieldsHelp();  // what add and set take; ProfileFields.cpp
void addProfile(const Invocation& invocation, Output& output);
void setFields(const Invocation& invocation, Output& output);
void deleteProfiles(const Invocation& invocation, Output& output);
void defaultProfile(const Invocation& invocation, Output& output);

// TransferCommands.cpp
void importProfiles(const Invocation& invocation, Output& output);
void exportProfiles(const Invocation& invocation, Output& output);

// BackupCommands.cpp
void backUp(const Invocation& invocation, Output& output);
void restore(const Invocation& invocation, Output& output);

// ExplainCommand.cpp
void explainIMSIs(const Invocation& invocation, Output& output);

// DeviceCommand.cpp
void showDevice(const Invocation& invocation, Output& output);

// ModemCommands.cpp
void listModems(const Invocation& invocation, Output& output);
void chooseModem(const Invocation& invocation, Output& output);

// UnlockCommands.cpp
void enterPin(const Invocation& invocation, Output& output);
void enterPuk(const Invocation& invocation, Output& output);

// ConnectCommands.cpp
void connectProfile(const Invocation& invocation, Output& output);
void disconnect(const Invocation& invocation, Output& output);
void showStatus(const Invocation& invocation, Output& output);

// UsageCommand.cpp
void showUsage(const Invocation& invocation, Output& output);

// AutoConnectCommand.cpp
void setAutoConnect(const Invocation& invocation, Output& output);

// UssdCommand.cpp
void sendUssd(const Invocation& invocation, Output& output);
void askBalance(const Invocation& invocation, Output& output);

#endif
