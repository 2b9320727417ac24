// SPDX-License-Identifier: MIT
// Lets as many reloads through as the GUI thread can bear.
#ifndef ORBISDIAL_NETCONNECTRELOADGATE_H
#define ORBISDIAL_NETCONNECTRELOADGATE_H

#include <QObject>
#include <QTimer>

// The first request reloads at once. Those that come while the gate rests, which is twice as long as the reload took,
// have one reload together: however fast they come, a user is served in between. GUI thread.
class NetConnectReloadGate : public QObject {
    Q_OBJECT

public:
    explicit NetConnectReloadGate(QObject* parent);

    // Forgets what waits.
    void close();

public slots:
    void request();

signals:
    void reload();

private slots:
    void open();

private:
    void pass();

    QTimer m_Rest;
    bool m_bRequested;
};

#endif
