// SPDX-License-Identifier: MIT
// Where a backend's events go.
#ifndef ORBISDIAL_EVENTSINK_H
#define ORBISDIAL_EVENTSINK_H

// Every operation is safe from any thread and returns at once. Of each kind at most one event waits for delivery;
// one that finds no callback is kept for the first that registers.
class EventSink {
public:
    virtual ~EventSink() = default;

    // One of VRKS_DevInitEventCallback. Two of a kind come with a pause between, since each makes a window read its
    // lists again.
    virtual void raiseDevice(int event) = 0;

    // One of VRKS_EventCallback.
    virtual void raise(int event) = 0;
};

#endif
