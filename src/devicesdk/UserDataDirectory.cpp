#include "UserDataDirectory.h"

#include <sys/stat.h>

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

// The mode is set again because the umask may have taken the owner's own rights away. Another process may
// make the same folder at the same time.
bool makeFolder(const fs::path& path) {
    constexpr mode_t mode = 0700;
    if (::mkdir(path.c_str(), mode) != 0) return isFolder(path);
    return ::chmod(path.c_str(), mode) == 0;
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
    const std::lock_guard<std::mutex> lock(mutex);
    if (configured->native() == lastConfigured.native() && isFolder(*configured)) return lastName;

    const fs::path folder = fs::absolute(*configured) / "";
    std::u16string name = folder.u16string();           // throws when it is not UTF-8, but for encoded surrogates
    if (fs::path(name) != folder) return std::nullopt;  // which don't come back
    if (!haveFolders(folder)) return std::nullopt;
    if (configured->is_absolute()) {
        lastConfigured = *configured;
        lastName = name;
    }
    return name;
}
