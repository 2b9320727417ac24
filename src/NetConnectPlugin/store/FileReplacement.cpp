// SPDX-License-Identifier: MIT
#include "FileReplacement.h"

#include "ReasonText.h"

#include <dirent.h>
#include <stdio.h>
#include <time.h>

#include <QDateTime>
#include <QFile>
#include <QHash>
#include <QLocale>
#include <QUuid>

namespace {

const char TemporaryMark[] = ".tmp-";
const int UniqueLength = 6;
const char DamageMark[] = ".damaged-";
const int LeftoverAge = 60;  // seconds after which a temporary file is a dead writer's

// Letters and digits that differ from file to file.
QByteArray uniqueText() { return QUuid::createUuid().toString().mid(1, UniqueLength).toLatin1(); }

bool writeAll(int fd, const QByteArray& content) {
    const char* data = content.constData();
    qint64 left = content.size();
    while (left > 0) {
        const ssize_t written = ::write(fd, data, size_t(left));
        if (written < 0 && errno == EINTR) continue;
        if (written == 0) errno = EIO;  // it would never end
        if (written <= 0) return false;
        data += written;
        left -= written;
    }
    return true;
}

// Reads to the end; false with errno set, EFBIG for a file that grows beyond the limit.
bool readAll(int fd, qint64 expected, QByteArray* content) {
    const int least = 4096;
    content->resize(int(expected) + least);
    qint64 size = 0;
    for (;;) {
        if (size == content->size()) content->resize(int(qMin(2 * size, FileReplacement::LargestFile + 1)));
        const ssize_t taken = ::read(fd, content->data() + size, size_t(content->size() - size));
        if (taken < 0 && errno == EINTR) continue;
        if (taken < 0) return false;
        size += taken;
        if (taken == 0) break;
        if (size > FileReplacement::LargestFile) {
            errno = EFBIG;
            return false;
        }
    }
    content->resize(int(size));
    return true;
}

bool flush(int fd) {
    int status = 0;
    do {
        status = ::fsync(fd);
    } while (status != 0 && errno == EINTR);
    return status == 0;
}

// A folder that can't be flushed by its kind of file system, or not be opened by us, is none that could lose the name.
bool flushFolder(int folder) {
    const Descriptor descriptor(Descriptor::openAt(folder, ".", O_RDONLY | O_DIRECTORY));
    if (!descriptor.isOpen()) return errno == EACCES;
    return flush(descriptor.get()) || errno == EINVAL || errno == EROFS;
}

// A file that takes a name of its own beside another, and goes again unless it is put in that one's place.
class TemporaryFile {
public:
    explicit TemporaryFile(const FilePlace& place) : m_Place(place) {}
    ~TemporaryFile() {
        if (!m_Name.isEmpty()) ::unlinkat(m_Place.folder(), m_Name.constData(), 0);
    }

    bool create() {
        const int mostAttempts = 100;
        for (int i = 0; i < mostAttempts; ++i) {
            const QByteArray name = m_Place.name() + TemporaryMark + uniqueText();
            m_Descriptor.reset(
                Descriptor::openAt(m_Place.folder(), name.constData(), O_WRONLY | O_CREAT | O_EXCL, 0600));
            if (m_Descriptor.isOpen()) m_Name = name;
            if (m_Descriptor.isOpen() || errno != EEXIST) break;
        }
        return m_Descriptor.isOpen();
    }

    int get() const { return m_Descriptor.get(); }
    bool close() { return m_Descriptor.close(); }

    bool put(FileReplacement::Placing placing) {
        const char* const name = m_Place.name().constData();
        const int folder = m_Place.folder();
        if (placing == FileReplacement::OnlyNew) {
            if (!putNew(folder, name)) return false;
        } else if (::renameat(folder, m_Name.constData(), folder, name) != 0) {
            return false;
        }
        m_Name.clear();
        return true;
    }

private:
    Q_DISABLE_COPY(TemporaryFile)

    // Not every kind of file system can rename without replacing, or has a second name for a file.
    bool putNew(int folder, const char* name) const {
        if (::renameat2(folder, m_Name.constData(), folder, name, RENAME_NOREPLACE) == 0) return true;
        if (errno != EINVAL && errno != ENOSYS) return false;
        if (::linkat(folder, m_Name.constData(), folder, name, 0) != 0)
            return isWithoutLinks() && putReserved(folder, name);
        ::unlinkat(folder, m_Name.constData(), 0);
        return true;
    }

    static bool isWithoutLinks() { return errno == EPERM || errno == EOPNOTSUPP || errno == ENOSYS || errno == EMLINK; }

