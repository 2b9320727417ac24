// SPDX-License-Identifier: MIT
// What went wrong at ModemManager, in the SDK's terms.
#ifndef ORBISDIAL_REMOTEERROR_H
#define ORBISDIAL_REMOTEERROR_H

#include <libmm-glib.h>

#include <algorithm>

#include "Ref.h"

// One kind of error and what it means.
struct ErrorMeaning {
    GQuark domain;
    int code;
    int meaning;
};

template <std::size_t Count>
int meaningOf(const GError* error, const ErrorMeaning (&table)[Count], int otherwise) {
    const auto place = std::find_if(std::begin(table), std::end(table), [=](const ErrorMeaning& row) {
        return g_error_matches(error, row.domain, row.code);
    });
    return place == std::end(table) ? otherwise : place->meaning;
}

// The daemon's own words, without the error's name on the bus.
inline std::string wordsOf(const GError* error) {
    const Error copy(g_error_copy(error));
    g_dbus_error_strip_remote_error(copy.get());
    return textOf(copy->message);
}

#endif
