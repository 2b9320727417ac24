// SPDX-License-Identifier: MIT
#include "Notices.h"

namespace {

std::optional<Notice> ofConnection(const ConnectionPicture& before, const ConnectionPicture& now) {
    if (now.isUp && !before.isUp) return Notice{now.headline, now.detail, false};
    if (now.hasFailed && !before.hasFailed) return Notice{now.failureTitle, now.failureText, true};
    if (now.canUnlock && !before.canUnlock) return Notice{now.headline, now.detail, true};
    return std::nullopt;
}

}  // namespace

// Volume is counted when the connection changes, so that both are often told at once.
std::optional<Notice> Notice::of(const ConnectionPicture& before, const ConnectionPicture& now) {
    const auto notice = ofConnection(before, now);
    const bool comesToLimit = !now.usageWarning.isEmpty() && now.usageWarning != before.usageWarning;
    if (!comesToLimit) return notice;
    if (!notice) return Notice{now.headline, now.usageWarning, true};
    return Notice{notice->title, notice->text + QLatin1Char('\n') + now.usageWarning, true};
}
