// SPDX-License-Identifier: MIT
#include "PictureBoard.h"

bool PictureBoard::change(const std::function<bool(Picture& picture)>& edit) {
    const std::lock_guard lock(m_EditMutex);
    const std::shared_ptr<const Picture> present = m_Current.get();
    Picture picture = present ? *present : Picture();
    if (!edit(picture)) return false;
    m_Current.publish(std::move(picture));
    return true;
}

void PictureBoard::setKnown(Part part) {
    const std::lock_guard lock(m_Mutex);
    m_Missing &= ~static_cast<unsigned>(part);
    m_Came.notify_all();
}

void PictureBoard::await(std::chrono::steady_clock::time_point deadline) const {
    std::unique_lock lock(m_Mutex);
    m_Came.wait_until(lock, deadline, [this] { return m_Missing == 0; });
}
