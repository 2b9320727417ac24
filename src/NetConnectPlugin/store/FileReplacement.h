// SPDX-License-Identifier: MIT
// Reads and replaces whole files so that a death at any moment leaves the old content or the new one. One thread
// writes; any may read.
#ifndef ORBISDIAL_FILEREPLACEMENT_H
#define ORBISDIAL_FILEREPLACEMENT_H

#include <QByteArray>
#include <QString>

#include "FilePlace.h"
#include "XmlText.h"

// Links are followed as FilePlace says.
namespace FileReplacement {

const qint64 LargestFile = XmlText::LargestDocument;

// Who owns and who may read a new file.
enum Purpose {
    UserFile,  // mode 0600; the folder's owner, also when root writes
    Export,    // mode 0600; whoever writes
    Shipped    // mode and owner of the file before; mode 0644 for the first
};

enum Placing {
    OverOld,  // whether there is a file or not
    OnlyNew   // replaces nothing
};

enum Outcome {
    Done,
    Missing,  // read: there is no such file
    Taken,    // write of a new file: one is there by now
    Failed    // the reason is stored
};

// Reads a regular file whole: Done, Missing or Failed.
Outcome read(const QString& path, QByteArray* content, Reason* reason);

// Writes the content beside the file under a temporary name, flushes it to disk, gives it the file's name and flushes
// the folder: Done, Taken or Failed. When it is not done the old file stays and the temporary one goes. When only the
// folder could not be flushed it is done, with a reason.
Outcome write(const QString& path, const QByteArray& content, Purpose purpose, Placing placing, Reason* reason);

// True when two paths lead to the same file, hard links included, or would if it existed.
bool isSameFile(const QString& one, const QString& other);

// A copy of a damaged file's content beside it, under its name + ".damaged-" + the time in UTC. It goes again unless it
// is kept.
class DamagedCopy {
public:
    DamagedCopy() : m_bExists(false) {}
    ~DamagedCopy();

    bool make(const QString& path, const QByteArray& content, Purpose purpose, Reason* reason);
    QString path() const { return m_Place.path(); }
    void keep() { m_bExists = false; }

private:
    Q_DISABLE_COPY(DamagedCopy)

    FilePlace m_Place;
    bool m_bExists;
};

}  // namespace FileReplacement

#endif
