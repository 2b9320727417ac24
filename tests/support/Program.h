// SPDX-License-Identifier: MIT
// Runs a program to its end, as a person at a shell does.
#ifndef ORBISDIAL_PROGRAM_H
#define ORBISDIAL_PROGRAM_H

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

struct Outcome {
    int status;  // -1 when it crashed or did not end
    QByteArray out;
    QByteArray err;

    QJsonObject json() const { return QJsonDocument::fromJson(out).object(); }
};

inline Outcome runProgram(const QString& program, const QStringList& arguments, const QByteArray& input = {}) {
    QProcess process;
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    const bool ended = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
    return {ended ? process.exitCode() : -1, process.readAllStandardOutput(), process.readAllStandardError()};
}

#endif
