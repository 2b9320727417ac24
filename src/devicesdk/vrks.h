/* SPDX-License-Identifier: MIT */
/* Device SDK: what the connection manager asks a mobile-broadband modem and its SIM card, and how it connects.
 *
 * Every call returns 0 on success and another value on failure; a failing call writes nothing, so
 * callers preset their outputs. Every call is safe from any thread. Events arrive on the SDK's own thread.
 * Texts are UTF-8 and end with a zero; one that is longer than its place is cut between two characters.
 *
 * The backend is chosen once per process from the environment variable ORBISDIAL_DEVICE: "simulated",
 * "modemmanager", "none" or "auto" (the default: "modemmanager" where there is one, else "none"). On "none" every
 * device call fails; the user data directory is there on every backend.
 *
 * The first query of a process waits for the first complete picture of the modems, at most
 * ORBISDIAL_DEVICE_WAIT_MS milliseconds (1000 when it is not set), counted once for the process; no later call waits
 * for anything.
 *
 * A child made by fork() has neither the SDK's threads nor the modem: there every device call fails at once when
 * the parent had used the SDK, until the child calls exec().
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
#define VRKS_MODEM_ID_SIZE 256
#define VRKS_TEXT_SIZE 128
#define VRKS_WORDS_SIZE 512  /* of a sentence in somebody else's words */
#define VRKS_NAME_SIZE 1024  /* of a profile's or a program's name */
#define VRKS_ADDRESS_SIZE 46 /* an IPv6 address as text */
#define VRKS_USSD_SIZE 1024  /* 182 characters at most, 3GPP TS 23.038 and TS 24.090 */
#define VRKS_DNS_COUNT 4

/* Where the two records of old have their members, in bytes. */
#define VRKS_SYSINFO_MODE_OFFSET 4
#define VRKS_SYSINFO_SUBMODE_OFFSET 20
#define VRKS_DSPROFILE_USER_OFFSET 0
#define VRKS_DSPROFILE_PASSWORD_OFFSET 256
#define VRKS_DSPROFILE_TEXT_SIZE 256

/* Events of VRKS_DevInitEventCallback. */
#define VRKS_EVENT_DEV_DEVICE_INIT_FINISH 6014 /* the modem became ready; ask its status */
#define VRKS_EVENT_DEV_CARD_CHANGED 6016       /* another modem, card or mode of it while ready, or ready no more */

/* Of VRKS_DevSrv_GetDevStatus. */
#define VRKS_DEV_STATUS_NO_MODEM 0
#define VRKS_DEV_STATUS_STARTING 1
#define VRKS_DEV_STATUS_LOCKED 2 /* its card wants a PIN or PUK */
#define VRKS_DEV_STATUS_READY 3
#define VRKS_DEV_STATUS_FAILED 4 /* without a card, or broken */

#define VRKS_PRODUCT_TYPE_CDMA 1 /* of VRKS_DevSrv_GetProductType */

/* Of VRKS_NetSrv_GetSysInfoEx. CDMA's sub-modes from the first to the last here are those of eHRPD. */
#define VRKS_SYSTEM_MODE_NONE 0 /* no network */
#define VRKS_SYSTEM_MODE_CDMA 2
#define VRKS_SYSTEM_SUBMODE_EHRPD_FIRST 31
#define VRKS_SYSTEM_SUBMODE_EHRPD_LAST 36

typedef int (*VRKS_DevInitEventCallback)(int event, void* data);

/* Adds a callback; one that is registered already is a failure. */
VRKS_API long VRKS_DevSrv_RegisterDevInitEventCallback(VRKS_DevInitEventCallback callback);

/* Removes a callback; one that is not registered is a failure. Returns only when it is not running and will not run
 * again, unless it is called from within the callback itself; so hold no lock that the callback takes. */
VRKS_API long VRKS_DevSrv_UnRegisterDevInitEventCallback(VRKS_DevInitEventCallback callback);

/* The modem's status, 32 bits, one of VRKS_DEV_STATUS_...; a failure when nothing can tell, as without the service
 * that knows the modems. */
VRKS_API long VRKS_DevSrv_GetDevStatus(int* status);

/* The modem's customisation name, at most VRKS_CUSTOMIZE_NAME_SIZE bytes with the zero. Empty when it has none. */
VRKS_API long VRKS_DevSrv_GetCustomizeName(char* name);

