// SPDX-License-Identifier: MIT
#include "Failures.h"

#include <cstring>

#include "vrks.h"

namespace {

// In the order of their values.
const char* const Names[] = {
    "none",
    "cancelled",
    "bad-request",
    "no-modem",
    "not-ready",
    "in-use",
    "authentication-failed",
    "not-subscribed",
    "refused",
    "dropped",
    "link-not-started",
    "no-carrier",
    "busy",
    "no-dial-tone",
    "no-answer",
    "apn-refused",
    "not-registered",
    "registration-denied",
    "no-card",
    "locked",
    "wrong-card",
    "wrong-pin",
    "modem-gone",
    "no-modem-service",
    "no-network-service",
    "suspended",
    "taken",
    "credentials-missing",
    "ended-outside",
    "not-allowed",
    "other",
    "hung-up",
    "stuck",
};

static_assert(sizeof Names / sizeof *Names == VRKS_FAILURE_COUNT, "each failure has a name");

}  // namespace

const char* failureName(int failure) { return failure >= 0 && failure < VRKS_FAILURE_COUNT ? Names[failure] : nullptr; }

std::optional<int> failureNamed(const char* name) {
    for (int failure = 0; failure < VRKS_FAILURE_COUNT; ++failure)
        if (std::strcmp(Names[failure], name) == 0) return failure;
    return std::nullopt;
}
