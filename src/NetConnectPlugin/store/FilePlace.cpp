// SPDX-License-Identifier: MIT
#include "FilePlace.h"

#include "ReasonText.h"

#include <limits.h>

#include <QFile>

// As the kernel decides it for links in shared folders, where it is told to; and more strictly for root.
static bool mayFollow(int folder, const struct stat& link) {
    struct stat info;
    if (::fstat(folder, &info) != 0) return false;
    const uid_t user = ::geteuid();
    if (user == 0) return info.st_uid == 0 && link.st_uid == 0;
    const bool isShared = (info.st_mode & S_ISVTX) != 0 && (info.st_mode & S_IWOTH) != 0;
    return !isShared || link.st_uid == user || link.st_uid == info.st_uid;
}

// Takes the next name off a path, and the slashes after it.
static QByteArray takeName(QByteArray* path) {
    int end = path->indexOf('/');
    if (end < 0) end = path->size();
    const QByteArray name = path->left(end);
    while (end < path->size() && path->at(end) == '/') ++end;
    *path = path->mid(end);
    return name;
}

bool FilePlace::fail(const char* what, Reason* reason) {
    m_bMissing = errno == ENOENT || errno == ENOTDIR;
    return systemFailure(what, reason);
}

bool FilePlace::enter(int from, const QByteArray& name) {
    m_Folder.reset(Descriptor::openAt(from, name.constData(), O_PATH | O_DIRECTORY));
    if (from == AT_FDCWD)
        m_FolderPath = name == "/" ? name : QByteArray();
    else
        m_FolderPath += name + '/';
    return m_Folder.isOpen();
}

QString FilePlace::path() const { return QFile::decodeName(m_FolderPath + m_Name); }

bool FilePlace::followLink(const QByteArray& name, const struct stat& link, QByteArray* rest, Reason* reason) {
    if (!mayFollow(folder(), link)) {
        *reason =
            Reason("a link in a folder where others may have put it is not followed: %1").arg(QFile::decodeName(name));
        return false;
    }
    char target[PATH_MAX];
    const ssize_t length = ::readlinkat(folder(), name.constData(), target, sizeof target);
    if (length < 0) return fail("can't read a link", reason);
    const QByteArray where(target, int(length));
    *rest = rest->isEmpty() ? where : where + '/' + *rest;
    if (!where.startsWith('/')) return true;
    return enter(AT_FDCWD, "/") || fail("can't enter the root folder", reason);
}

bool FilePlace::open(const QString& path, Reason* reason) {
    const char* const entering = QT_TRANSLATE_NOOP("Reasons", "can't enter the folder");
    int linksLeft = 40;  // as the kernel bounds a chain of them
    QByteArray rest = QFile::encodeName(path);
    m_bMissing = false;
    if (!enter(AT_FDCWD, rest.startsWith('/') ? "/" : ".")) return fail(entering, reason);
    for (;;) {
        QByteArray name;
        while (name.isEmpty() && !rest.isEmpty()) name = takeName(&rest);
        const bool isFolder = name.isEmpty() || name == "." || name == "..";
        struct stat info;
        if (!isFolder && ::fstatat(folder(), name.constData(), &info, AT_SYMLINK_NOFOLLOW) != 0) {
            m_Name = name;
            return (errno == ENOENT && rest.isEmpty()) || fail(entering, reason);
        }
        if (!isFolder && S_ISLNK(info.st_mode)) {
            if (--linksLeft < 0) {
                errno = ELOOP;
                return fail(entering, reason);
            }
            if (!followLink(name, info, &rest, reason)) return false;
            continue;
        }
        m_Name = name;
        if (!isFolder && rest.isEmpty()) return true;
        if (isFolder && rest.isEmpty()) {
            errno = EISDIR;
            return fail("is no file's name", reason);
        }
        if (!enter(folder(), name)) return fail(entering, reason);
    }
}

bool FilePlace::operator==(const FilePlace& other) const {
    struct stat one;
    struct stat two;
    return m_Name == other.m_Name && ::fstat(folder(), &one) == 0 && ::fstat(other.folder(), &two) == 0 &&
           isSameInode(one, two);
}