/* The product type, 32 bits; 1 means CDMA. */
VRKS_API long VRKS_DevSrv_GetProductType(int* type);

/* The SIM's IMSI in decimal digits, at most VRKS_IMSI_SIZE bytes with the zero. */
VRKS_API long VRKS_DevSrv_GetImsiInfo(char* imsi);

/* Whether the card serves both CDMA and WCDMA, and in which mode it is: 0 none, 2 CDMA, others WCDMA.
 * The two pointers between are reserved: pass null. */
VRKS_API long VRKS_DevSrv_GetMultiModeCardStatus(unsigned char* isMultiMode, void*, void*, unsigned int* cardMode);

/* Fills VRKS_SYSINFO_SIZE bytes: 32-bit system mode and sub-mode at their offsets. */
VRKS_API long VRKS_NetSrv_GetSysInfoEx(void* record);

/* Fills VRKS_DSPROFILE_SIZE bytes: user name and password at their offsets, each UTF-8 text of at most
 * VRKS_DSPROFILE_TEXT_SIZE bytes that need not end with a zero when it fills its place. */
VRKS_API long VRKS_NetConnectSrv_DSGetProfile(void* record);

/* Stores the user data directory, absolute, UTF-16 with a terminating zero, ends with '/'. The caller frees
 * it with delete[]. It is $ORBISDIAL_DATA_DIR, or else "orbisdial" under the XDG data home, asked for at each
 * call, and made with mode 0700 when it is missing; failure when it can't be had. */
VRKS_API long VRKS_GetUserDataDirectory(unsigned short** directory);

/* Modems, data connections and what belongs to them.
 *
 * A record begins with its size in bytes, which the caller sets before the call: so a program that was built with an
 * older, shorter record gets the members it knows, and a newer one finds the members that the SDK does not know
 * zero. A size that does not even hold the first member behind it is a failure. */

/* Events of VRKS_EventCallback. They tell that something changed; what it is now, a query answers. Of each kind at
 * most one waits for delivery, and when there is no callback it is kept for the first that registers. */
#define VRKS_EVENT_MODEM_LIST_CHANGED 1  /* of VRKS_DevSrv_GetModemAt */
#define VRKS_EVENT_MODEM_CHANGED 2       /* of VRKS_DevSrv_GetModemInfo, another modem in use included */
#define VRKS_EVENT_SYSTEM_MODE_CHANGED 3 /* of VRKS_NetSrv_GetSysInfoEx */
#define VRKS_EVENT_UNLOCK_RESULT 4       /* VRKS_ModemInfo.unlockResult tells it */
#define VRKS_EVENT_CONNECTION_CHANGED 5  /* of VRKS_NetConnectSrv_GetConnection, but for its counters */
#define VRKS_EVENT_USSD_RESULT 6         /* of VRKS_NetSrv_GetUssd */

/* data is what was given at the registration. */
typedef void (*VRKS_EventCallback)(int event, void* data);

/* Adds a callback with the pointer that it gets; the same pair twice is a failure. */
VRKS_API long VRKS_DevSrv_RegisterEventCallback(VRKS_EventCallback callback, void* data);

/* Removes the pair, on the terms of VRKS_DevSrv_UnRegisterDevInitEventCallback. */
VRKS_API long VRKS_DevSrv_UnRegisterEventCallback(VRKS_EventCallback callback, void* data);

/* The key of a modem, counted from 0, in the keys' order, at most VRKS_MODEM_ID_SIZE bytes with the zero; a failure
 * behind the last. It stays the same when the modem is unplugged and plugged in again. The list may change between
 * two calls. */
VRKS_API long VRKS_DevSrv_GetModemAt(unsigned int index, char* id);

/* Uses the modem with this key, now or when it comes; null or an empty text selects automatically: the one that
 * $ORBISDIAL_MODEM names (by key, IMEI or port), else the present one while it is ready, else the first ready one in
 * the keys' order, else the first. Neither waits nor fails for a modem that is not there; a key that is too long fails.
 */
VRKS_API long VRKS_DevSrv_SelectModem(const char* id);

enum { VRKS_CARD_UNKNOWN, VRKS_CARD_NONE, VRKS_CARD_PRESENT };

/* What the card asks for, 3GPP TS 27.007 (AT+CPIN); OTHER: a lock that neither PIN nor PUK opens. */
enum { VRKS_LOCK_NONE, VRKS_LOCK_PIN, VRKS_LOCK_PUK, VRKS_LOCK_OTHER };

