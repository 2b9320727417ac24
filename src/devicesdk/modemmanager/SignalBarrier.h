// SPDX-License-Identifier: MIT
// Waits for the signals that an answer has overtaken.
#ifndef ORBISDIAL_SIGNALBARRIER_H
#define ORBISDIAL_SIGNALBARRIER_H

#include <gio/gio.h>

#include <functional>

// The daemon tells changed properties a moment after the answer to the call that changed them. Runs the function when
// those that belong to an answer that just came have arrived at the proxies, or when the daemon is gone; never when it
// is cancelled.
void afterSignals(GDBusProxy* proxy, GCancellable* cancellable, std::function<void()> done);

#endif
