// SPDX-License-Identifier: MIT
// How the host and the notification service pass events to a plug-in.
#ifndef ORBISDIAL_INOTIFY_H
#define ORBISDIAL_INOTIFY_H

#include <QObject>

// The events that cross plug-in borders.
enum NotifyEvent {
    NotifyLanguageChanged = 320,    // host to every plug-in: set every text again
    NotifyProfilesChanged = 512,    // settings page to dial-up plug-in and host: read the profiles again
    NotifyConnectionChanged = 528,  // dial-up plug-in to host, host to every plug-in: ask the state again
    NotifySystemModeChanged = 4101  // host to every plug-in: the modem changed its system mode
};

class INotify {
public:
    virtual ~INotify() {}

    // Called on the GUI thread. Answers 0, or -1 when the plug-in can't take events now.
    virtual int Notify(unsigned int event, unsigned int param1, unsigned int param2) = 0;
};

Q_DECLARE_INTERFACE(INotify, "com.kestra.orbisdial.plugin.INotify")

#endif
