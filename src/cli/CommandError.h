// SPDX-License-Identifier: MIT
// What ends a command early: one line for the user and the process's exit status.
#ifndef ORBISDIAL_CLI_COMMANDERROR_H
#define ORBISDIAL_CLI_COMMANDERROR_H

#include <QString>

struct CommandError {
    enum ExitStatus {
        Done = 0,
        Failed = 1,
        Usage = 2,
        NotFound = 3,  // what the command line names is not there
        Refused = 4,   // it is there, and does not let that be done
        TimedOut = 5
    };

    static CommandError failed(const QString& text) { return {Failed, text}; }
    static CommandError usage(const QString& text) { return {Usage, text}; }
    static CommandError notFound(const QString& text) { return {NotFound, text}; }
    static CommandError refused(const QString& text) { return {Refused, text}; }
    static CommandError timedOut(const QString& text) { return {TimedOut, text}; }

    ExitStatus status;
    QString text;
};

// A name as messages show it.
inline QString quoted(const QString& name) { return '"' + name + '"'; }

#endif
