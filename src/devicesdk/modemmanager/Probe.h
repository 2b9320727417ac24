// SPDX-License-Identifier: MIT
// Whether a daemon answers: one may have its name on the bus and hang.
#ifndef ORBISDIAL_PROBE_H
#define ORBISDIAL_PROBE_H

#include <climits>
#include <functional>

#include "Ref.h"

struct Daemon {
    const char* name;  // on the bus, and of the interface that has its version
    const char* path;
};

constexpr Daemon ModemManagerDaemon{"org.freedesktop.ModemManager1", "/org/freedesktop/ModemManager1"};
constexpr Daemon NetworkManagerDaemon{"org.freedesktop.NetworkManager", "/org/freedesktop/NetworkManager"};

constexpr int ProbeWithoutEnd = INT_MAX;  // milliseconds; one that is cancelled ends before

// Asks for its version. The function is told null, or why there was no answer; nothing when it was cancelled. On the
// thread.
void probe(GDBusConnection* bus, const Daemon& daemon, int milliseconds, GCancellable* cancellable,
           std::function<void(const GError* error)> done);

#endif
