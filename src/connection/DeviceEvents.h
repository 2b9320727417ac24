// SPDX-License-Identifier: MIT
// Brings the device SDK's events to the thread of whoever listens.
#ifndef ORBISDIAL_DEVICEEVENTS_H
#define ORBISDIAL_DEVICEEVENTS_H

#include <QObject>
#include <atomic>

// Listens from its making until its end, or until stop(). Signals come on the object's own thread, from its event loop;
// many events that come together are one signal.
class DeviceEvents : public QObject {
    Q_OBJECT

public:
    explicit DeviceEvents(QObject* parent = nullptr);
    ~DeviceEvents() override;

    // Returns when no event is on its way any more.
    void stop();

signals:
    void connectionChanged();  // ask DataConnection::current()
    void modemChanged();       // ask ModemState::current()
    void systemModeChanged();
    void changed();  // any of these, or anything else that the SDK tells of; behind them

private:
    static void onEvent(int event, void* events);
    Q_INVOKABLE void deliver();

    std::atomic<unsigned> m_Events{0};  // a bit each, which wait for delivery
    bool m_IsListening;
};

#endif
