// SPDX-License-Identifier: MIT
// The picture that the parts of the backend edit together.
#ifndef ORBISDIAL_PICTUREBOARD_H
#define ORBISDIAL_PICTUREBOARD_H

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

#include "../CurrentPicture.h"

// Every operation is safe from any thread.
class PictureBoard {
public:
    enum Part : unsigned { Modems = 1, Connecting = 2 };

    // It is complete when all of the parts are known.
    PictureBoard(EventSink& events, unsigned parts) : m_Current(events), m_Missing(parts) {}

    std::shared_ptr<const Picture> get() const { return m_Current.get(); }

    // Edits the present picture, or an empty one before the first; no other edit comes between. When the edit answers
    // true it is published with the events of what differs, else dropped. Answers what the edit answered.
    bool change(const std::function<bool(Picture& picture)>& edit);

    void setKnown(Part part);

    // Waits until it is complete, until then at most.
    void await(std::chrono::steady_clock::time_point deadline) const;

private:
    CurrentPicture m_Current;
    std::mutex m_EditMutex;      // held while an edit is made and published
    mutable std::mutex m_Mutex;  // guards what follows
    mutable std::condition_variable m_Came;
    unsigned m_Missing;
};

#endif
