// SPDX-License-Identifier: MIT
#include "FileArgument.h"

#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>
#include <cerrno>
#include <cstring>

#include "CommandError.h"
#include "FileReplacement.h"
#include "Message.h"
#include "Output.h"

namespace {

// Damaged ones are among them; the file layer keeps a copy of what it can't read.
bool holdsProfiles(QFile* file) {
    QXmlStreamReader reader(file);
    return reader.readNextStartElement() && reader.name() == QLatin1String("vrksdoc");
}

bool holdsSomethingElse(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly) || file.size() == 0) return false;
    return !holdsProfiles(&file);
}

// Past stdio, which takes an interruption for an error.
QByteArray standardInput() {
    QByteArray content;
    char bytes[4096];
    while (content.size() <= FileReplacement::LargestFile) {
        const ssize_t size = ::read(STDIN_FILENO, bytes, sizeof bytes);
        if (size == 0) break;
        if (size > 0) content.append(bytes, int(size));
        if (size < 0 && errno != EINTR)
            throw CommandError::failed(message("standard input can't be read: %1", {std::strerror(errno)}));
    }
    return content;
}

}  // namespace

FileArgument::FileArgument(const QString& argument, const char* streamName) {
    if (argument.isEmpty()) throw CommandError::usage(message("the file's name is empty"));
    if (argument == "-") m_Folder.emplace();
    if (m_Folder && !m_Folder->isValid())
        throw CommandError::failed(message("no temporary folder: %1", {m_Folder->errorString()}));
    m_Path = m_Folder ? m_Folder->filePath(streamName) : QFileInfo(argument).absoluteFilePath();
}

InputFile::InputFile(const QString& argument) : FileArgument(argument, "standard input") {
    if (!isStream()) return;
    Reason reason;
    if (FileReplacement::write(path(), standardInput(), FileReplacement::Export, FileReplacement::OnlyNew, &reason) !=
        FileReplacement::Done)
        throw CommandError::failed(withReason(path(), reason.text()));
}

OutputFile::OutputFile(const QString& argument, bool mayReplaceAny) : FileArgument(argument, "standard output") {
    if (!mayReplaceAny && holdsSomethingElse(path()))
        throw CommandError::refused(message("%1: is no profile file; --force replaces it", {path()}));
}

void OutputFile::finish() const {
    QFile file(path());
    if (!isStream() || !file.exists()) return;
    if (!file.open(QIODevice::ReadOnly)) throw CommandError::failed(withReason(path(), file.errorString()));
    Output::text(QString::fromUtf8(file.readAll()));
}
