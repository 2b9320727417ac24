// SPDX-License-Identifier: MIT
#include "PictureBoard.h"

namespace {

Picture unknown() {
    Picture picture;
    picture.areModemsKnown = picture.isConnectionKnown = false;
    return picture;
}

}  // namespace

bool PictureBoard::change(const std::function<bool(Picture& picture)>& edit) {
    const std::lock_guard lock(m_EditMutex);
    const std::shared_ptr<const Picture> present = m_Current.get();
    Picture picture = present ? *present : unknown();
    if (!edit(picture)) return false;
    m_Current.publish(std::move(picture));
    return true;
}
