// SPDX-License-Identifier: MIT
// What the backend and the part of it that connects know of each other.
#ifndef ORBISDIAL_CONNECTIONPART_H
#define ORBISDIAL_CONNECTIONPART_H

#include <libmm-glib.h>

#include <functional>
#include <string>

#include "../DialRequest.h"
#include "../Picture.h"
#include "WorkerThread.h"

// The backend, as the connecting part sees it.
class ConnectionHost {
public:
    virtual ~ConnectionHost() = default;

    virtual WorkerThread& thread() = 0;

    // Edits the picture that is answered, from any thread; no other edit comes between. When the edit answers true the
    // picture is published with the events of what differs, else it is dropped. The edit must not wait nor call back.
    // Answers what the edit answered. The connecting part touches nothing but Picture::connection, and says whether
    // that is known.
    using Edit = std::function<bool(Picture& picture)>;
    virtual bool change(const Edit& edit) = 0;

    // On the thread: the modem in use at ModemManager; null: none. Its D-Bus path is mm_object_get_path()'s.
    virtual MMObject* modemInUse() = 0;

    // On the thread: the one with this D-Bus path; null: it is gone.
    virtual MMObject* modemAt(const std::string& path) = 0;
};

// Answers for Picture::connection. It lives as long as the process; what it has, it makes and gives up on the thread.
class ConnectionPart {
public:
    virtual ~ConnectionPart() = default;

    // On the thread. The connection is private to the module and doesn't end the process when the bus goes.
    virtual void busCame(GDBusConnection* bus) = 0;
    virtual void busWent() = 0;

    // On the thread: another modem in use (or none), or its object at ModemManager is another one.
    virtual void modemChanged() = 0;

    // On the thread, which ends then: leaves no secret behind.
    virtual void stop() = 0;

    // As in Backend: from any thread, without waiting. Refuses with a reason in the picture.
    virtual bool dial(const DialRequest& request) = 0;
    virtual bool hangUp() = 0;
    virtual Traffic traffic() = 0;
};

#endif
