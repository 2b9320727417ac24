// SPDX-License-Identifier: MIT
// The picture that a backend answers from.
#ifndef ORBISDIAL_CURRENTPICTURE_H
#define ORBISDIAL_CURRENTPICTURE_H

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>

#include "EventSink.h"
#include "Picture.h"

// Every operation is safe from any thread.
class CurrentPicture {
public:
    explicit CurrentPicture(EventSink& events) : m_Events(events) {}

    // Null before the first one.
    std::shared_ptr<const Picture> get() const;

    // Takes the present one's place and raises the events of what differs.
    void publish(Picture picture);

    // The same without an event.
    void replace(Picture picture);

    // Waits for the first one in which everything is known, until then at most.
    void await(std::chrono::steady_clock::time_point deadline) const;

private:
    void store(std::shared_ptr<const Picture> picture, bool raisesEvents);

    EventSink& m_Events;
    mutable std::mutex m_Mutex;  // guards what follows
    mutable std::condition_variable m_Came;
    std::shared_ptr<const Picture> m_Picture;
};

#endif
