// SPDX-License-Identifier: MIT
// The calls are defined here, which the linker prefers to the C library's, and are passed on.

#include "FaultySystem.h"

#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#define INTERPOSED extern "C" __attribute__((visibility("default")))

namespace {

int callsLeft = 0;
char failing[32] = "";
int failure = 0;
int passing = 0;  // calls of the name before the one that fails; -1 for none that does
bool failsAll = false;
bool failed = false;

// The function that this program's own stands before.
template <class Function>
Function* next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

// What to do before which call.
struct Interlude {
    const char* call = "";
    std::function<void()> action;
};

Interlude& interlude() {
    static Interlude interlude;
    return interlude;
}

void playInterlude(const char* call) {
    if (!interlude().action || strcmp(call, interlude().call) != 0) return;
    const std::function<void()> action = std::move(interlude().action);
    interlude() = Interlude();
    action();
}

bool isLook(const char* call) {
    return strcmp(call, "stat") == 0 || strcmp(call, "read") == 0 || strcmp(call, "open to read") == 0;
}

// Counts a call; true when it is to fail, errno then being set.
bool failsAt(const char* call) {
    playInterlude(call);
    if (callsLeft > 0 && !isLook(call) && --callsLeft == 0) raise(SIGKILL);
    if (strcmp(call, failing) != 0 || passing < 0) return false;
    if (!failsAll && passing-- > 0) return false;
    failed = true;
    errno = failure;
    return true;
}

__attribute__((constructor)) void takeFaultFromEnvironment() {
    const char* fault = getenv("ORBISDIAL_TEST_FAULT");
    char call[sizeof failing] = "";
    int error = 0;
    int n = 0;
    if (fault && sscanf(fault, "%31[^=]=%d@%d", call, &error, &n) >= 2) FaultySystem::fail(call, error, n);
}

// What a profiler writes at the end of the program is no save.
__attribute__((destructor)) void stopFailing() { FaultySystem::fail(nullptr, 0); }

}  // namespace

void FaultySystem::killAt(int n) { callsLeft = n; }

void FaultySystem::fail(const char* call, int error, int n) {
    snprintf(failing, sizeof failing, "%s", call ? call : "");
    failure = error;
    passing = n > 0 ? n - 1 : 0;
    failsAll = n == 0;
    failed = false;
}

void FaultySystem::before(const char* call, const std::function<void()>& action) { interlude() = {call, action}; }

bool FaultySystem::hasFailed() { return failed; }

#define FAULTY(call, name, parameters, arguments) \
    INTERPOSED int name parameters noexcept { return failsAt(call) ? -1 : next<decltype(name)>(#name) arguments; }

FAULTY("fchmod", fchmod, (int fd, mode_t mode), (fd, mode))
FAULTY("fchown", fchown, (int fd, uid_t user, gid_t group), (fd, user, group))
FAULTY("rename", rename, (const char* from, const char* to), (from, to))
FAULTY("rename", renameat, (int oldFolder, const char* from, int folder, const char* to), (oldFolder, from, folder, to))
FAULTY("unlink", unlink, (const char* path), (path))
FAULTY("unlink", unlinkat, (int folder, const char* path, int flags), (folder, path, flags))
FAULTY("flock", flock, (int fd, int operation), (fd, operation))
FAULTY("stat", fstat, (int fd, struct stat* info), (fd, info))
FAULTY("stat", fstat64, (int fd, struct stat64* info), (fd, info))
FAULTY("stat", stat, (const char* path, struct stat* info), (path, info))
FAULTY("stat", stat64, (const char* path, struct stat64* info), (path, info))
FAULTY("stat", lstat64, (const char* path, struct stat64* info), (path, info))
FAULTY("stat", fstatat, (int folder, const char* path, struct stat* info, int flags), (folder, path, info, flags))
FAULTY("stat", fstatat64, (int folder, const char* path, struct stat64* info, int flags), (folder, path, info, flags))
FAULTY("stat", statx, (int folder, const char* path, int flags, unsigned mask, struct statx* info),
       (folder, path, flags, mask, info))

bool failsToOpen(int flags) { return failsAt((flags & (O_ACCMODE | O_CREAT)) == O_RDONLY ? "open to read" : "open"); }

#define FAULTY_OPEN(name, parameters, arguments)                                \
    INTERPOSED int name parameters {                                            \
        va_list rest;                                                           \
        va_start(rest, flags);                                                  \
        const int mode = (flags & O_CREAT) != 0 ? va_arg(rest, int) : 0;        \
        va_end(rest);                                                           \
        return failsToOpen(flags) ? -1 : next<decltype(name)>(#name) arguments; \
    }

FAULTY_OPEN(open, (const char* path, int flags, ...), (path, flags, mode))
FAULTY_OPEN(open64, (const char* path, int flags, ...), (path, flags, mode))
FAULTY_OPEN(openat, (int folder, const char* path, int flags, ...), (folder, path, flags, mode))
FAULTY_OPEN(openat64, (int folder, const char* path, int flags, ...), (folder, path, flags, mode))

INTERPOSED int renameat2(int oldFolder, const char* from, int folder, const char* to, unsigned flags) noexcept {
    if (failsAt("rename")) return -1;
    if (flags == 0 || strncmp(failing, "rename with flags", strlen("rename with flags")) != 0)
        return next<decltype(renameat2)>("renameat2")(oldFolder, from, folder, to, flags);
    errno = EINVAL;
    return -1;
}

INTERPOSED int linkat(int oldFolder, const char* from, int folder, const char* to, int flags) noexcept {
    if (strcmp(failing, "rename with flags or link") != 0)
        return failsAt("linkat") ? -1 : next<decltype(linkat)>("linkat")(oldFolder, from, folder, to, flags);
    errno = EPERM;
    return -1;
}

INTERPOSED ssize_t read(int fd, void* data, size_t size) {
    if (failsAt("read")) return -1;
    return next<decltype(read)>("read")(fd, data, strcmp(failing, "read in full") == 0 && size > 100 ? 100 : size);
}

INTERPOSED ssize_t write(int fd, const void* data, size_t size) {
    const auto write = next<decltype(::write)>("write");
    if (fd <= STDERR_FILENO) return strcmp(failing, "output of nothing") == 0 ? 0 : write(fd, data, size);
    if (callsLeft == 1 && write(fd, data, size / 2) < 0) raise(SIGABRT);
    if (failsAt("write")) return -1;
    if (strcmp(failing, "write anything") == 0) return 0;
    return write(fd, data, strcmp(failing, "write in full") == 0 ? (size + 1) / 2 : size);
}

// What a test writes need not reach the disk, which would take most of its time.
INTERPOSED int fsync(int fd) {
    struct stat info;
    const bool isFolder = next<decltype(fstat)>("fstat")(fd, &info) == 0 && S_ISDIR(info.st_mode);
    return failsAt(isFolder ? "fsync folder" : "fsync") ? -1 : 0;
}

INTERPOSED int close(int fd) {
    const int status = next<decltype(close)>("close")(fd);
    return failsAt("close") ? -1 : status;
}
