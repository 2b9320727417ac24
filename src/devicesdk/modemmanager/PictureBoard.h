// SPDX-License-Identifier: MIT
// The picture that the parts of the backend edit together.
#ifndef ORBISDIAL_PICTUREBOARD_H
#define ORBISDIAL_PICTUREBOARD_H

#include <chrono>
#include <functional>
#include <memory>
#include <mutex>

#include "../CurrentPicture.h"

// Every operation is safe from any thread.
class PictureBoard {
public:
    explicit PictureBoard(EventSink& events) : m_Current(events) {}

    std::shared_ptr<const Picture> get() const { return m_Current.get(); }

    // Edits the present picture, or one in which nothing is known before the first; no other edit comes between. When
    // the edit answers true it is published with the events of what differs, else dropped. Answers what the edit
    // answered.
    bool change(const std::function<bool(Picture& picture)>& edit);

    // Waits until everything is known, until then at most.
    void await(std::chrono::steady_clock::time_point deadline) const { m_Current.await(deadline); }

private:
    CurrentPicture m_Current;
    std::mutex m_EditMutex;  // held while an edit is made and published
};

#endif
