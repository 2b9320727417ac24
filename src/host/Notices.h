// SPDX-License-Identifier: MIT
// Which change of the connection is worth a message on the desktop.
#ifndef ORBISDIAL_NOTICES_H
#define ORBISDIAL_NOTICES_H

#include <optional>

#include "ConnectionPicture.h"

struct Notice {
    QString title;
    QString text;
    bool isWarning = false;

    // Up, dropped, failed, and a card that wants its PIN or PUK, a limit; nothing for what the user did himself.
    static std::optional<Notice> of(const ConnectionPicture& before, const ConnectionPicture& now);
};

#endif