    // An empty file takes the name first, which fails when there is one; nobody else can take it then. What is to be
    // empty itself is a lock: that file may be locked by now, so it stays.
    bool putReserved(int folder, const char* name) const {
        struct stat filled;
        if (::fstatat(folder, m_Name.constData(), &filled, AT_SYMLINK_NOFOLLOW) != 0) return false;
        const Descriptor reserved(Descriptor::openAt(folder, name, O_WRONLY | O_CREAT | O_EXCL, 0600));
        if (!reserved.isOpen()) return false;
        const bool isLock = filled.st_size == 0;
        const bool isPut =
            isLock ? hasOwner(reserved.get(), filled) : ::renameat(folder, m_Name.constData(), folder, name) == 0;
        const int error = errno;
        if (!isPut) ::unlinkat(folder, name, 0);
        if (isPut && isLock) ::unlinkat(folder, m_Name.constData(), 0);
        errno = error;
        return isPut;
    }

    static bool hasOwner(int fd, const struct stat& filled) {
        struct stat now;
        if (::fstat(fd, &now) != 0) return false;
        const bool isOwned = now.st_uid == filled.st_uid && now.st_gid == filled.st_gid;
        return isOwned || ::fchown(fd, filled.st_uid, filled.st_gid) == 0;
    }

    const FilePlace& m_Place;
    Descriptor m_Descriptor;
    QByteArray m_Name;  // empty when there is nothing to remove
};

// A file, by its folder's inode and its name, and when that folder was last changed while no leftovers were beside the
// file. A search takes as long as a good part of a small save, and there is nothing to find as long as nobody else
// changed the folder.
QHash<QByteArray, qint64>& cleanFolders() {
    static QHash<QByteArray, qint64> folders;
    return folders;
}

struct FolderState {
    explicit FolderState(const FilePlace& place) : changed(0) {
        const int nanoseconds = 1000000000;
        struct stat info;
        if (::fstat(place.folder(), &info) != 0) return;
        changed = qint64(info.st_mtim.tv_sec) * nanoseconds + info.st_mtim.tv_nsec;
        key = QByteArray::number(quint64(info.st_dev)) + ' ' + QByteArray::number(quint64(info.st_ino)) + ' ' +
              place.name();
    }

