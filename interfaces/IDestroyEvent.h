// SPDX-License-Identifier: MIT
// What the host calls before it lets a plug-in go.
#ifndef ORBISDIAL_IDESTROYEVENT_H
#define ORBISDIAL_IDESTROYEVENT_H

// The order of the virtual operations is part of the binary interface; never reorder them.
class IDestroyEvent {
public:
    virtual ~IDestroyEvent() {}

    // The plug-in frees what it holds. Called on the GUI thread, after UnSDKRegisterEvent().
    virtual void OnDestroy() = 0;

    // The plug-in stops listening to the device SDK.
    virtual void UnSDKRegisterEvent() = 0;
};

#endif
