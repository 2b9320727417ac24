// SPDX-License-Identifier: MIT
// The names of the failures.
#ifndef ORBISDIAL_FAILURES_H
#define ORBISDIAL_FAILURES_H

#include <optional>

// Null when there is no such failure.
const char* failureName(int failure);

std::optional<int> failureNamed(const char* name);

#endif