    QByteArray key;
    qint64 changed;  // nanoseconds since 1970; 0 when there is no telling
};

// Whether a name is that of a temporary file for this one, its lock file or a copy of its damaged content.
bool isTemporary(const QByteArray& candidate, const QByteArray& name) {
    const int mark = candidate.lastIndexOf(TemporaryMark);
    if (mark < 0 || candidate.size() != mark + int(sizeof TemporaryMark) - 1 + UniqueLength) return false;
    if (!candidate.startsWith(name)) return false;
    const QByteArray between = candidate.mid(name.size(), mark - name.size());
    return mark >= name.size() && (between.isEmpty() || between == ".lock" || between.startsWith(DamageMark));
}

// True when the name is no leftover any more.
bool removeLeftover(int folder, const char* name) {
    struct stat info;
    const bool isOld = ::fstatat(folder, name, &info, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(info.st_mode) &&
                       info.st_mtime < ::time(nullptr) - LeftoverAge;
    return isOld && ::unlinkat(folder, name, 0) == 0;
}

// Removes what a writer that died left beside the file: it may hold passwords. False when it had to leave some.
bool removeLeftovers(const FilePlace& place) {
    const FolderState state(place);
    if (state.changed != 0 && cleanFolders().value(state.key) == state.changed) return true;
    const int fd = Descriptor::openAt(place.folder(), ".", O_RDONLY | O_DIRECTORY);
    if (fd < 0) return false;
    DIR* const entries = ::fdopendir(fd);
    if (!entries) {
        ::close(fd);
        return false;
    }
    bool isClean = true;
    while (const dirent* entry = ::readdir(entries))
        if (isTemporary(entry->d_name, place.name()) && !removeLeftover(place.folder(), entry->d_name)) isClean = false;
    ::closedir(entries);
    return isClean;
}

// The owner that a new file should have, as one of these files has it; null for whoever writes. Only root can choose.
const struct stat* ownerFor(FileReplacement::Purpose purpose, const struct stat* before, const struct stat* folder) {
    if (::geteuid() != 0 || purpose == FileReplacement::Export) return nullptr;
    return purpose == FileReplacement::UserFile ? folder : before;
}

// Gives the new file the owner and the mode that it should have.
bool applyRights(int fd, const FilePlace& place, FileReplacement::Purpose purpose, Reason* reason) {
    struct stat before;
    struct stat folder;
    struct stat now;
    const bool existed = place.look(&before);
    if (!existed && errno != ENOENT) return systemFailure("can't be looked at", reason);
    if (::fstat(place.folder(), &folder) != 0 || ::fstat(fd, &now) != 0)
        return systemFailure("can't look at the folder", reason);
    const struct stat* const owner = ownerFor(purpose, existed ? &before : nullptr, &folder);
    const bool isOwned = !owner || (owner->st_uid == now.st_uid && owner->st_gid == now.st_gid);
    if (!isOwned && ::fchown(fd, owner->st_uid, owner->st_gid) != 0)
        return systemFailure("can't set the file's owner", reason);
    mode_t mode = 0600;
    if (purpose == FileReplacement::Shipped) mode = existed ? before.st_mode & 07777 : 0644;
    return ::fchmod(fd, mode) == 0 || systemFailure("can't set the file's mode", reason);
}

QString megabytes(qint64 bytes) { return QString::number(bytes / (1024 * 1024)); }

bool fill(TemporaryFile* file, const FilePlace& place, const QByteArray& content, FileReplacement::Purpose purpose,
          Reason* reason) {
    if (!file->create()) return systemFailure("can't create a file in the folder", reason);
    if (!applyRights(file->get(), place, purpose, reason)) return false;
    if (!writeAll(file->get(), content)) return systemFailure("can't write", reason);
    if (!flush(file->get())) return systemFailure("can't flush to disk", reason);
    return file->close() || systemFailure("can't close", reason);
}

FileReplacement::Outcome writeAt(const FilePlace& place, const QByteArray& content, FileReplacement::Purpose purpose,
                                 FileReplacement::Placing placing, Reason* reason) {
    const bool isClean = removeLeftovers(place);
    cleanFolders().remove(FolderState(place).key);
    {
        TemporaryFile file(place);
        if (!fill(&file, place, content, purpose, reason)) return FileReplacement::Failed;
        if (!file.put(placing)) {
            if (placing == FileReplacement::OnlyNew && errno == EEXIST) return FileReplacement::Taken;
            systemFailure("can't replace", reason);
            return FileReplacement::Failed;
        }
    }
    const FolderState state(place);
    if (isClean && state.changed != 0) cleanFolders().insert(state.key, state.changed);
    if (!flushFolder(place.folder())) systemFailure("written, but the folder can't be flushed to disk", reason);
    return FileReplacement::Done;
}

}  // namespace

namespace FileReplacement {

Outcome read(const QString& path, QByteArray* content, Reason* reason) {
    const char* const opening = QT_TRANSLATE_NOOP("Reasons", "can't be opened");
    FilePlace place;
    if (path.isEmpty()) return Missing;
    if (!place.open(path, reason)) return place.isMissing() ? Missing : Failed;
    struct stat info;
    if (!place.look(&info)) {
        if (errno == ENOENT) return Missing;
        systemFailure("can't be looked at", reason);
        return Failed;
    }
    // A pipe or a device could be opened, but would never end.
    if (!S_ISREG(info.st_mode)) {
        *reason = Reason("it is not a regular file");
        return Failed;
    }
    if (info.st_size > LargestFile) {
        *reason =
            Reason("it is too large: %1 of at most %2 MB").arg(megabytes(info.st_size)).arg(megabytes(LargestFile));
        return Failed;
    }
    const Descriptor file(Descriptor::openAt(place.folder(), place.name().constData(), O_RDONLY));
    if (!file.isOpen()) {
        systemFailure(opening, reason);
        return Failed;
    }
    if (readAll(file.get(), info.st_size, content)) return Done;
    content->clear();
    systemFailure("reading failed", reason);
    return Failed;
}

Outcome write(const QString& path, const QByteArray& content, Purpose purpose, Placing placing, Reason* reason) {
    if (content.size() > LargestFile) {
        *reason = Reason("not written: it would be too large to be read again, %1 of at most %2 MB")
                      .arg(megabytes(content.size()))
                      .arg(megabytes(LargestFile));
        return Failed;
    }
    FilePlace place;
    if (!place.open(path, reason)) return Failed;
    return writeAt(place, content, purpose, placing, reason);
}

DamagedCopy::~DamagedCopy() {
    if (m_bExists) ::unlinkat(m_Place.folder(), m_Place.name().constData(), 0);
}

bool DamagedCopy::make(const QString& path, const QByteArray& content, Purpose purpose, Reason* reason) {
    const int mostNames = 100;
    if (!m_Place.open(path, reason)) return false;
    const QDateTime now = QDateTime::currentDateTime().toUTC();
    const QString time = QLocale::c().toString(now, QLatin1String("yyyyMMddThhmmssZ"));  // no other figures
    const QByteArray stem = m_Place.name() + DamageMark + time.toLatin1();
    for (int i = 1; i <= mostNames; ++i) {
        m_Place.setName(i == 1 ? stem : stem + '-' + QByteArray::number(i));
        const Outcome outcome = writeAt(m_Place, content, purpose, OnlyNew, reason);
        m_bExists = outcome == Done;
        if (outcome != Taken) return m_bExists;
    }
    *reason = Reason("every name for a copy of the damaged file is taken");
    return false;
}

bool isSameFile(const QString& one, const QString& other) {
    struct stat first;
    struct stat second;
    if (::stat(QFile::encodeName(one).constData(), &first) == 0 &&
        ::stat(QFile::encodeName(other).constData(), &second) == 0)
        return isSameInode(first, second);
    FilePlace firstPlace;
    FilePlace secondPlace;
    Reason ignored;
    return firstPlace.open(one, &ignored) && secondPlace.open(other, &ignored) && firstPlace == secondPlace;
}

}  // namespace FileReplacement
