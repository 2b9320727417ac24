// SPDX-License-Identifier: MIT
#include "BackendLoader.h"

#include <dlfcn.h>

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

}  // namespace

LoadedModule loadBackendModule(const char* name) {
    const fs::path file = moduleFile(name);
    std::error_code ignored;
    if (!fs::exists(file, ignored)) return failed(name, "there is no " + file.string());
    void* library = ::dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    if (!library) return failed(name, loaderError());
    const auto* module = static_cast<const BackendModule*>(::dlsym(library, ORBISDIAL_BACKEND_MODULE_NAME));
    if (!module) return failed(name, loaderError());
    if (module->version != BackendModule::CurrentVersion) return failed(name, "it belongs to another version");
    return {module, {}};
}
