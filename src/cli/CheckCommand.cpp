// SPDX-License-Identifier: MIT
// config --check.

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>

#include "Command.h"
#include "CommandError.h"
#include "Commands.h"
#include "FilesCheck.h"
#include "Message.h"
#include "NetConnectXMLParse.h"
#include "Output.h"

namespace {

QString shipped(const char* name) { return NetConnectXMLParse::shippedPath(name); }

// All that the programs read, the configuration where it lies; the index of operators may be missing.
FilesToCheck shippedFiles() {
    FilesToCheck what;
    what.files = QStringList{NetConnectXMLParse::configurationPath(), shipped(NetConnectFileNames::Library),
                             shipped(NetConnectFileNames::System)};
    if (QFileInfo::exists(shipped(NetConnectFileNames::Operators)))
        what.files.append(shipped(NetConnectFileNames::Operators));
    return what;
}

// A library beside a file is the one that it will be used with; without any the names are those of the shipped one.
FilesToCheck namedFiles(const QStringList& files) {
    FilesToCheck what;
    what.files = files;
    for (const QString& file : files) {
        const QString library = QFileInfo(file).absoluteDir().filePath(NetConnectFileNames::Library);
        if (QFileInfo(library).isFile() && !what.libraries.contains(library)) what.libraries.append(library);
    }
    if (what.libraries.isEmpty()) what.libraries.append(shipped(NetConnectFileNames::Library));
    return what;
}

QJsonObject asObject(const Finding& finding) {
    const auto number = [](qint64 value) { return value > 0 ? QJsonValue(value) : QJsonValue(); };
    return {{"file", finding.file},
            {"line", number(finding.place.line)},
            {"column", number(finding.place.column)},
            {"text", finding.text},
            {"remedy", finding.remedy}};
}

}  // namespace

void checkShippedFiles(const Invocation& invocation, Output& output) {
    const QStringList& named = invocation.arguments();
    if (named.contains(QString())) throw CommandError::usage(message("the file's name is empty"));
    useEnglish();  // what integrators read, and find in their files
    const FilesToCheck what = named.isEmpty() ? shippedFiles() : namedFiles(named);
    QJsonArray findings;
    QStringList lines;
    for (const Finding& finding : checkFiles(what)) {
        findings.append(asObject(finding));
        lines.append(finding.asLine());
    }
    const int count = lines.size();
    if (count == 0) lines.append(QString("nothing to mend in %1").arg(what.files.join(", ")));
    output.result({{"findings", findings}}, lines);
    if (count > 0) throw CommandError::failed(count == 1 ? QString("1 fault") : QString("%1 faults").arg(count));
}
