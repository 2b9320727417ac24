/* SPDX-License-Identifier: MIT */
/* A program in C, without any event loop, that lives with real modems: prints the modem's status, or "?" when nothing
 * can tell it, at first and at each change, and ends when its input does. "once" ends after the first; "time" prints
 * the microseconds that it took instead; "fork" prints how many calls succeed in a child instead; "exit" ends within an
 * event. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include "vrks.h"

static void printStatus(void) {
    int status;
    if (VRKS_DevSrv_GetDevStatus(&status) == 0)
        printf("%d\n", status);
    else
        puts("?");
    fflush(stdout);
}

static void printChange(int event, void* unused) {
    (void)unused;
    if (event == VRKS_EVENT_MODEM_CHANGED) printStatus();
}

static void endWithin(int event, void* unused) {
    (void)event, (void)unused;
    exit(0);
}

static double microseconds(void) {
    struct timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1e6 + now.tv_nsec / 1e3;
}

/* Of the first call, whatever it answers. */
static void printTime(void) {
    int status;
    const double before = microseconds();
    VRKS_DevSrv_GetDevStatus(&status);
    printf("%.0f\n", microseconds() - before);
}

static int successesInChild(void) {
    int status = 0;
    const pid_t child = fork();
    if (child == 0) _exit((VRKS_DevSrv_GetDevStatus(&status) == 0) + (VRKS_NetSrv_SendUssd("*100#") == 0));
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

int main(int count, char** arguments) {
    const char* task = count > 1 ? arguments[1] : "";
    if (strcmp(task, "time") == 0) {
        printTime();
        return 0;
    }
    printStatus();
    if (strcmp(task, "once") == 0) return 0;
    if (strcmp(task, "fork") == 0) {
        printf("%d\n", successesInChild());
        return 0;
    }
    VRKS_DevSrv_RegisterEventCallback(strcmp(task, "exit") == 0 ? endWithin : printChange, 0);
    while (getchar() != EOF) {
    }
    return 0;
}
