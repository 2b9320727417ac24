// Reading a secret from standard input.
#ifndef ORBISDIAL_CLI_HIDDENINPUT_H
#define ORBISDIAL_CLI_HIDDENINPUT_H

#include <QString>

// The first line of standard input. At a terminal the prompt is shown and what is typed is not. Throws a
// CommandError when there is no line, or it is not UTF-8.
QString readHiddenLine(const char* prompt);

#endif
