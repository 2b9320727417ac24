// SPDX-License-Identifier: MIT
// Entry and exit traces of the host-facing operations, which carry no time.
#ifndef ORBISDIAL_CALLTRACE_H
#define ORBISDIAL_CALLTRACE_H

#include <QtGlobal>

// Writes a line filled with file and function when made, and the exit line, if there is one, when it goes.
class CallTrace {
public:
    CallTrace(const char* file, const char* function, const char* entry = "%s: %s called", const char* exit = nullptr)
        : m_File(file), m_Function(function), m_Exit(exit) {
        qDebug(entry, m_File, m_Function);
    }
    ~CallTrace() {
        if (m_Exit) qDebug(m_Exit, m_File, m_Function);
    }

private:
    Q_DISABLE_COPY(CallTrace)

    const char* m_File;
    const char* m_Function;
    const char* m_Exit;
};

#endif
