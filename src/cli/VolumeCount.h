// SPDX-License-Identifier: MIT
// Counts what the connection moves while a command is at it, as the window does. It warns when the limit is near or
// reached; what can't be written is a warning, too, and no failure.
#ifndef ORBISDIAL_CLI_VOLUMECOUNT_H
#define ORBISDIAL_CLI_VOLUMECOUNT_H

#include "UsageRecorder.h"

class VolumeCount {
public:
    VolumeCount();

    // The connection as it is now; counts when its state is another one, and goes on each minute while it is up and
    // events are waited for.
    DataConnection follow();

    // Counts now.
    void count() { m_Recorder.record(); }

private:
    UsageRecorder m_Recorder;
    bool m_bHasFailed = false;
};

#endif
