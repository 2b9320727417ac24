// SPDX-License-Identifier: MIT
#include "CurrentPicture.h"

std::shared_ptr<const Picture> CurrentPicture::get() const {
    const std::lock_guard lock(m_Mutex);
    return m_Picture;
}

void CurrentPicture::publish(Picture picture) { store(std::make_shared<const Picture>(std::move(picture)), true); }

void CurrentPicture::replace(Picture picture) { store(std::make_shared<const Picture>(std::move(picture)), false); }

void CurrentPicture::await(std::chrono::steady_clock::time_point deadline) const {
    std::unique_lock lock(m_Mutex);
    m_Came.wait_until(lock, deadline,
                      [this] { return m_Picture && m_Picture->areModemsKnown && m_Picture->isConnectionKnown; });
}

// Raises under the lock, so that the events of two threads come in the order of their pictures.
void CurrentPicture::store(std::shared_ptr<const Picture> picture, bool raisesEvents) {
    static const Picture nothing;
    const std::lock_guard lock(m_Mutex);
    const Events events = eventsBetween(m_Picture ? *m_Picture : nothing, *picture);
    m_Picture = std::move(picture);
    m_Came.notify_all();
    if (!raisesEvents) return;
    for (int event : events.device) m_Events.raiseDevice(event);
    for (int event : events.others) m_Events.raise(event);
}
