/* SPDX-License-Identifier: MIT */
/* A program in C on the device SDK. Without an argument it prints the backend's name and the problem, and
 * ends with the number of device calls that did anything. With "status" it ends with the modem's status, or 9. With
 * "fork" it ends with that number for a child that it makes while an event is delivered. With another it ends itself
 * while they are: "within" a callback, or else from main. */
#define _POSIX_C_SOURCE 200809L
#include <stdatomic.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/wait.h>
#include <threads.h>
#include <time.h>
#include <unistd.h>

#include "vrks.h"
#include "vrks_simulated.h"

static atomic_int ended;

static void end(void) {
    ended = 1;
    thrd_sleep(&(struct timespec){.tv_nsec = 50000000}, 0);
}

/* No callback may run while what it uses goes away. */
static int slowly(int event, void* data) {
    (void)data;
    if (ended) _Exit(9);
    thrd_sleep(&(struct timespec){.tv_nsec = 1000000}, 0);
    return event;
}

static int endWithin(int event, void* data) {
    (void)data;
    exit(event);
}

static int endEarly(VRKS_DevInitEventCallback callback) {
    int i;
    atexit(end); /* before the SDK's own, so it runs after them */
    if (VRKS_DevSrv_RegisterDevInitEventCallback(callback) != 0) return 1;
    for (i = 0; i < 100000; ++i) vrks_simulated_raise_event(7);
    return callback == endWithin ? vrks_simulated_wait_events() != 0 : 0;
}

static void ignore(int event, void* data) {
    (void)event;
    (void)data;
}

/* How many of the calls about modems and connections did anything, or wrote to a record. */
static int laterCalls(void) {
    const VRKS_DialRequest request = {.size = sizeof request, .name = "Home"};
    static const VRKS_ModemInfo noModem = {.size = sizeof noModem};
    static const VRKS_Connection noConnection = {.size = sizeof noConnection};
    static const VRKS_Ussd noUssd = {.size = sizeof noUssd};
    VRKS_ModemInfo modem = noModem;
    VRKS_Connection connection = noConnection;
    VRKS_Ussd ussd = noUssd;
    char id[VRKS_MODEM_ID_SIZE];
    int count = VRKS_DevSrv_RegisterEventCallback(ignore, 0) == 0;
    count += VRKS_DevSrv_UnRegisterEventCallback(ignore, 0) == 0;
    count += VRKS_DevSrv_GetModemAt(0, id) == 0;
    count += VRKS_DevSrv_SelectModem(0) == 0;
    count += VRKS_DevSrv_GetModemInfo(&modem) == 0;
    count += VRKS_DevSrv_GetModemInfoOf("", &modem) == 0;
    count += VRKS_DevSrv_EnterPin("1234") == 0;
    count += VRKS_DevSrv_EnterPuk("12345678", "1234") == 0;
    count += VRKS_NetConnectSrv_Dial(&request) == 0;
    count += VRKS_NetConnectSrv_HangUp() == 0;
    count += VRKS_NetConnectSrv_GetConnection(&connection) == 0;
    count += VRKS_NetSrv_SendUssd("*100#") == 0;
    count += VRKS_NetSrv_AnswerUssd("1") == 0;
    count += VRKS_NetSrv_CancelUssd() == 0;
    count += VRKS_NetSrv_GetUssd(&ussd) == 0;
    count += memcmp(&modem, &noModem, sizeof modem) != 0;
    count += memcmp(&connection, &noConnection, sizeof connection) != 0;
    return count + (memcmp(&ussd, &noUssd, sizeof ussd) != 0);
}

static int callsThatDidAnything(void) {
    static char out[VRKS_DSPROFILE_SIZE];
    static const char untouched[sizeof out];
    int count = VRKS_DevSrv_RegisterDevInitEventCallback(slowly) == 0;
    count += VRKS_DevSrv_UnRegisterDevInitEventCallback(slowly) == 0;
    count += VRKS_DevSrv_GetDevStatus((int*)(void*)out) == 0;
    count += VRKS_DevSrv_GetProductType((int*)(void*)out) == 0;
    count += VRKS_DevSrv_GetCustomizeName(out) == 0;
    count += VRKS_DevSrv_GetImsiInfo(out) == 0;
    count += VRKS_DevSrv_GetMultiModeCardStatus((unsigned char*)out, 0, 0, (unsigned int*)(void*)out) == 0;
    count += VRKS_NetSrv_GetSysInfoEx(out) == 0;
    count += VRKS_NetConnectSrv_DSGetProfile(out) == 0;
    count += vrks_simulated_active();
    count += vrks_simulated_set("IMSI", "1") == 0;
    count += vrks_simulated_raise_event(1) == 0;
    count += vrks_simulated_wait_events() == 0;
    count += vrks_simulated_reset() == 0;
    count += vrks_simulated_change("IMSI", "1") == 0;
    count += vrks_simulated_drop(0) == 0;
    count += laterCalls();
    return count + (memcmp(out, untouched, sizeof out) != 0);
}

static atomic_int entered;
static atomic_int forked;

/* Holds the event thread within it until the process has forked. */
static int untilForked(int event, void* data) {
    (void)data;
    entered = 1;
    while (!forked) thrd_sleep(&(struct timespec){.tv_nsec = 1000000}, 0);
    return event;
}

/* The child must neither wait for the parent's threads nor end with them. */
static int inChild(void) {
    int status = 0;
    pid_t child;
    unsigned short* directory = 0;
    if (VRKS_DevSrv_RegisterDevInitEventCallback(untilForked) != 0) return 1;
    vrks_simulated_raise_event(7);
    while (!entered) thrd_yield();
    child = fork();
    if (child == 0) exit(callsThatDidAnything() + (VRKS_GetUserDataDirectory(&directory) != 0));
    forked = 1;
    if (child < 0 || waitpid(child, &status, 0) != child || !WIFEXITED(status)) return 1;
    return WEXITSTATUS(status);
}

static int status(void) {
    int value = 0;
    return VRKS_DevSrv_GetDevStatus(&value) == 0 ? value : 9;
}

int main(int count, char** arguments) {
    const char* problem = "unset";
    const char* name;
    if (count > 1 && strcmp(arguments[1], "fork") == 0) return inChild();
    if (count > 1 && strcmp(arguments[1], "status") == 0) return status();
    if (count > 1) return endEarly(strcmp(arguments[1], "within") == 0 ? endWithin : slowly);
    name = vrks_backend_name(&problem);
    printf("%s|%s", name ? name : "failed", problem ? problem : "");
    return callsThatDidAnything();
}
