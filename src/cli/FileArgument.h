// SPDX-License-Identifier: MIT
// FILE arguments, of which "-" is a standard stream.
#ifndef ORBISDIAL_CLI_FILEARGUMENT_H
#define ORBISDIAL_CLI_FILEARGUMENT_H

#include <QString>
#include <QTemporaryDir>
#include <optional>

// For a stream, a file in a folder of one's own stands for as long as the argument lives. Throws a CommandError for an
// empty name, and where there is no such folder.
class FileArgument {
public:
    bool isStream() const { return m_Folder.has_value(); }

    // Absolute, since the file layer takes some bare names for files of its own.
    const QString& path() const { return m_Path; }

protected:
    FileArgument(const QString& argument, const char* streamName);

private:
    std::optional<QTemporaryDir> m_Folder;
    QString m_Path;
};

class InputFile : public FileArgument {
public:
    // Reads standard input to its end for "-".
    explicit InputFile(const QString& argument);
};

class OutputFile : public FileArgument {
public:
    // Refuses a file that holds something else than profiles, unless it may be replaced.
    OutputFile(const QString& argument, bool mayReplaceAny);

    // Writes what the file holds to the standard output for "-".
    void finish() const;
};

#endif
