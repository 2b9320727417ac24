// SPDX-License-Identifier: MIT
#include "BackendLoader.h"

#include <dlfcn.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

// As the installation and the build tree have it: beside the library that this code is part of.
fs::path moduleFile(const std::string& name) {
    Dl_info own;
    if (::dladdr(reinterpret_cast<const void*>(&loadBackendModule), &own) == 0) return {};
    return fs::absolute(own.dli_fname).lexically_normal().parent_path() / "orbisdial" / ("vrks-" + name + ".so");
}

LoadedModule failed(const std::string& name, const std::string& reason) {
    return {nullptr, "the device backend \"" + name + "\" can't be loaded: " + reason};
}

std::string loaderError() {
    const char* text = ::dlerror();
    return text ? text : "unknown reason";
}

// Whoever preloads a library, or brings an allocator of his own, wants all of the process to use it.
bool isSystemPlain() {
    const char* preloaded = std::getenv("LD_PRELOAD");
    void* const system = ::dlopen("libc.so.6", RTLD_LAZY | RTLD_NOLOAD);
    return !(preloaded && *preloaded) && system && ::dlsym(system, "malloc") == ::dlsym(RTLD_DEFAULT, "malloc");
}

// A command waits for the module on its first thread; a window has it loaded beside its own start.
bool isAwaited() { return ::gettid() == ::getpid(); }

// A module brings twenty libraries with ten thousand names, each of which is looked for in the program's own twenty
// libraries before; that is a tenth of what a command does. They look among themselves first where nothing forbids it.
// Not in a window: what the bus has to tell would come sooner, and take the processors from the first paint.
int loadingFlags() {
    constexpr int Flags = RTLD_LAZY | RTLD_LOCAL | RTLD_NODELETE;
#ifdef RTLD_DEEPBIND
    if (isAwaited() && isSystemPlain()) return Flags | RTLD_DEEPBIND;
#endif
    return Flags;
}

}  // namespace

LoadedModule loadBackendModule(const char* name) {
    const fs::path file = moduleFile(name);
    std::error_code ignored;
    if (!fs::exists(file, ignored)) return failed(name, "there is no " + file.string());
    void* library = ::dlopen(file.c_str(), loadingFlags());
    if (!library) return failed(name, loaderError());
    const auto* module = static_cast<const BackendModule*>(::dlsym(library, ORBISDIAL_BACKEND_MODULE_NAME));
    if (!module) return failed(name, loaderError());
    if (module->version != BackendModule::CurrentVersion) return failed(name, "it belongs to another version");
    return {module, {}};
}
