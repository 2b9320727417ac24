// Keeps other processes from changing the user's profile file.
#ifndef ORBISDIAL_USERFILELOCK_H
#define ORBISDIAL_USERFILELOCK_H

#include <QString>
#include <QtGlobal>

// An advisory lock (flock) on a file beside the one that it guards. It goes with the process that holds it.
class UserFileLock {
public:
    UserFileLock();
    ~UserFileLock();

    // Locks a lock file, which is made when it is missing; waits for at most 5 seconds. On failure the reason is
    // stored, in English.
    bool acquire(const QString& path, QString* reason);
    void release();
    bool isHeld() const { return m_Fd >= 0; }

private:
    Q_DISABLE_COPY(UserFileLock)

    int m_Fd;
};

#endif
