// SPDX-License-Identifier: MIT
// Keeps DataUsage up to date while a program runs: at each change of the connection, and each minute while it is up.
#ifndef ORBISDIAL_USAGERECORDER_H
#define ORBISDIAL_USAGERECORDER_H

#include <QObject>
#include <QTimer>

#include "DataConnection.h"
#include "DataUsage.h"

class UsageRecorder : public QObject {
    Q_OBJECT

public:
    explicit UsageRecorder(QObject* parent = nullptr);

    // The connection changed. The timer runs only while one is up.
    void observe(const DataConnection& connection);

    // Counts now, as at the program's end.
    void record();

    DataUsage* usage() { return &m_Usage; }

signals:
    // So many percent of the card's limit are used, 80 or 100; each once a month.
    void warned(int percent);

private:
    DataUsage m_Usage;
    int m_State = VRKS_CONNECTION_DOWN;
    QTimer m_EachMinute;
};

#endif
