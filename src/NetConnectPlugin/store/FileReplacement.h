// Replaces whole files so that a death at any moment leaves the old content or the new one. For one thread.
#ifndef ORBISDIAL_FILEREPLACEMENT_H
#define ORBISDIAL_FILEREPLACEMENT_H

#include <QByteArray>
#include <QString>

namespace FileReplacement {

// Who may read the new file.
enum Access {
    OwnerOnly,  // mode 0600, whatever it was before
    AsBefore    // the mode that the file had; 0644 for a new one
};

// Writes the content beside the file under a temporary name, flushes it to disk, renames it over the file and
// flushes the folder. Follows a symbolic link. On failure the old file stays, the temporary one goes, and the
// reason is stored, in English. When only the folder could not be flushed the answer is true, with a reason.
bool replace(const QString& path, const QByteArray& content, Access access, QString* reason);

// Copies a damaged file to its name + ".damaged-" + the time in UTC, mode 0600, and stores the copy's path.
bool keepDamaged(const QString& path, QString* copy, QString* reason);

// The file that a path leads to, through symbolic links, whether it exists or not.
QString target(const QString& path);

// True when two paths lead to the same existing file, hard links included.
bool isSameFile(const QString& one, const QString& other);

}  // namespace FileReplacement

#endif
