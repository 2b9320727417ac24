// Brings the SDK's events about connection and modem to the thread of whoever listens.
#ifndef ORBISDIAL_CONNECTIONWATCH_H
#define ORBISDIAL_CONNECTIONWATCH_H

#include <QObject>
#include <atomic>

// Listens from its making until its end, or until stop(). Signals come on the object's own thread, from its event loop;
// many events that come together are one signal.
class ConnectionWatch : public QObject {
    Q_OBJECT

public:
    explicit ConnectionWatch(QObject* parent = nullptr);
    ~ConnectionWatch() override;

    // Returns when no event is on its way any more.
    void stop();

signals:
    void connectionChanged();  // ask DataConnection::current()
    void modemChanged();       // ask ModemState::current()

private:
    static void onEvent(int event, void* watch);
    Q_INVOKABLE void deliver();

    std::atomic<unsigned> m_Events{0};  // a bit each, which wait for delivery
    bool m_IsListening;
};

#endif
