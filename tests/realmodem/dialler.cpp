// Dials at once for a test, as a program of ours does, and stays until its standard input ends:
// dialler NAME BOUND [USER-ID]
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

// A line for each state, as "STATE FAILURE", until it is up or down.
void tellUntilSettled() {
    for (int told = -1;;) {
        const VRKS_Connection now = connection();
        if (now.state != told) std::printf("%d %d\n", now.state, now.failure);
        std::fflush(stdout);
        told = now.state;
        if (told == VRKS_CONNECTION_UP || told == VRKS_CONNECTION_DOWN) return;
        ::usleep(10000);
    }
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
    tellUntilSettled();
    while (std::getchar() != EOF) continue;
    return 0;
}
