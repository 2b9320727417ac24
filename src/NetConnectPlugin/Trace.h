// SPDX-License-Identifier: MIT
// The plug-in's traces. They go to Qt's debug output; where that ends up is the host's business.
#ifndef ORBISDIAL_TRACE_H
#define ORBISDIAL_TRACE_H

#include <QByteArray>
#include <QLocale>
#include <QTime>
#include <QtGlobal>

#include "QtCompat.h"

// The current time as traces show it; empty when nobody wants traces, since it takes a look at the time zone's file.
inline QByteArray traceTime() {
    return isTraceWanted() ? QLocale::c().toString(QTime::currentTime(), "hh:mm:ss:zzz").toLatin1() : QByteArray();
}

// Writes "<format>" filled with time, file and function when made, and the exit line when it goes.
class TraceScope {
public:
    // Formats with the words "Entered" and "Exit" by which most operations are traced.
    TraceScope(const char* file, const char* function,
               const char* entry = "%s : %s: %s: Entered",  // time, file, function
               const char* exit = "%s : %s: %s: Exit")
        : m_File(file), m_Function(function), m_Exit(exit) {
        write(entry);
    }
    ~TraceScope() {
        if (m_Exit) write(m_Exit);
    }

private:
    Q_DISABLE_COPY(TraceScope)

    void write(const char* format) {
        if (isTraceWanted()) qDebug(format, traceTime().constData(), m_File, m_Function);
    }

    const char* m_File;
    const char* m_Function;
    const char* m_Exit;
};

#endif
