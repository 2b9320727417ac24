// What ends a command early: one line for the user and the process's exit status.
#ifndef ORBISDIAL_CLI_COMMANDERROR_H
#define ORBISDIAL_CLI_COMMANDERROR_H

#include <QString>

struct CommandError {
    enum ExitStatus { Done = 0, Failed = 1, Usage = 2 };

    static CommandError failed(const QString& text) { return {Failed, text}; }
    static CommandError usage(const QString& text) { return {Usage, text}; }

    ExitStatus status;
    QString text;
};

// A name as messages show it.
inline QString quoted(const QString& name) { return '"' + name + '"'; }

#endif
