// Puts a fault into the system calls of a save, in every program that FaultySystem.cpp is linked into.
#ifndef ORBISDIAL_TESTS_FAULTYSYSTEM_H
#define ORBISDIAL_TESTS_FAULTYSYSTEM_H

namespace FaultySystem {

// Kills the process at the n-th call from now on, counted from one; a write is half done by then. 0 stops counting.
void killAt(int n);

// Lets every call of a name fail with this errno; null none. The names are the functions', but "fsync folder" for the
// flush of a folder, "open to read" for an open that writes nothing and "write in full" for a write that then takes
// only half of its data. $ORBISDIAL_TEST_FAULT ("name=errno") does the
// same from the program's start.
void fail(const char* call, int error);

}  // namespace FaultySystem

#endif
