// SPDX-License-Identifier: MIT
#include "ConnectionFailure.h"

#include <algorithm>

#include "../vrks.h"
#include "Ref.h"

namespace {

struct ReasonRow {
    unsigned reason;
    int failure;
    int failureOnceUp;
};

// A line that breaks looks like one that could not be had; only the time tells them apart.
const ReasonRow Reasons[] = {
    {NM_DEVICE_STATE_REASON_NONE, VRKS_FAILURE_OTHER, VRKS_FAILURE_DROPPED},
    {NM_DEVICE_STATE_REASON_UNKNOWN, VRKS_FAILURE_OTHER, VRKS_FAILURE_DROPPED},
    {NM_DEVICE_STATE_REASON_PPP_DISCONNECT, VRKS_FAILURE_REFUSED, VRKS_FAILURE_DROPPED},
    {NM_DEVICE_STATE_REASON_PPP_FAILED, VRKS_FAILURE_REFUSED, VRKS_FAILURE_DROPPED},
    {NM_DEVICE_STATE_REASON_PPP_START_FAILED, VRKS_FAILURE_LINK, VRKS_FAILURE_LINK},
    {NM_DEVICE_STATE_REASON_MODEM_NO_CARRIER, VRKS_FAILURE_NO_CARRIER, VRKS_FAILURE_DROPPED},
    {NM_DEVICE_STATE_REASON_MODEM_DIAL_FAILED, VRKS_FAILURE_NO_CARRIER, VRKS_FAILURE_DROPPED},
    {NM_DEVICE_STATE_REASON_IP_CONFIG_EXPIRED, VRKS_FAILURE_OTHER, VRKS_FAILURE_DROPPED},
    {NM_DEVICE_STATE_REASON_CARRIER, VRKS_FAILURE_OTHER, VRKS_FAILURE_DROPPED},
    {NM_DEVICE_STATE_REASON_MODEM_BUSY, VRKS_FAILURE_BUSY, VRKS_FAILURE_BUSY},
    {NM_DEVICE_STATE_REASON_MODEM_NO_DIAL_TONE, VRKS_FAILURE_NO_DIAL_TONE, VRKS_FAILURE_NO_DIAL_TONE},
    {NM_DEVICE_STATE_REASON_MODEM_DIAL_TIMEOUT, VRKS_FAILURE_NO_ANSWER, VRKS_FAILURE_NO_ANSWER},
    {NM_DEVICE_STATE_REASON_GSM_APN_FAILED, VRKS_FAILURE_APN, VRKS_FAILURE_APN},
    {NM_DEVICE_STATE_REASON_GSM_REGISTRATION_TIMEOUT, VRKS_FAILURE_NOT_REGISTERED, VRKS_FAILURE_NOT_REGISTERED},
    {NM_DEVICE_STATE_REASON_GSM_REGISTRATION_NOT_SEARCHING, VRKS_FAILURE_NOT_REGISTERED, VRKS_FAILURE_NOT_REGISTERED},
    {NM_DEVICE_STATE_REASON_GSM_REGISTRATION_FAILED, VRKS_FAILURE_NOT_REGISTERED, VRKS_FAILURE_NOT_REGISTERED},
    {NM_DEVICE_STATE_REASON_GSM_REGISTRATION_DENIED, VRKS_FAILURE_REGISTRATION_DENIED,
     VRKS_FAILURE_REGISTRATION_DENIED},
    {NM_DEVICE_STATE_REASON_GSM_SIM_NOT_INSERTED, VRKS_FAILURE_NO_CARD, VRKS_FAILURE_NO_CARD},
    {NM_DEVICE_STATE_REASON_GSM_SIM_PIN_REQUIRED, VRKS_FAILURE_LOCKED, VRKS_FAILURE_LOCKED},
    {NM_DEVICE_STATE_REASON_GSM_SIM_PUK_REQUIRED, VRKS_FAILURE_LOCKED, VRKS_FAILURE_LOCKED},
    {NM_DEVICE_STATE_REASON_GSM_SIM_WRONG, VRKS_FAILURE_WRONG_CARD, VRKS_FAILURE_WRONG_CARD},
    {NM_DEVICE_STATE_REASON_GSM_PIN_CHECK_FAILED, VRKS_FAILURE_WRONG_PIN, VRKS_FAILURE_WRONG_PIN},
    {NM_DEVICE_STATE_REASON_SIM_PIN_INCORRECT, VRKS_FAILURE_WRONG_PIN, VRKS_FAILURE_WRONG_PIN},
    {NM_DEVICE_STATE_REASON_REMOVED, VRKS_FAILURE_MODEM_GONE, VRKS_FAILURE_MODEM_GONE},
    {NM_DEVICE_STATE_REASON_MODEM_NOT_FOUND, VRKS_FAILURE_MODEM_GONE, VRKS_FAILURE_MODEM_GONE},
    {NM_DEVICE_STATE_REASON_MODEM_FAILED, VRKS_FAILURE_MODEM_GONE, VRKS_FAILURE_MODEM_GONE},
    {NM_DEVICE_STATE_REASON_MODEM_MANAGER_UNAVAILABLE, VRKS_FAILURE_NO_MODEM_SERVICE, VRKS_FAILURE_NO_MODEM_SERVICE},
    {NM_DEVICE_STATE_REASON_SLEEPING, VRKS_FAILURE_SUSPENDED, VRKS_FAILURE_SUSPENDED},
    {NM_DEVICE_STATE_REASON_NEW_ACTIVATION, VRKS_FAILURE_TAKEN, VRKS_FAILURE_TAKEN},
    {NM_DEVICE_STATE_REASON_NO_SECRETS, VRKS_FAILURE_CREDENTIALS_MISSING, VRKS_FAILURE_CREDENTIALS_MISSING},
    {NM_DEVICE_STATE_REASON_USER_REQUESTED, VRKS_FAILURE_ENDED_OUTSIDE, VRKS_FAILURE_ENDED_OUTSIDE},
    {NM_DEVICE_STATE_REASON_CONNECTION_REMOVED, VRKS_FAILURE_ENDED_OUTSIDE, VRKS_FAILURE_ENDED_OUTSIDE},
};

// ModemManager takes the port for one that carries a call.
constexpr char StuckError[] = ".Core.Connected";

struct NameRow {
    const char* ending;  // of the error's name
    int failure;
};

// NetworkManager hides these behind "unknown" or "no carrier".
const NameRow BearerErrors[] = {
    {".PdpAuthFailure", VRKS_FAILURE_AUTHENTICATION},
    {".UserAuthenticationFailed", VRKS_FAILURE_AUTHENTICATION},
    {".ServiceOptionNotSubscribed", VRKS_FAILURE_NOT_SUBSCRIBED},
    {".MissingOrUnknownApn", VRKS_FAILURE_APN},
    {".RequestedApnNotSupported", VRKS_FAILURE_APN},
    {StuckError, VRKS_FAILURE_STUCK},
    {".Connection.Busy", VRKS_FAILURE_BUSY},
    {".Connection.NoDialtone", VRKS_FAILURE_NO_DIAL_TONE},
    {".Connection.NoAnswer", VRKS_FAILURE_NO_ANSWER},
};

const NameRow CallErrors[] = {
    {".PermissionDenied", VRKS_FAILURE_NOT_ALLOWED},      {".AccessDenied", VRKS_FAILURE_NOT_ALLOWED},
    {".ServiceUnknown", VRKS_FAILURE_NO_NETWORK_SERVICE}, {".NameHasNoOwner", VRKS_FAILURE_NO_NETWORK_SERVICE},
    {".NoReply", VRKS_FAILURE_NO_NETWORK_SERVICE},        {".Disconnected", VRKS_FAILURE_NO_NETWORK_SERVICE},
    {".UnknownDevice", VRKS_FAILURE_MODEM_GONE},
};

bool endsWith(const std::string& text, const std::string& ending) {
    return text.size() >= ending.size() && text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
}

template <std::size_t Count>
int failureOfName(const NameRow (&rows)[Count], const std::string& name) {
    const auto* row = std::find_if(rows, rows + Count, [&](const NameRow& one) { return endsWith(name, one.ending); });
    return row == rows + Count ? VRKS_FAILURE_NONE : row->failure;
}

int failureOfReason(unsigned reason, bool wasUp) {
    const auto* row = std::find_if(std::begin(Reasons), std::end(Reasons),
                                   [=](const ReasonRow& one) { return one.reason == reason; });
    if (row == std::end(Reasons)) return VRKS_FAILURE_OTHER;
    return wasUp ? row->failureOnceUp : row->failure;
}

std::string wordsOf(unsigned reason) {
    return textOf(Text(nm_utils_enum_to_str(NM_TYPE_DEVICE_STATE_REASON, int(reason))).get());
}

// What a bearer said explains these; the others explain themselves.
bool isVague(int failure) { return failure == VRKS_FAILURE_OTHER || failure == VRKS_FAILURE_NO_CARRIER; }

// What the device says while it is being taken away.
bool isCommonAtRemoval(int failure) {
    return isVague(failure) || failure == VRKS_FAILURE_ENDED_OUTSIDE || failure == VRKS_FAILURE_DROPPED ||
           failure == VRKS_FAILURE_REFUSED;
}

}  // namespace

