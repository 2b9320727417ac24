// SPDX-License-Identifier: MIT
// Where the user's profiles are kept.
#ifndef ORBISDIAL_USERDATADIRECTORY_H
#define ORBISDIAL_USERDATADIRECTORY_H

#include <optional>
#include <string>

// The folder, absolute and with '/' at its end: $ORBISDIAL_DATA_DIR, or else "orbisdial" under the XDG data
// home. Made when it is missing. Nothing when it can't be had or its name is not UTF-8; may also throw what
// std::exception covers.
std::optional<std::u16string> userDataDirectory();

#endif
