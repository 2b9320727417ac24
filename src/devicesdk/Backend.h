// SPDX-License-Identifier: MIT
// What a kind of modem must offer; each backend has a folder of its own.
#ifndef ORBISDIAL_BACKEND_H
#define ORBISDIAL_BACKEND_H

#include <chrono>
#include <memory>
#include <string>

#include "DialRequest.h"
#include "Picture.h"

class EventSink;

// Every operation is safe from any thread, and none waits but the one that says so. What a backend does not override
// fails. Texts are UTF-8 of any length, since the C interface fits them into its buffers.
class Backend {
public:
    virtual ~Backend() = default;

    // What every query answers from; null when all of them fail.
    virtual std::shared_ptr<const Picture> picture() { return nullptr; }

    // Waits for the first complete picture, until then at most.
    virtual void awaitPicture(std::chrono::steady_clock::time_point) {}

    // Of the connection in the picture, or the last one.
    virtual Traffic traffic() { return {}; }

    // An empty key selects automatically.
    virtual bool selectModem(const std::string&) { return false; }

    // The C interface has looked at the digits, at the lock and at an unlocking on its way, as the picture has them.
    virtual bool enterPin(const std::string& /*pin*/) { return false; }
    virtual bool enterPuk(const std::string& /*puk*/, const std::string& /*newPin*/) { return false; }

    // Publishes the reason when it fails, unless a connection of ours is up or on its way; see refusalOf().
    virtual bool dial(const DialRequest&) { return false; }
    virtual bool hangUp() { return false; }

    // The C interface has looked at the text and at the session, as the picture has it.
    virtual bool sendUssd(const std::string& /*command*/) { return false; }
    virtual bool answerUssd(const std::string& /*answer*/) { return false; }
    virtual bool cancelUssd() { return false; }

    // The process ends: ends the backend's threads; nothing raises an event afterwards. Never called from one of them.
    virtual void stop() {}
};

// A backend with foreign libraries is a module of its own, loaded only when it is chosen and never unloaded:
// vrks-NAME.so in the folder "orbisdial" beside the SDK's library. It exports one object of this type under the
// name below, with C linkage and default visibility.
#define ORBISDIAL_BACKEND_MODULE orbisdial_backend_module
#define ORBISDIAL_BACKEND_MODULE_NAME "orbisdial_backend_module"

struct BackendModule {
    static constexpr unsigned CurrentVersion = 2;  // grows with each change of what a module and the SDK share

    unsigned version;
    // Lives until the process ends, as the sink does; null when it can't be made.
    Backend* (*make)(EventSink& events);
    // For "auto": null, too, where there is nothing that it could talk to. May wait for a moment, as for an answer of
    // the bus, never for a modem.
    Backend* (*makeWhenAvailable)(EventSink& events);
};

#endif
