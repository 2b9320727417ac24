/* Drives the simulated modem while the process runs: tests and the host's modem panel.
 *
 * Every call is safe from any thread, and fails (non-zero) unless the backend is "simulated".
 * At start the modem is as the ORBISDIAL_SIM_* environment variables describe it; names below are theirs
 * without the prefix. Without any it is a ready GSM modem with a card, without a customisation name and without
 * a data-service profile. An empty IMSI variable means no card; a number variable that holds none makes its
 * query fail; a data-service profile needs one of its two variables, the other is then empty.
 */
#ifndef ORBISDIAL_VRKS_SIMULATED_H
#define ORBISDIAL_VRKS_SIMULATED_H

#include "vrks.h"

#ifdef __cplusplus
extern "C" {
#endif

/* 1 when the simulated modem is in use, else 0. Unlike the other calls not a status. */
VRKS_API int vrks_simulated_active(void);

/* The name of the backend in use: "simulated", "none", or null when the one asked for can't be had. Then
 * *problem (when not null) says why, else it becomes null. Both are static texts. */
VRKS_API const char* vrks_backend_name(const char** problem);

/* Sets one value: IMSI, STATUS, CUSTOMIZE_NAME, PRODUCT_TYPE, MULTI_MODE, CARD_MODE, SYS_MODE,
 * SYS_SUBMODE, DS_USER, DS_PASSWORD. A null value makes the query behind it fail. Raises no event.
 * Fails for an unknown name, and for a number that is none or that the query can't hold. */
VRKS_API long vrks_simulated_set(const char* name, const char* value);

/* Raises an event on the SDK's thread and returns at once. */
VRKS_API long vrks_simulated_raise_event(int event);

/* Returns when every event raised before this call was delivered. Fails within a callback. */
VRKS_API long vrks_simulated_wait_events(void);

/* Sets everything back to what the environment says. */
VRKS_API long vrks_simulated_reset(void);

#ifdef __cplusplus
}
#endif

#endif
