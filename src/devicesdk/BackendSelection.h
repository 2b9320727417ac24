// Which backend the process uses.
#ifndef ORBISDIAL_BACKENDSELECTION_H
#define ORBISDIAL_BACKENDSELECTION_H

#include "Backend.h"

struct BackendSelection {
    Backend* backend;     // never null; one on which everything fails when the one asked for can't be had
    const char* name;     // null when the one asked for can't be had
    const char* problem;  // why not; null when all is well
};

// Chosen at the first call from ORBISDIAL_DEVICE; lives until the process ends, whatever else is gone by then.
const BackendSelection& selectedBackend();

#endif
