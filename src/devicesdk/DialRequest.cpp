// SPDX-License-Identifier: MIT
#include "DialRequest.h"

#include <arpa/inet.h>

#include <algorithm>

#include "Picture.h"
#include "Utf8.h"

namespace {

constexpr std::size_t LongestApn = 64;          // what the network service takes
constexpr std::size_t LongestCredential = 255;  // PPP has one byte for the length, RFC 1334

// Not std::isalnum: what a letter is must not depend on the locale.
bool isApnCharacter(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '.' || c == '_' ||
           c == '-';
}

bool isApn(const std::string& text) {
    return text.size() <= LongestApn && std::all_of(text.begin(), text.end(), isApnCharacter);
}

bool isCredential(const std::string& text) { return text.size() <= LongestCredential && isUtf8(text); }

bool isAddress(const std::string& text) {
    in_addr ignored;
    return ::inet_pton(AF_INET, text.c_str(), &ignored) == 1;
}

// The member that can't be dialled with; null when all can.
const char* badMember(const DialRequest& request) {
    if (request.name.empty() || request.name.size() >= VRKS_NAME_SIZE || !isUtf8(request.name)) return "name";
    if (!isUtf8(request.number)) return "number";
    if (!isApn(request.apn)) return "apn";
    if (!isCredential(request.user)) return "user";
    if (!isCredential(request.password)) return "password";
    return std::all_of(request.dns.begin(), request.dns.end(), isAddress) ? nullptr : "dns";
}

int modemFailure(const Picture& picture) {
    if (!picture.devStatus) return VRKS_FAILURE_NO_MODEM_SERVICE;
    if (picture.devStatus == VRKS_DEV_STATUS_NO_MODEM) return VRKS_FAILURE_NO_MODEM;
    const ModemInfo& modem = picture.modem();
    if (modem.card == VRKS_CARD_NONE) return VRKS_FAILURE_NO_CARD;
    if (modem.lock != VRKS_LOCK_NONE || picture.devStatus == VRKS_DEV_STATUS_LOCKED) return VRKS_FAILURE_LOCKED;
    return picture.devStatus == VRKS_DEV_STATUS_READY ? VRKS_FAILURE_NONE : VRKS_FAILURE_NOT_READY;
}

}  // namespace

Refusal refusalOf(const DialRequest& request, const Picture& picture) {
    if (const char* member = badMember(request)) return {VRKS_FAILURE_BAD_REQUEST, member};
    if (const int failure = modemFailure(picture)) return {failure, {}};
    if (!picture.connection.usedBy.empty()) return {VRKS_FAILURE_IN_USE, picture.connection.usedBy};
    return {VRKS_FAILURE_NONE, {}};
}