/* 3GPP TS 27.007 (AT+CREG, +CGREG, +CEREG). */
enum {
    VRKS_REGISTRATION_UNKNOWN,
    VRKS_REGISTRATION_IDLE, /* not registered and not searching */
    VRKS_REGISTRATION_SEARCHING,
    VRKS_REGISTRATION_HOME,
    VRKS_REGISTRATION_ROAMING,
    VRKS_REGISTRATION_DENIED
};

/* Of the last VRKS_DevSrv_EnterPin or VRKS_DevSrv_EnterPuk. */
enum {
    VRKS_UNLOCK_NONE, /* never asked for */
    VRKS_UNLOCK_PENDING,
    VRKS_UNLOCK_DONE,
    VRKS_UNLOCK_WRONG,       /* the card refused it and counted it */
    VRKS_UNLOCK_NOT_ALLOWED, /* this user may not */
    VRKS_UNLOCK_OTHER        /* unlockWords may tell */
};

typedef struct VRKS_ModemInfo {
    unsigned int size;
    int status;       /* VRKS_DEV_STATUS_... */
    int isSelected;   /* 1 for the modem in use */
    int card;         /* VRKS_CARD_... */
    int lock;         /* VRKS_LOCK_... */
    int attempts;     /* left before the lock in force closes for good or asks for the PUK; -1: unknown */
    int unlockResult; /* VRKS_UNLOCK_... */
    int registration; /* VRKS_REGISTRATION_... */
    int generation;   /* 2 to 5; 0: unknown or not registered */
    int signal;       /* percent; -1: unknown */
    int dialsAsCdma;  /* 1 when it dials as 3GPP2 devices do */
    int hasUssd;      /* 1 when it can send USSD commands */

    char id[VRKS_MODEM_ID_SIZE];       /* its key; empty: no modem */
    char port[VRKS_TEXT_SIZE];         /* its main port's name, such as "ttyUSB2" or "cdc-wdm0" */
    char manufacturer[VRKS_TEXT_SIZE]; /* and model: as the modem names them */
    char model[VRKS_TEXT_SIZE];
    char imei[VRKS_TEXT_SIZE];         /* IMEI, or MEID or ESN of a CDMA modem */
    char ownNumber[VRKS_TEXT_SIZE];    /* MSISDN; often not on the card, then empty */
    char cardOperator[VRKS_TEXT_SIZE]; /* the card's own operator's name: EF SPN, 3GPP TS 31.102 */
    char gid1[VRKS_TEXT_SIZE];         /* EF GID1, hexadecimal */
    char operatorName[VRKS_TEXT_SIZE]; /* of the network it is registered with */
    char operatorCode[VRKS_TEXT_SIZE]; /* its MCC and MNC, 5 or 6 digits, or CDMA's SID */
    char technology[VRKS_TEXT_SIZE];   /* such as "LTE" or "HSPA" */
    char unlockWords[VRKS_WORDS_SIZE]; /* why the last unlocking failed, in the modem service's words */
} VRKS_ModemInfo;

/* The modem in use; without one VRKS_DEV_STATUS_NO_MODEM, all else empty. Fails while the service does not answer. */
VRKS_API long VRKS_DevSrv_GetModemInfo(VRKS_ModemInfo* info);

/* The modem with this key; a failure when it is not there. */
VRKS_API long VRKS_DevSrv_GetModemInfoOf(const char* id, VRKS_ModemInfo* info);

/* Unlocks the card of the modem in use with its PIN, 4 to 8 digits (3GPP TS 31.101). Returns at once;
 * VRKS_EVENT_UNLOCK_RESULT tells the outcome. Fails, and nothing is counted, when it is no PIN, the card does not ask
 * for one, or an unlocking is on its way. A wrong one costs one of the attempts. */
VRKS_API long VRKS_DevSrv_EnterPin(const char* pin);

/* The same for a card that asks for its PUK, 8 digits, and gets a new PIN with it. After the last wrong PUK the card
 * is lost. */
VRKS_API long VRKS_DevSrv_EnterPuk(const char* puk, const char* newPin);

enum {
    VRKS_CONNECTION_DOWN,
    VRKS_CONNECTION_DIALLING,
    VRKS_CONNECTION_UP,
    VRKS_CONNECTION_HANGING_UP /* giving up a dialling included */
};

