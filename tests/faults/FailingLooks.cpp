// SPDX-License-Identifier: MIT
// Lets one look at a file fail: $ORBISDIAL_TEST_LOOK is "n:errno:its name". The n-th open to read, read or stat
// of it then fails, and the file named by $ORBISDIAL_TEST_LOOK_FAILED is made. The calls are defined here, which the
// linker prefers to the C library's, and are passed on.

#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#define INTERPOSED extern "C" __attribute__((visibility("default")))

namespace {

int looksLeft = 0;
int failure = 0;
char fileName[64] = "";

template <class Function>
Function* next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

__attribute__((constructor)) void takeFaultFromEnvironment() {
    const char* fault = getenv("ORBISDIAL_TEST_LOOK");
    if (fault && sscanf(fault, "%d:%d:%63s", &looksLeft, &failure, fileName) != 3) abort();
}

// Counts a look; true when it is to fail, errno then being set.
bool fails(const char* path) {
    const size_t size = path ? strlen(path) : 0;
    const size_t endSize = strlen(fileName);
    if (looksLeft == 0 || size < endSize || strcmp(path + size - endSize, fileName) != 0) return false;
    if ((size > endSize && path[size - endSize - 1] != '/') || --looksLeft > 0) return false;
    const char* const mark = getenv("ORBISDIAL_TEST_LOOK_FAILED");
    close(next<decltype(open)>("open")(mark, O_WRONLY | O_CREAT, 0600));
    errno = failure;
    return true;
}

bool fails(int fd) {
    if (looksLeft == 0) return false;
    char link[32];
    char path[4096];
    snprintf(link, sizeof link, "/proc/self/fd/%d", fd);
    const ssize_t size = readlink(link, path, sizeof path - 1);
    if (size < 0) return false;
    path[size] = 0;
    return fails(path);
}

// statx and its kin look at an open file where the path is empty.
bool fails(int fd, const char* path) { return path && *path ? fails(path) : fails(fd); }

}  // namespace

#define LOOK(name, parameters, arguments, subject) \
    INTERPOSED int name parameters noexcept { return fails subject ? -1 : next<decltype(name)>(#name) arguments; }

LOOK(stat, (const char* path, struct stat* info), (path, info), (path))
LOOK(stat64, (const char* path, struct stat64* info), (path, info), (path))
LOOK(lstat, (const char* path, struct stat* info), (path, info), (path))
LOOK(lstat64, (const char* path, struct stat64* info), (path, info), (path))
LOOK(fstat, (int fd, struct stat* info), (fd, info), (fd))
LOOK(fstat64, (int fd, struct stat64* info), (fd, info), (fd))
LOOK(fstatat, (int folder, const char* path, struct stat* info, int flags), (folder, path, info, flags), (folder, path))
LOOK(fstatat64, (int folder, const char* path, struct stat64* info, int flags), (folder, path, info, flags),
     (folder, path))
LOOK(statx, (int folder, const char* path, int flags, unsigned mask, struct statx* info),
     (folder, path, flags, mask, info), (folder, path))

#define LOOK_BY_OPENING(name, parameters, arguments)                              \
    INTERPOSED int name parameters {                                              \
        va_list rest;                                                             \
        va_start(rest, flags);                                                    \
        const int mode = (flags & O_CREAT) != 0 ? va_arg(rest, int) : 0;          \
        va_end(rest);                                                             \
        const bool reads = (flags & (O_ACCMODE | O_CREAT)) == O_RDONLY;           \
        return reads && fails(path) ? -1 : next<decltype(name)>(#name) arguments; \
    }

LOOK_BY_OPENING(open, (const char* path, int flags, ...), (path, flags, mode))
LOOK_BY_OPENING(open64, (const char* path, int flags, ...), (path, flags, mode))
LOOK_BY_OPENING(openat, (int folder, const char* path, int flags, ...), (folder, path, flags, mode))
LOOK_BY_OPENING(openat64, (int folder, const char* path, int flags, ...), (folder, path, flags, mode))

INTERPOSED ssize_t read(int fd, void* data, size_t size) {
    return fails(fd) ? -1 : next<decltype(read)>("read")(fd, data, size);
}
