// SPDX-License-Identifier: MIT
#include "FileStamp.h"

#include <errno.h>
#include <sys/stat.h>
#include <time.h>

#include <QFile>

static qint64 nanoseconds(const timespec& time) { return qint64(time.tv_sec) * 1000000000 + time.tv_nsec; }

FileStamp::FileStamp() : settled(true), regular(false), device(0), inode(0), size(-1), modified(0), statusModified(0) {}

FileStamp FileStamp::of(const QString& path) {
    const qint64 restlessTime = 100000000;
    FileStamp stamp;
    struct stat info;
    if (path.isEmpty()) return stamp;
    if (::stat(QFile::encodeName(path).constData(), &info) != 0) {
        // A file that can't be looked at may be there all the same, and change unseen.
        if (errno != ENOENT && errno != ENOTDIR) {
            stamp.size = 0;
            stamp.settled = false;
        }
        return stamp;
    }
    stamp.regular = S_ISREG(info.st_mode);
    stamp.device = info.st_dev;
    stamp.inode = info.st_ino;
    stamp.size = info.st_size;
    stamp.modified = nanoseconds(info.st_mtim);
    stamp.statusModified = nanoseconds(info.st_ctim);
    timespec now;
    ::clock_gettime(CLOCK_REALTIME, &now);
    const qint64 age = nanoseconds(now) - qMax(stamp.modified, stamp.statusModified);
    stamp.settled = age > restlessTime;
    return stamp;
}

bool FileStamp::operator==(const FileStamp& other) const {
    return device == other.device && inode == other.inode && size == other.size && modified == other.modified &&
           statusModified == other.statusModified;
}
