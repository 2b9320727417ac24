// SPDX-License-Identifier: MIT
// Keeps other processes from changing a file.
#ifndef ORBISDIAL_USERFILELOCK_H
#define ORBISDIAL_USERFILELOCK_H

#include <QString>
#include <QtGlobal>

#include "Descriptor.h"
#include "FilePlace.h"

// An advisory lock (flock) on a file: on a lock file beside the one that it guards, or on the guarded file itself. It
// goes with the process that holds it. Links are followed as FilePlace says.
class UserFileLock {
public:
    UserFileLock() {}

    // Locks a lock file, which is made when it is missing. Waits for as long as setLongestWait() says. On failure the
    // reason is stored, in English.
    bool acquire(const QString& path, Reason* reason) { return wait(path, true, reason); }

    // The same for a file that others replace by renaming: one that is missing needs no lock, and is not made. True
    // also then; isHeld() tells.
    bool acquireIfThere(const QString& path, Reason* reason) { return wait(path, false, reason); }

    void release() { m_File.reset(); }
    bool isHeld() const { return m_File.isOpen(); }

    // False when the locked file is no longer the one of its name, so that others may hold a lock, too.
    bool isInPlace() const;

    // How long every lock of this process is waited for, in milliseconds. 2 seconds unless set, since a window waits.
    static void setLongestWait(int milliseconds);

private:
    Q_DISABLE_COPY(UserFileLock)

    enum Attempt { Locked, Absent, Busy, Failed };
    Attempt attempt(Reason* reason);
    bool wait(const QString& path, bool makesFile, Reason* reason);

    FilePlace m_Place;
    Descriptor m_File;
};

#endif
