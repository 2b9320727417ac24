/* Device SDK: what the connection manager asks a mobile-broadband modem and its SIM card.
 *
 * Every call returns 0 on success and another value on failure; a failing call writes nothing, so
 * callers preset their outputs. Every call is safe from any thread. Events arrive on the SDK's own thread.
 *
 * The backend is chosen once per process from the environment variable ORBISDIAL_DEVICE: "simulated",
 * "modemmanager", "none" or "auto" (the default). On "none" every device call fails; the user data
 * directory is there on every backend.
 */
#ifndef ORBISDIAL_VRKS_H
#define ORBISDIAL_VRKS_H

#ifdef __cplusplus
extern "C" {
#endif

#if defined(__GNUC__)
#define VRKS_API __attribute__((visibility("default")))
#else
#define VRKS_API
#endif

/* Buffer sizes in bytes, the terminating zero included. */
#define VRKS_CUSTOMIZE_NAME_SIZE 64
#define VRKS_IMSI_SIZE 16 /* an IMSI has at most 15 digits, 3GPP TS 23.003 */
#define VRKS_SYSINFO_SIZE 156
#define VRKS_DSPROFILE_SIZE 512

/* Events of the callback. */
#define VRKS_EVENT_DEV_DEVICE_INIT_FINISH 6014 /* the modem has finished initialising; ask its status */
#define VRKS_EVENT_DEV_CARD_CHANGED 6016       /* the SIM card changed */

#define VRKS_DEV_STATUS_READY 3  /* of VRKS_DevSrv_GetDevStatus */
#define VRKS_PRODUCT_TYPE_CDMA 1 /* of VRKS_DevSrv_GetProductType */

typedef int (*VRKS_DevInitEventCallback)(int event, void* data);

/* Adds a callback; one that is registered already is a failure. */
VRKS_API long VRKS_DevSrv_RegisterDevInitEventCallback(VRKS_DevInitEventCallback callback);

/* Removes a callback; one that is not registered is a failure. Returns only when it is not running and will not run
 * again, unless it is called from within the callback itself; so hold no lock that the callback takes. */
VRKS_API long VRKS_DevSrv_UnRegisterDevInitEventCallback(VRKS_DevInitEventCallback callback);

/* The modem's status, 32 bits; 3 means that it is ready. */
VRKS_API long VRKS_DevSrv_GetDevStatus(int* status);

/* The modem's customisation name, at most VRKS_CUSTOMIZE_NAME_SIZE bytes with the zero, UTF-8; a longer
 * one is cut between two characters. Empty when the modem has none. */
VRKS_API long VRKS_DevSrv_GetCustomizeName(char* name);

/* The product type, 32 bits; 1 means CDMA. */
VRKS_API long VRKS_DevSrv_GetProductType(int* type);

/* The SIM's IMSI in decimal digits, at most VRKS_IMSI_SIZE bytes with the zero. */
VRKS_API long VRKS_DevSrv_GetImsiInfo(char* imsi);

/* Whether the card serves both CDMA and WCDMA, and in which mode it is: 0 none, 2 CDMA, others WCDMA.
 * The two pointers between are reserved: pass null. */
VRKS_API long VRKS_DevSrv_GetMultiModeCardStatus(unsigned char* isMultiMode, void*, void*, unsigned int* cardMode);

/* Fills VRKS_SYSINFO_SIZE bytes: 32-bit system mode at offset 4, 32-bit system sub-mode at offset 20. */
VRKS_API long VRKS_NetSrv_GetSysInfoEx(void* record);

/* Fills VRKS_DSPROFILE_SIZE bytes: user name at offset 0, password at offset 256, each UTF-8 text of at
 * most 256 bytes that need not end with a zero when it fills its place. */
VRKS_API long VRKS_NetConnectSrv_DSGetProfile(void* record);

/* Stores the user data directory, absolute, UTF-16 with a terminating zero, ends with '/'. The caller frees
 * it with delete[]. It is $ORBISDIAL_DATA_DIR, or else "orbisdial" under the XDG data home, asked for at each
 * call, and made with mode 0700 when it is missing; failure when it can't be had. */
VRKS_API long VRKS_GetUserDataDirectory(unsigned short** directory);

#ifdef __cplusplus
}
#endif

#endif
