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

signals:
    // So many percent of the limit of the connection's card are used, 80 or 100; each once a month.
    void warned(int percent);

    // The file can't be written just now.
    void failed();

private:
    DataUsage m_Usage;
    int m_State = VRKS_CONNECTION_DOWN;
    QString m_Imsi;  // of the connection's card, or of the last one's
    QTimer m_EachMinute;
};

#endif
