#include "FileReplacement.h"

#include <dirent.h>
#include <errno.h>
#include <fcntl.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QHash>

namespace {

const char TemporaryMark[] = ".tmp-";
const char TemporaryPattern[] = "XXXXXX";  // mkostemp's
const int UniqueLength = sizeof(TemporaryPattern) - 1;
const int LeftoverAge = 60;  // seconds after which a temporary file is a dead writer's

// An open file descriptor that closes itself.
class Descriptor {
public:
    explicit Descriptor(int fd) : m_Fd(fd) {}
    ~Descriptor() {
        if (m_Fd >= 0) ::close(m_Fd);
    }
    int get() const { return m_Fd; }
    bool close() {
        const int fd = m_Fd;
        m_Fd = -1;
        return ::close(fd) == 0;
    }

private:
    Q_DISABLE_COPY(Descriptor)
    int m_Fd;
};

// A file's name that is removed again unless it is kept.
class TemporaryName {
public:
    explicit TemporaryName(const QByteArray& name) : m_Name(name) {}
    ~TemporaryName() {
        if (!m_Name.isEmpty()) ::unlink(m_Name.constData());
    }
    void keep() { m_Name.clear(); }

private:
    Q_DISABLE_COPY(TemporaryName)
    QByteArray m_Name;
};

bool failed(const char* step, QString* reason) {
    *reason = QString::fromLatin1("%1: %2").arg(QString::fromLatin1(step), QString::fromLocal8Bit(strerror(errno)));
    return false;
}

bool writeAll(int fd, const QByteArray& content) {
    const char* data = content.constData();
    qint64 left = content.size();
    while (left > 0) {
        const ssize_t written = ::write(fd, data, size_t(left));
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return false;
        data += written;
        left -= written;
    }
    return true;
}

// A folder that can't be flushed by its kind of file system is none that could lose the name.
bool flushFolder(const QString& folder) {
    Descriptor descriptor(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.get() < 0) return errno == EACCES;
    return ::fsync(descriptor.get()) == 0 || errno == EINVAL || errno == EROFS;
}

QByteArray folderOf(const QByteArray& name) { return name.left(name.lastIndexOf('/') + 1); }

// A file's name, and when its folder was last changed while no leftovers were beside the file. A search takes as long
// as a good part of a small save, and there is nothing to find as long as nobody else changed the folder.
QHash<QByteArray, qint64>& cleanFolders() {
    static QHash<QByteArray, qint64> folders;
    return folders;
}

// Nanoseconds since 1970; 0 when there is no telling.
qint64 changeTime(const QByteArray& folder) {
    struct stat info;
    if (::stat(folder.constData(), &info) != 0) return 0;
    return qint64(info.st_mtim.tv_sec) * 1000000000 + info.st_mtim.tv_nsec;
}

// Removes what a writer that died left beside the file: it may hold passwords. False when it had to leave some.
bool removeLeftovers(const QByteArray& name) {
    const QByteArray folder = folderOf(name);
    if (cleanFolders().contains(name) && cleanFolders().value(name) == changeTime(folder)) return true;
    const QByteArray stem = name.mid(folder.size()) + TemporaryMark;
    DIR* const entries = ::opendir(folder.constData());
    if (!entries) return false;
    const time_t limit = ::time(0) - LeftoverAge;
    bool isClean = true;
    while (const dirent* entry = ::readdir(entries)) {
        const QByteArray candidate(entry->d_name);
        if (!candidate.startsWith(stem) || candidate.size() != stem.size() + UniqueLength) continue;
        struct stat info;
        const QByteArray path = folder + candidate;
        const bool isOld = ::lstat(path.constData(), &info) == 0 && S_ISREG(info.st_mode) && info.st_mtime < limit;
        if (!isOld || ::unlink(path.constData()) != 0) isClean = false;
    }
    ::closedir(entries);
    return isClean;
}

// Gives the new file the mode and, when root writes another user's file, the owner that it should have.
bool applyRights(int fd, const QByteArray& target, FileReplacement::Access access) {
    struct stat before;
    const bool existed = ::stat(target.constData(), &before) == 0;
    if (existed && before.st_uid != ::geteuid() && ::fchown(fd, before.st_uid, before.st_gid) != 0 && errno != EPERM)
        return false;
    mode_t mode = 0600;
    if (access == FileReplacement::AsBefore) mode = existed ? before.st_mode & 07777 : 0644;
    return ::fchmod(fd, mode) == 0;
}

}  // namespace

namespace FileReplacement {

QString target(const QString& path) {
    const int deepest = 40;  // as the kernel bounds a chain of links
    QString result = path;
    for (int i = 0; i < deepest; ++i) {
        const QFileInfo info(result);
        if (!info.isSymLink()) break;
        result = info.symLinkTarget();
    }
    return result;
}

bool isSameFile(const QString& one, const QString& other) {
    struct stat first;
    struct stat second;
    return ::stat(QFile::encodeName(one).constData(), &first) == 0 &&
           ::stat(QFile::encodeName(other).constData(), &second) == 0 && first.st_dev == second.st_dev &&
           first.st_ino == second.st_ino;
}

bool replace(const QString& path, const QByteArray& content, Access access, QString* reason) {
    const QString file = target(path);
    const QFileInfo info(file);
    const QByteArray name = QFile::encodeName(info.absoluteFilePath());
    const bool isClean = removeLeftovers(name);
    cleanFolders().remove(name);

    QByteArray temporary = name + TemporaryMark + TemporaryPattern;
    Descriptor descriptor(::mkostemp(temporary.data(), O_CLOEXEC));
    if (descriptor.get() < 0) return failed("can't create a file in the folder", reason);
    TemporaryName leftover(temporary);

    if (!writeAll(descriptor.get(), content)) return failed("can't write", reason);
    if (!applyRights(descriptor.get(), name, access)) return failed("can't set the file's mode", reason);
    if (::fsync(descriptor.get()) != 0) return failed("can't flush to disk", reason);
    if (!descriptor.close()) return failed("can't close", reason);
    if (::rename(temporary.constData(), name.constData()) != 0) return failed("can't replace", reason);
    leftover.keep();

    if (isClean) cleanFolders().insert(name, changeTime(folderOf(name)));
    if (!flushFolder(info.absolutePath())) failed("written, but the folder can't be flushed to disk", reason);
    return true;
}

bool keepDamaged(const QString& path, QString* copy, QString* reason) {
    QFile damaged(path);
    QByteArray content;
    if (damaged.open(QIODevice::ReadOnly)) content = damaged.readAll();
    if (damaged.error() != QFile::NoError) {
        *reason = QString::fromLatin1("can't read the damaged file: ") + damaged.errorString();
        return false;
    }
    const QString stem = target(path) + QLatin1String(".damaged-") +
                         QDateTime::currentDateTime().toUTC().toString(QLatin1String("yyyyMMddThhmmssZ"));
    *copy = stem;
    for (int i = 2; QFileInfo(*copy).exists(); ++i) *copy = stem + QLatin1Char('-') + QString::number(i);
    return replace(*copy, content, OwnerOnly, reason);
}

}  // namespace FileReplacement
