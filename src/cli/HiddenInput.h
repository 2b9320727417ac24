// SPDX-License-Identifier: MIT
// Reading a secret from standard input.
#ifndef ORBISDIAL_CLI_HIDDENINPUT_H
#define ORBISDIAL_CLI_HIDDENINPUT_H

#include <QString>

// The next line of standard input. At a terminal the prompt is shown and what is typed is not. Throws a CommandError,
// in which the secret is called by its name, a message in English, when there is no line, or it is not UTF-8.
QString readHiddenLine(const QString& prompt, const char* name);
QString readPassword(const QString& prompt);

// The same for what everybody may see.
QString readShownLine(const QString& prompt, const char* name);

// Whether somebody is there to be asked.
bool isTerminalInput();

#endif
