// SPDX-License-Identifier: MIT
// What every program does before anything else.
#ifndef ORBISDIAL_PROGRAMS_PROGRAMSTART_H
#define ORBISDIAL_PROGRAMS_PROGRAMSTART_H

namespace ProgramStart {

// - No other process of the user's may look into this one, and no core file is left of it: it holds passwords. A
//   debugger needs an administrator's rights then.
// - A standard stream that was closed is replaced by one that refuses reading or writing, so that a file which is
//   opened later does not become the standard output.
// - A reader that goes away makes writing fail, rather than end the program in the middle of its work.
// - Where memory runs out in a place from which no exception gets out, the program ends like after other failures:
//   with one line that begins with the program's name, and with this exit status.
// Comes first in main(). The name is kept.
void prepare(const char* programName, int failure);

// Writes that one line, without taking memory.
void reportOutOfMemory();

}  // namespace ProgramStart

#endif