/* How far dialling is. */
enum {
    VRKS_STEP_NONE, /* not dialling */
    VRKS_STEP_PREPARING,
    VRKS_STEP_REGISTERING, /* searching the network, which may take a minute */
    VRKS_STEP_CONNECTING,
    VRKS_STEP_ADDRESSING /* asking for an address */
};

/* Why the last dialling or connection ended. Text names: VRKS_NetConnectSrv_GetFailureName. */
enum {
    VRKS_FAILURE_NONE,
    VRKS_FAILURE_CANCELLED,   /* hung up before it was up */
    VRKS_FAILURE_BAD_REQUEST, /* a value that can't be dialled with; words names the member */
    VRKS_FAILURE_NO_MODEM,
    VRKS_FAILURE_NOT_READY,      /* the modem starts, or failed */
    VRKS_FAILURE_IN_USE,         /* by another program's connection */
    VRKS_FAILURE_AUTHENTICATION, /* user name or password wrong */
    VRKS_FAILURE_NOT_SUBSCRIBED, /* the service is not subscribed */
    VRKS_FAILURE_REFUSED,        /* user name, password or APN: the network does not say which */
    VRKS_FAILURE_DROPPED,        /* after it was up */
    VRKS_FAILURE_LINK,           /* the link could not be started */
    VRKS_FAILURE_NO_CARRIER,
    VRKS_FAILURE_BUSY,
    VRKS_FAILURE_NO_DIAL_TONE,
    VRKS_FAILURE_NO_ANSWER,
    VRKS_FAILURE_APN,            /* the network refuses the access point name */
    VRKS_FAILURE_NOT_REGISTERED, /* with any network */
    VRKS_FAILURE_REGISTRATION_DENIED,
    VRKS_FAILURE_NO_CARD,
    VRKS_FAILURE_LOCKED, /* the card wants a PIN or PUK */
    VRKS_FAILURE_WRONG_CARD,
    VRKS_FAILURE_WRONG_PIN,
    VRKS_FAILURE_MODEM_GONE,          /* removed or failed */
    VRKS_FAILURE_NO_MODEM_SERVICE,    /* the service that knows the modems is not running */
    VRKS_FAILURE_NO_NETWORK_SERVICE,  /* the service that connects is not there, or hangs */
    VRKS_FAILURE_SUSPENDED,           /* the computer went to sleep */
    VRKS_FAILURE_TAKEN,               /* another program took the modem */
    VRKS_FAILURE_CREDENTIALS_MISSING, /* the network wants user name and password */
    VRKS_FAILURE_ENDED_OUTSIDE,       /* ended by somebody else */
    VRKS_FAILURE_NOT_ALLOWED,         /* this user may not */
    VRKS_FAILURE_OTHER,               /* words may tell */
    VRKS_FAILURE_HUNG_UP,             /* by the user, in another program of ours */
    VRKS_FAILURE_STUCK,               /* the modem hangs in a call of before, until it is plugged in anew */
    VRKS_FAILURE_COUNT
};

/* What to dial with. Texts belong to the caller, may be null for empty, and are copied before the call returns. */
typedef struct VRKS_DialRequest {
    unsigned int size;
    int allowsChap; /* of PPP's authentication: 1 for yes; both 0 leaves it to the network */
    int allowsPap;
    int endsWithProcess; /* 1: the connection does not outlive this process */
    const char* name;    /* of the profile, by which other programs of ours know the connection; not empty */
    const char* number;  /* used by what dials as CDMA only */
    const char* apn;     /* access point name, 3GPP TS 23.003; empty: automatic */
    const char* user;
    const char* password;
    const char* dns; /* IPv4 addresses; empty: the network's own */
    const char* alternativeDns;
} VRKS_DialRequest;

/* Begins a data connection with the modem in use. Returns at once; VRKS_EVENT_CONNECTION_CHANGED tells each step.
 * Fails when it can't begin, and the connection's record then tells the failure; but for a connection of ours that is
 * up or on its way: that one stays untouched and so does its record. */
VRKS_API long VRKS_NetConnectSrv_Dial(const VRKS_DialRequest* request);

/* Ends the connection, or gives the dialling up, which then ends as VRKS_FAILURE_CANCELLED; also one that another
 * process of ours began. Returns at once. Fails when there is none of ours: a process that was to dial stops then.
 * Where it is refused later, as to a user who may not, the connection is up again and its record tells why. */
VRKS_API long VRKS_NetConnectSrv_HangUp(void);

