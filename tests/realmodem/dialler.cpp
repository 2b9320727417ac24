// SPDX-License-Identifier: MIT
// Dials at once for a test, as a program of ours does, and stays until its standard input ends:
// dialler NAME BOUND [USER-ID]
#include <poll.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "vrks.h"

namespace {

VRKS_Connection connection() {
    VRKS_Connection record{};
    record.size = sizeof record;
    VRKS_NetConnectSrv_GetConnection(&record);
    return record;
}

// At most ten milliseconds.
bool hasInputEnded() {
    pollfd input = {STDIN_FILENO, POLLIN, 0};
    return ::poll(&input, 1, 10) > 0;
}

// A line for each state, as "STATE FAILURE".
void tellUntilInputEnds() {
    int told = -1;
    do {
        const VRKS_Connection now = connection();
        if (now.state != told) std::printf("%d %d\n", now.state, now.failure);
        std::fflush(stdout);
        told = now.state;
    } while (!hasInputEnded());
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount < 3) return 2;
    if (argumentCount > 3 && ::setuid(static_cast<uid_t>(std::atoi(arguments[3]))) != 0) return 3;
    VRKS_DialRequest request{};
    request.size = sizeof request;
    request.name = arguments[1];
    request.apn = "internet.example";
    request.endsWithProcess = std::strcmp(arguments[2], "bound") == 0;
    VRKS_NetConnectSrv_Dial(&request);
    tellUntilInputEnds();
    return 0;
}
