// SPDX-License-Identifier: MIT
// An open file descriptor that closes itself, and the words for a system call that failed.
#ifndef ORBISDIAL_DESCRIPTOR_H
#define ORBISDIAL_DESCRIPTOR_H

#include <errno.h>
#include <fcntl.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QString>

#include "ReasonText.h"

class Descriptor {
public:
    explicit Descriptor(int fd = -1) : m_Fd(fd) {}
    ~Descriptor() { reset(); }

    // Opens a name in an open folder, or AT_FDCWD; never through a link, and never to wait for a pipe's other end.
    static int openAt(int folder, const char* name, int flags, mode_t mode = 0) {
        for (;;) {
            const int fd = ::openat(folder, name, flags | O_CLOEXEC | O_NOFOLLOW | O_NOCTTY | O_NONBLOCK, mode);
            if (fd >= 0 || errno != EINTR) return fd;
        }
    }

    int get() const { return m_Fd; }
    bool isOpen() const { return m_Fd >= 0; }

    void reset(int fd = -1) {
        const int before = errno;
        if (m_Fd >= 0) ::close(m_Fd);
        m_Fd = fd;
        errno = before;
    }

    void take(Descriptor* other) {
        reset(other->m_Fd);
        other->m_Fd = -1;
    }

    // An interrupted close has closed.
    bool close() {
        const int fd = m_Fd;
        m_Fd = -1;
        return ::close(fd) == 0 || errno == EINTR;
    }

private:
    Q_DISABLE_COPY(Descriptor)

    int m_Fd;
};

// Stores what failed and why, from errno; always false.
inline bool systemFailure(const char* what, Reason* reason) {
    const int error = errno;
    *reason = Reason("%1: %2").arg(Reason(what)).arg(QString::fromLocal8Bit(strerror(error)));
    return false;
}

inline bool isSameInode(const struct stat& one, const struct stat& other) {
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

#endif
