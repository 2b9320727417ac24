// SPDX-License-Identifier: MIT
// Writing to a standard stream, past stdio: that would go round for ever on a device that takes nothing.
#ifndef ORBISDIAL_PROGRAMS_STANDARDOUTPUT_H
#define ORBISDIAL_PROGRAMS_STANDARDOUTPUT_H

#include <QString>
#include <cstddef>

namespace StandardOutput {

// Writes all of it, waiting for a stream that is not ready; false, errno then saying why, when that can't be. Takes
// no memory.
bool write(int stream, const char* data, std::size_t size);

// Writes text to the standard output as UTF-8: null, or else why it could not be written.
QString writeText(const QString& text);

// Writes "program: text" as one line to the standard error output, without what a terminal would obey.
void writeDiagnostic(const char* program, const QString& text);

}  // namespace StandardOutput

#endif
