// SPDX-License-Identifier: MIT
#include "UsageRecorder.h"

namespace {

constexpr int MinuteMs = 60000;

}

UsageRecorder::UsageRecorder(QObject* parent) : QObject(parent) {
    m_EachMinute.setInterval(MinuteMs);
    connect(&m_EachMinute, &QTimer::timeout, this, &UsageRecorder::record);
}

void UsageRecorder::observe(const DataConnection& connection) {
    if (connection.state == m_State) return;
    m_State = connection.state;
    if (connection.isUp()) {
        m_EachMinute.start();
    } else {
        m_EachMinute.stop();
    }
    record();
}

void UsageRecorder::record() {
    const DataConnection connection = DataConnection::current();
    if (connection.isUp()) m_Imsi = connection.card();
    if (!m_Usage.count(connection, m_Imsi)) emit failed();
    if (const int percent = m_Usage.takeWarning(m_Imsi)) emit warned(percent);
}
