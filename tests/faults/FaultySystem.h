// SPDX-License-Identifier: MIT
// Puts a fault into the system calls of a save, in every program that FaultySystem.cpp is linked into.
#ifndef ORBISDIAL_TESTS_FAULTYSYSTEM_H
#define ORBISDIAL_TESTS_FAULTYSYSTEM_H

#include <functional>

namespace FaultySystem {

// Kills the process at the n-th call from now on that may change something, counted from one; a write is half done by
// then. 0 stops counting.
void killAt(int n);

// Lets the n-th call of a name from now on fail with this errno, or every call for n = 0; null none. The names are the
// functions', but that "rename", "unlink" and "stat" stand for all of their kind, "open to read" for an open that
// writes nothing, "fsync folder" for the flush of a folder, "write in full" for a write that takes only half of its
// data, "read in full" for reads of at most 100 bytes, "write anything" for one that takes nothing, and "rename with
// flags" for a file system that knows none, "rename with flags or link" for one that knows no hard links either.
// $ORBISDIAL_TEST_FAULT ("name=errno@n") does the same from the program's start.
void fail(const char* call, int error, int n = 0);

// Does something once, just before the next call of a name.
void before(const char* call, const std::function<void()>& action);

// Whether any call has failed since.
bool hasFailed();

}  // namespace FaultySystem

#endif
