// SPDX-License-Identifier: MIT
// Tells whether a file is still the one that was read.
#ifndef ORBISDIAL_FILESTAMP_H
#define ORBISDIAL_FILESTAMP_H

#include <QString>
#include <QtGlobal>

// Device, inode, size and times of a file at one moment. A default-made stamp is that of a missing file.
struct FileStamp {
    FileStamp();

    // The stamp of the file that a path leads to, through symbolic links.
    static FileStamp of(const QString& path);

    bool exists() const { return size >= 0; }
    bool isRegularFile() const { return regular; }

    // Same file, same content, as far as stamps can tell.
    bool operator==(const FileStamp& other) const;
    bool operator!=(const FileStamp& other) const { return !(*this == other); }

    // False when the file had changed within the last 100 ms: another change could then leave the same times.
    bool settled;

private:
    bool regular;
    quint64 device;
    quint64 inode;
    qint64 size;            // bytes; -1 when the file is missing
    qint64 modified;        // nanoseconds since 1970, content
    qint64 statusModified;  // nanoseconds since 1970, content, name or rights
};

#endif
