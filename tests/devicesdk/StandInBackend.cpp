// SPDX-License-Identifier: MIT
// A module in the real one's place. STANDIN says what is wrong with it: "absent" is not available, "null" can't be
// made, a number is after how many milliseconds its picture comes.
#include <cstdlib>
#include <cstring>
#include <thread>

#include "Backend.h"
#include "CurrentPicture.h"

namespace {

const char* standIn() {
    const char* text = std::getenv("STANDIN");
    return text ? text : "0";
}

class StandIn : public Backend {
public:
    explicit StandIn(EventSink& events) : m_Picture(events), m_Thread(&StandIn::work, this) {}

    std::shared_ptr<const Picture> picture() override { return m_Picture.get(); }
    void awaitPicture(std::chrono::steady_clock::time_point deadline) override { m_Picture.await(deadline); }
    void stop() override { m_Thread.join(); }

private:
    void work() {
        std::this_thread::sleep_for(std::chrono::milliseconds(std::atoi(standIn())));
        Picture picture;
        picture.devStatus = VRKS_DEV_STATUS_READY;
        m_Picture.publish(picture);
    }

    CurrentPicture m_Picture;
    std::thread m_Thread;
};

Backend* make(EventSink& events) { return std::strcmp(standIn(), "null") == 0 ? nullptr : new StandIn(events); }

Backend* makeWhenAvailable(EventSink& events) { return std::strcmp(standIn(), "absent") == 0 ? nullptr : make(events); }

}  // namespace

extern "C" __attribute__((visibility("default"))) const BackendModule ORBISDIAL_BACKEND_MODULE;
const BackendModule ORBISDIAL_BACKEND_MODULE = {STANDIN_VERSION, make, makeWhenAvailable};
