// SPDX-License-Identifier: MIT
// Loads a backend that is a module.
#ifndef ORBISDIAL_BACKENDLOADER_H
#define ORBISDIAL_BACKENDLOADER_H

#include "Backend.h"

struct LoadedModule {
    const BackendModule* module;  // null when it can't be had
    std::string problem;          // why not, for a person
};

LoadedModule loadBackendModule(const char* name);

#endif
