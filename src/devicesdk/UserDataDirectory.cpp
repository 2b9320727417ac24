// SPDX-License-Identifier: MIT
#include "UserDataDirectory.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <mutex>

namespace fs = std::filesystem;

namespace {

const char* variable(const char* name) {
    const char* value = std::getenv(name);
    return value && *value ? value : nullptr;
}

std::optional<fs::path> configuredFolder() {
    if (const char* folder = variable("ORBISDIAL_DATA_DIR")) return folder;
    if (const char* dataHome = variable("XDG_DATA_HOME")) return fs::path(dataHome) / "orbisdial";
    if (const char* home = variable("HOME")) return fs::path(home) / ".local/share/orbisdial";
    return std::nullopt;
}

bool isFolder(const fs::path& path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

class Descriptor {
public:
    explicit Descriptor(int descriptor) : m_Descriptor(descriptor) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (isOpen()) ::close(m_Descriptor);
    }

    int get() const { return m_Descriptor; }
    bool isOpen() const { return m_Descriptor >= 0; }

private:
    int m_Descriptor;
};

constexpr mode_t FolderMode = 0700;
constexpr int FolderFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

// The folder just made, whatever somebody may put in its place. The umask may have taken the owner's right to open
// it; that hinders everybody but root, who must not change the mode of what a link leads to.
int openMade(const fs::path& path) {
    const int descriptor = ::open(path.c_str(), FolderFlags | O_NOFOLLOW);
    if (descriptor >= 0 || errno != EACCES || ::chmod(path.c_str(), FolderMode) != 0) return descriptor;
    return ::open(path.c_str(), FolderFlags | O_NOFOLLOW);
}

// What root makes in another user's folder is for that user.
bool giveToOwnerOf(int parent, int made) {
    struct stat owner = {};
    if (::geteuid() != 0) return true;
    if (::fstat(parent, &owner) != 0) return false;
    return owner.st_uid == 0 || ::fchown(made, owner.st_uid, owner.st_gid) == 0;
}

// A file system that can't flush a folder says so, and then there is nothing to do.
bool flush(int folder) { return ::fsync(folder) == 0 || errno == EINVAL; }

// Another process may make the same folder at the same time. The folder around it is flushed, or a loss of power could
// take away the new one with all that was flushed into it.
bool makeFolder(const fs::path& path) {
    if (::mkdir(path.c_str(), FolderMode) != 0) return isFolder(path);
    const Descriptor made(openMade(path));
    if (!made.isOpen() || ::fchmod(made.get(), FolderMode) != 0) return false;
    const fs::path around = path.has_parent_path() ? path.parent_path() : fs::path(".");
    const Descriptor parent(::open(around.c_str(), FolderFlags));
    if (!parent.isOpen()) return errno == EACCES && ::geteuid() != 0;  // may be entered and written to, not read
    return giveToOwnerOf(parent.get(), made.get()) && flush(parent.get());
}

bool haveFolders(const fs::path& path) {
    if (isFolder(path)) return true;
    fs::path part;
    for (const fs::path& name : path) {
        part /= name;
        if (!isFolder(part) && !makeFolder(part)) return false;
    }
    return true;
}

}  // namespace

std::optional<std::u16string> userDataDirectory() {
    // Callers ask before every look at a file, and working the name out takes longer than the look.
    static std::mutex mutex;
    static fs::path lastConfigured;
    static std::u16string lastName;
    const std::optional<fs::path> configured = configuredFolder();
    if (!configured) return std::nullopt;
    // In a forked child the lock may be held by a thread that is not there.
    const std::unique_lock<std::mutex> lock(mutex, std::try_to_lock);
    const bool mayKeep = lock.owns_lock();
    if (mayKeep && configured->native() == lastConfigured.native() && isFolder(*configured)) return lastName;

    const fs::path folder = fs::absolute(*configured) / "";
    std::u16string name = folder.u16string();           // throws when it is not UTF-8, but for encoded surrogates
    if (fs::path(name) != folder) return std::nullopt;  // which don't come back
    if (!haveFolders(folder)) return std::nullopt;
    if (mayKeep && configured->is_absolute()) {
        lastConfigured = *configured;
        lastName = name;
    }
    return name;
}
