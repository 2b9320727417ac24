#include "UserFileLock.h"

#include <errno.h>
#include <fcntl.h>
#include <string.h>
#include <sys/file.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>

static const int LongestWait = 5000;  // milliseconds
static const int Pause = 300;         // microseconds; short, to get in between the writes of a busy process

static QString systemError() { return QString::fromLocal8Bit(strerror(errno)); }

UserFileLock::UserFileLock() : m_Fd(-1) {}

UserFileLock::~UserFileLock() { release(); }

bool UserFileLock::acquire(const QString& path, QString* reason) {
    release();
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (fd < 0) {
        *reason = QLatin1String("can't be opened: ") + systemError();
        return false;
    }
    QElapsedTimer timer;
    timer.start();
    while (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
        const bool isBusy = errno == EWOULDBLOCK || errno == EINTR;
        if (isBusy && timer.elapsed() < LongestWait) {
            ::usleep(Pause);
            continue;
        }
        *reason = isBusy ? QString::fromLatin1("another program keeps the profiles locked")
                         : QLatin1String("can't be locked: ") + systemError();
        ::close(fd);
        return false;
    }
    m_Fd = fd;
    return true;
}

void UserFileLock::release() {
    if (m_Fd >= 0) ::close(m_Fd);
    m_Fd = -1;
}
