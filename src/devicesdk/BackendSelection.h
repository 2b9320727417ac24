// SPDX-License-Identifier: MIT
// Which backend the process uses.
#ifndef ORBISDIAL_BACKENDSELECTION_H
#define ORBISDIAL_BACKENDSELECTION_H

#include "Backend.h"

class EventDispatcher;

struct BackendSelection {
    Backend* backend;         // never null; one on which everything fails when the one asked for can't be had
    EventDispatcher* events;  // null when everything fails
    const char* name;         // null when the one asked for can't be had
    const char* problem;      // why not; null when all is well
};

// Whether ORBISDIAL_DEVICE asks for this backend by its name. Chooses nothing, and waits for nothing.
bool isRequested(const char* name);

// Chosen at the first call from ORBISDIAL_DEVICE; lives until the process ends, whatever else is gone by then. In a
// child of a process that had chosen it is one on which everything fails: the threads did not come along.
const BackendSelection& selectedBackend();

// The same, once the first complete picture is there or the time to wait for it is over.
const BackendSelection& answeringBackend();

#endif
