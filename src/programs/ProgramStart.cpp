// SPDX-License-Identifier: MIT
#include "ProgramStart.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <new>

#include "StandardOutput.h"

namespace {

const char* name = "";
int failureStatus = EXIT_FAILURE;

// In ascending order, since open() takes the lowest number that is free.
void replaceClosedStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(stream, F_GETFD) != -1) continue;
        const int wrongWay = stream == STDIN_FILENO ? O_WRONLY : O_RDONLY;
        if (::open("/dev/null", wrongWay) != stream) std::_Exit(failureStatus);
    }
}

[[noreturn]] void endOutOfMemory() {
    try {
        if (const std::exception_ptr thrown = std::current_exception()) std::rethrow_exception(thrown);
    } catch (const std::bad_alloc&) {
        ProgramStart::reportOutOfMemory();
        std::_Exit(failureStatus);
    } catch (...) {
        // a fault of the program
    }
    std::abort();
}

}  // namespace

void ProgramStart::prepare(const char* programName, int failure) {
    name = programName;
    failureStatus = failure;
    ::prctl(PR_SET_DUMPABLE, 0);
    replaceClosedStreams();
    std::signal(SIGPIPE, SIG_IGN);
    std::set_terminate(endOutOfMemory);
}

void ProgramStart::reportOutOfMemory() {
    static bool isReported = false;  // the end of the program may need memory, too
    if (isReported) return;
    isReported = true;
    for (const char* part : {name, ": out of memory\n"}) StandardOutput::write(STDERR_FILENO, part, std::strlen(part));
}
