// SPDX-License-Identifier: MIT
// What to dial with, and what forbids it beforehand.
#ifndef ORBISDIAL_DIALREQUEST_H
#define ORBISDIAL_DIALREQUEST_H

#include <string>
#include <vector>

struct Picture;

// The members mean what those of VRKS_DialRequest mean.
struct DialRequest {
    std::string name;
    std::string number;
    std::string apn;
    std::string user;
    std::string password;
    std::vector<std::string> dns;  // those that are set
    bool allowsChap = false;
    bool allowsPap = false;
    bool endsWithProcess = false;
};

struct Refusal {
    int failure;  // VRKS_FAILURE_...; none: nothing forbids it
    std::string words;
};

// Whether the request can be dialled with the modem that the picture has in use.
Refusal refusalOf(const DialRequest& request, const Picture& picture);

#endif
