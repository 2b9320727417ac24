/* A program in C on the device SDK. Without an argument it prints the backend's name and the problem, and
 * ends with the number of device calls that did anything. With one it ends while events are on their way:
 * "within" a callback, or else from main. */
#include <stdatomic.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <threads.h>
#include <time.h>

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
    return count + (memcmp(out, untouched, sizeof out) != 0);
}

int main(int count, char** arguments) {
    const char* problem = "unset";
    const char* name;
    if (count > 1) return endEarly(strcmp(arguments[1], "within") == 0 ? endWithin : slowly);
    name = vrks_backend_name(&problem);
    printf("%s|%s", name ? name : "failed", problem ? problem : "");
    return callsThatDidAnything();
}