typedef struct VRKS_Connection {
    unsigned int size;
    int state;   /* VRKS_CONNECTION_..., of ours */
    int step;    /* VRKS_STEP_... */
    int failure; /* VRKS_FAILURE_...; while up: why hanging up was refused, else none; none after this process */
                 /* hung up */
    int isOwn;   /* 1 when this process began it */
    int endsWithProcess; /* 1 when it ends with the process that began it */
    long long since;     /* when it came up, seconds of Unix time; 0: unknown or not up. Of another process's: */
    long long seconds;   /* when its data session began, a moment before. How long, by a clock that nobody */
                         /* sets; -1: unknown or not up */
    unsigned long long received; /* bytes while up; the last counts once it is down */
    unsigned long long sent;

    char name[VRKS_NAME_SIZE];          /* of the profile; the last one's while down */
    char usedBy[VRKS_NAME_SIZE];        /* while down: whose connection uses the modem, if somebody else's does */
    char words[VRKS_WORDS_SIZE];        /* for the failure, the network's own, or the service's */
    char interfaceName[VRKS_TEXT_SIZE]; /* such as "ppp0" or "wwan0"; this and all below empty unless up */
    char address[VRKS_ADDRESS_SIZE];    /* IPv4 */
    char address6[VRKS_ADDRESS_SIZE];   /* IPv6 */
    char dns[VRKS_DNS_COUNT][VRKS_ADDRESS_SIZE]; /* the servers in force, the first ones */
    char imsi[VRKS_IMSI_SIZE]; /* of the SIM card that it goes through, 3GPP TS 23.003; empty: unknown */
} VRKS_Connection;

VRKS_API long VRKS_NetConnectSrv_GetConnection(VRKS_Connection* connection); /* fails while nothing can tell */

/* A failure's name for scripts and settings, such as "no-carrier"; a static text. Works on every backend. */
VRKS_API long VRKS_NetConnectSrv_GetFailureName(int failure, const char** name);

enum {
    VRKS_USSD_IDLE,
    VRKS_USSD_SENT,   /* waiting for the network */
    VRKS_USSD_ANSWER, /* the network answered, and ended the session */
    VRKS_USSD_ASKS,   /* the network asks back: answer or cancel */
    VRKS_USSD_FAILED  /* words may tell */
};

enum {
    VRKS_USSD_FAILURE_NONE,
    VRKS_USSD_FAILURE_NOT_SUPPORTED, /* by the modem or the network */
    VRKS_USSD_FAILURE_NETWORK,       /* refused or ended by the network */
    VRKS_USSD_FAILURE_TIMEOUT,
    VRKS_USSD_FAILURE_CANCELLED,
    VRKS_USSD_FAILURE_NOT_ALLOWED, /* this user may not */
    VRKS_USSD_FAILURE_OTHER,
    VRKS_USSD_FAILURE_MODEM_GONE,      /* or not ready any more */
    VRKS_USSD_FAILURE_NO_MODEM_SERVICE /* the service that knows the modems has ended */
};

typedef struct VRKS_Ussd {
    unsigned int size;
    int state;                   /* VRKS_USSD_... */
    int failure;                 /* VRKS_USSD_FAILURE_... */
    char text[VRKS_USSD_SIZE];   /* what the network said or asks */
    char words[VRKS_WORDS_SIZE]; /* for a failure */
} VRKS_Ussd;

/* Sends a USSD command, such as "*100#" (3GPP TS 22.090). Returns at once; VRKS_EVENT_USSD_RESULT tells that the
 * network answered, asks back, or that it failed; also when it speaks again or ends the session while it asks. Fails
 * when the modem in use is not ready, the text is empty or longer than 182 characters, or a session is open. */
VRKS_API long VRKS_NetSrv_SendUssd(const char* command);

/* Answers the network's question, on the same terms; fails unless it asks. */
VRKS_API long VRKS_NetSrv_AnswerUssd(const char* answer);

/* Begins to end the session; fails when there is none. VRKS_EVENT_USSD_RESULT tells that it has ended, at once or
 * when the modem was told, which takes three seconds at most. Until then no other one can begin. */
VRKS_API long VRKS_NetSrv_CancelUssd(void);

/* The last session: its state and the network's last text. */
VRKS_API long VRKS_NetSrv_GetUssd(VRKS_Ussd* ussd);

#ifdef __cplusplus
}
#endif

#endif
