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

// The function that this program's own stands before.
template <class Function>
Function* next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

// Counts a call; true when it is to fail, errno then being set.
bool failsAt(const char* call) {
    if (callsLeft > 0 && --callsLeft == 0) raise(SIGKILL);
    if (strcmp(call, failing) != 0) return false;
    errno = failure;
    return true;
}

__attribute__((constructor)) void takeFaultFromEnvironment() {
    const char* fault = getenv("ORBISDIAL_TEST_FAULT");
    if (fault) sscanf(fault, "%31[^=]=%d", failing, &failure);
}

// What a profiler writes at the end of the program is no save.
__attribute__((destructor)) void stopFailing() { FaultySystem::fail(nullptr, 0); }

}  // namespace

void FaultySystem::killAt(int n) { callsLeft = n; }

void FaultySystem::fail(const char* call, int error) {
    snprintf(failing, sizeof failing, "%s", call ? call : "");
    failure = error;
}

#define FAULTY(name, parameters, arguments, exceptions) \
    INTERPOSED int name parameters exceptions { return failsAt(#name) ? -1 : next<decltype(name)>(#name) arguments; }

FAULTY(fchmod, (int fd, mode_t mode), (fd, mode), noexcept)
FAULTY(fchown, (int fd, uid_t user, gid_t group), (fd, user, group), noexcept)
FAULTY(rename, (const char* from, const char* to), (from, to), noexcept)
FAULTY(unlink, (const char* path), (path), noexcept)
FAULTY(flock, (int fd, int operation), (fd, operation), noexcept)

#define FAULTY_OPEN(name)                                                                                      \
    INTERPOSED int name(const char* path, int flags, ...) {                                                    \
        va_list arguments;                                                                                     \
        va_start(arguments, flags);                                                                            \
        const int mode = (flags & O_CREAT) != 0 ? va_arg(arguments, int) : 0;                                  \
        va_end(arguments);                                                                                     \
        const bool reads = (flags & (O_ACCMODE | O_CREAT)) == O_RDONLY;                                        \
        return failsAt(reads ? "open to read" : "open") ? -1 : next<decltype(name)>(#name)(path, flags, mode); \
    }

FAULTY_OPEN(open)
FAULTY_OPEN(open64)

// mkostemp, by its name where files may be of any size.
INTERPOSED int mkostemp64(char* name, int flags) {
    return failsAt("mkostemp") ? -1 : next<decltype(mkostemp64)>("mkostemp64")(name, flags);
}

INTERPOSED ssize_t write(int fd, const void* data, size_t size) {
    const auto write = next<decltype(::write)>("write");
    if (fd <= STDERR_FILENO) return strcmp(failing, "output of nothing") == 0 ? 0 : write(fd, data, size);
    if (callsLeft == 1 && write(fd, data, size / 2) < 0) raise(SIGABRT);
    if (failsAt("write")) return -1;
    return write(fd, data, strcmp(failing, "write in full") == 0 ? (size + 1) / 2 : size);
}

INTERPOSED int fsync(int fd) {
    struct stat info;
    const bool isFolder = fstat(fd, &info) == 0 && S_ISDIR(info.st_mode);
    return failsAt(isFolder ? "fsync folder" : "fsync") ? -1 : next<decltype(fsync)>("fsync")(fd);
}

INTERPOSED int close(int fd) {
    const int status = next<decltype(close)>("close")(fd);
    return failsAt("close") ? -1 : status;
}
