// SPDX-License-Identifier: MIT
#include "UserFileLock.h"

#include <sys/file.h>
#include <time.h>

#include <QElapsedTimer>

#include "FileReplacement.h"
#include "ReasonText.h"

static int longestWait = 2000;  // milliseconds

void UserFileLock::setLongestWait(int milliseconds) { longestWait = milliseconds; }

// Microseconds until the next attempt. The longer one has waited the oftener one looks, so that whoever waits longest
// is most likely the next, even among processes that are busy writing; and at random, so that none keep step.
static useconds_t pause(qint64 waited) {
    const qint64 longest = 2000;
    const qint64 shortest = 100;
    const qint64 patience = 25;  // milliseconds after which the pause is half of the longest
    timespec now;
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    const qint64 pause = qMax(shortest, longest * patience / (patience + waited));
    return useconds_t(pause / 2 + now.tv_nsec % pause);
}

// A file that is no longer the one of its name locks out nobody.
UserFileLock::Attempt UserFileLock::attempt(Reason* reason) {
    struct stat named;
    if (!m_Place.look(&named)) {
        if (errno == ENOENT) return Absent;
        systemFailure("can't be looked at", reason);
        return Failed;
    }
    if (!S_ISREG(named.st_mode)) {
        *reason = Reason("can't be locked: it is not a regular file");
        return Failed;
    }
    // Locks of some network file systems need a file that can be written.
    const char* const name = m_Place.name().constData();
    Descriptor file(Descriptor::openAt(m_Place.folder(), name, O_RDWR));
    if (!file.isOpen() && (errno == EACCES || errno == EROFS))
        file.reset(Descriptor::openAt(m_Place.folder(), name, O_RDONLY));
    if (!file.isOpen()) {
        if (errno == ENOENT) return Busy;
        systemFailure("can't be opened", reason);
        return Failed;
    }
    if (::flock(file.get(), LOCK_EX | LOCK_NB) != 0) {
        if (errno == EWOULDBLOCK || errno == EINTR) return Busy;
        systemFailure("can't be locked", reason);
        return Failed;
    }
    m_File.take(&file);
    if (isInPlace()) return Locked;
    release();
    return Busy;
}

bool UserFileLock::isInPlace() const {
    struct stat held;
    struct stat named;
    return isHeld() && ::fstat(m_File.get(), &held) == 0 && m_Place.look(&named) && isSameInode(held, named);
}

bool UserFileLock::wait(const QString& path, bool makesFile, Reason* reason) {
    release();
    if (!m_Place.open(path, reason)) return false;
    QElapsedTimer timer;
    timer.start();
    for (;;) {
        const Attempt outcome = attempt(reason);
        if (outcome == Locked || (outcome == Absent && !makesFile)) return true;
        if (outcome == Failed) return false;
        if (timer.elapsed() >= longestWait) break;
        if (outcome == Busy) ::usleep(pause(timer.elapsed()));
        if (outcome == Absent) {
            const FileReplacement::Outcome made =
                FileReplacement::write(path, QByteArray(), FileReplacement::UserFile, FileReplacement::OnlyNew, reason);
            if (made == FileReplacement::Failed) return false;
        }
    }
    *reason = Reason("another program keeps it locked");
    return false;
}