// An attempt with each version of IP may have been made, and the telling error need not be the last.
Failure failureOf(const Ending& ending) {
    int failure = failureOfReason(ending.reason, ending.wasUp);
    if (ending.isDeviceGone && isCommonAtRemoval(failure)) return {VRKS_FAILURE_MODEM_GONE, {}};
    if (!isVague(failure)) return {failure, wordsOf(ending.reason)};
    for (const NamedError& error : ending.bearerErrors)
        if (const int told = failureOfName(BearerErrors, error.name)) return {told, error.words};
    const bool hasSpoken = !ending.bearerErrors.empty() && !ending.bearerErrors.back().words.empty();
    return {failure, hasSpoken ? ending.bearerErrors.back().words : wordsOf(ending.reason)};
}

bool isStuck(const std::vector<NamedError>& bearerErrors) {
    return std::any_of(bearerErrors.begin(), bearerErrors.end(),
                       [](const NamedError& error) { return endsWith(error.name, StuckError); });
}

Failure failureOf(const NamedError& error) {
    const int failure = failureOfName(CallErrors, error.name);
    return {failure ? failure : VRKS_FAILURE_OTHER, error.words};
}

Failure failureOf(const GError* error) {
    const Text name(g_dbus_error_get_remote_error(error));
    const Error copy(g_error_copy(error));
    g_dbus_error_strip_remote_error(copy.get());
    if (g_error_matches(error, NM_CLIENT_ERROR, NM_CLIENT_ERROR_MANAGER_NOT_RUNNING))
        return {VRKS_FAILURE_NO_NETWORK_SERVICE, copy->message};
    if (g_error_matches(error, G_IO_ERROR, G_IO_ERROR_TIMED_OUT))
        return {VRKS_FAILURE_NO_NETWORK_SERVICE, NetworkHangs};
    return failureOf(NamedError{textOf(name.get()), copy->message});
}
