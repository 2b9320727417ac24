/* SPDX-License-Identifier: MIT */
/* Drives the simulated modems while the process runs: tests and the host's modem panel.
 *
 * Every call is safe from any thread, and fails (non-zero) unless the backend is "simulated".
 * At start the modems and their network are as the ORBISDIAL_SIM_* environment variables describe them; names below
 * are theirs without the prefix. Without any there is one modem, a ready GSM one with a card, without a customisation
 * name and without a data-service profile, registered in its home network; dialling succeeds. A connection ends with
 * the process, whatever was asked for.
 *
 * Of the first modem, and with "2_" before the name of the second:
 *   IMSI             an empty variable, or null: no card
 *   STATUS           VRKS_DEV_STATUS_...; a ready modem whose card is locked answers VRKS_DEV_STATUS_LOCKED
 *   CUSTOMIZE_NAME, PRODUCT_TYPE, MULTI_MODE, CARD_MODE, SYS_MODE, SYS_SUBMODE   as the queries answer
 *   DS_USER, DS_PASSWORD   the data-service profile; needs one of its two variables, the other is then empty
 *   PRESENT          0 or 1 (the first modem's preset)
 *   PORT, MANUFACTURER, MODEL, IMEI, OWN_NUMBER, CARD_OPERATOR, GID1, OPERATOR_NAME, OPERATOR_CODE, TECHNOLOGY,
 *   GENERATION, SIGNAL, HAS_USSD   as in VRKS_ModemInfo
 *   REGISTRATION     unknown, idle, searching, home, roaming, denied
 *   LOCK             none, pin, puk, other
 *   PIN, PUK         what unlocks: 1234 and 12345678
 *   PIN_ATTEMPTS, PUK_ATTEMPTS   left: 3 and 10
 * Of unlocking, dialling and USSD, whatever the modem; ..._MS are milliseconds up to 600000:
 *   UNLOCK, UNLOCK_MS        checks, not-allowed, other; how long it takes
 *   DIAL                     answers, or a failure's name; also authentication-fails and no-signal
 *   DIAL_USER, DIAL_PASSWORD, DIAL_APN   when set, what alone the network accepts
 *   DIAL_WORDS               the network's own words for a failure
 *   DIAL_MS, HANG_UP_MS      how long they take
 *   DIAL_DROP_MS             the connection drops after so long; 0: never
 *   REFUSE_HANG_UP           1: hanging up fails; 2: it is refused as not allowed, after HANG_UP_MS
 *   RATE                     bytes that a connection receives in a second; an eighth is sent
 *   USED_BY                  the other program whose connection uses the modem
 *   USSD                     answers, asks, not-supported, network, timeout, not-allowed, other
 *   USSD_TEXT, USSD_QUESTION what the network answers and asks
 *   USSD_MS                  how long it takes
 *   USSD_PATIENCE_MS         how long it waits when it asks, before it ends the session; 0: for ever
 * A number variable that holds none, and a word that is none of those, makes the query behind it fail or its value
 * unknown.
 */
#ifndef ORBISDIAL_VRKS_SIMULATED_H
#define ORBISDIAL_VRKS_SIMULATED_H

#include "vrks.h"

#ifdef __cplusplus
extern "C" {
#endif

/* 1 when the simulated modem is in use, else 0. Unlike the other calls not a status. Never loads another backend. */
VRKS_API int vrks_simulated_active(void);

/* The name of the backend in use: "simulated", "modemmanager", "none", or null when the one asked for can't be had.
 * Then *problem (when not null) says why, else it becomes null. Both texts live as long as the process. */
VRKS_API const char* vrks_backend_name(const char** problem);

/* Sets one value by its name. A null value makes the query behind it fail, or its value unknown. Raises no event.
 * Fails for an unknown name, and for a value that the setting can't hold. */
VRKS_API long vrks_simulated_set(const char* name, const char* value);

/* The same with the events that a real modem's change raises; a connection ends when its modem is no longer ready. */
VRKS_API long vrks_simulated_change(const char* name, const char* value);

/* The name and the value of the setting with this number, counted from 0, each at most VRKS_TEXT_SIZE bytes with the
 * zero; a value that is taken away is empty. The order is always the same; a failure behind the last. */
VRKS_API long vrks_simulated_get_at(unsigned int index, char* name, char* value);

/* Raises an event of VRKS_DevInitEventCallback on the SDK's thread and returns at once. Each one is delivered,
 * however many wait already. */
VRKS_API long vrks_simulated_raise_event(int event);

/* Returns when every event raised before this call was delivered, but for those that are kept since nobody listens.
 * Fails within a callback. */
VRKS_API long vrks_simulated_wait_events(void);

/* Ends the connection or the dialling at once with a failure's name; null: "dropped". Fails when there is none. */
VRKS_API long vrks_simulated_drop(const char* failure);

/* Fills the record, whose size needs not be set, with what was dialled last. Its texts stay until the same thread
 * calls this again. Fails before the first dialling. */
VRKS_API long vrks_simulated_dialled(VRKS_DialRequest* request);

/* Sets everything back to what the environment says, as at the start. Raises no event. */
VRKS_API long vrks_simulated_reset(void);

#ifdef __cplusplus
}
#endif

#endif
