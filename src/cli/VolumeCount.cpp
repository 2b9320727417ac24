// SPDX-License-Identifier: MIT
#include "VolumeCount.h"

#include <utility>

#include "ConnectionText.h"
#include "Message.h"
#include "Output.h"

VolumeCount::VolumeCount() {
    QObject::connect(&m_Recorder, &UsageRecorder::warned,
                     [](int percent) { printWarning(ConnectionText::usageWarning(percent)); });
    QObject::connect(&m_Recorder, &UsageRecorder::failed, [this] {
        if (!std::exchange(m_bHasFailed, true)) printWarning(message("the data volume can't be stored"));
    });
}

DataConnection VolumeCount::follow() {
    const DataConnection connection = DataConnection::current();
    m_Recorder.observe(connection);
    return connection;
}
