// SPDX-License-Identifier: MIT
#include "Notices.h"

std::optional<Notice> Notice::of(const ConnectionPicture& before, const ConnectionPicture& now) {
    if (now.isUp && !before.isUp) return Notice{now.headline, now.detail, false};
    if (now.hasFailed && !before.hasFailed) return Notice{now.failureTitle, now.failureText, true};
    if (now.canUnlock && !before.canUnlock) return Notice{now.headline, now.detail, true};
    const bool comesToLimit = !now.usageWarning.isEmpty() && now.usageWarning != before.usageWarning;
    if (comesToLimit) return Notice{now.headline, now.usageWarning, true};
    return std::nullopt;
}
