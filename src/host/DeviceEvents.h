// Brings the device SDK's events to the GUI thread.
#ifndef ORBISDIAL_DEVICEEVENTS_H
#define ORBISDIAL_DEVICEEVENTS_H

#include <QObject>
#include <atomic>

// Listens from its making until its end. Each signal comes from the event loop of the object's own thread; events of a
// kind that come together are one signal.
class DeviceEvents : public QObject {
    Q_OBJECT

public:
    explicit DeviceEvents(QObject* parent = nullptr);
    ~DeviceEvents() override;

signals:
    void raised(int event);  // VRKS_EVENT_... of VRKS_EventCallback

private:
    Q_DISABLE_COPY(DeviceEvents)

    static void onEvent(int event, void* self);
    void deliver();

    std::atomic<unsigned> m_Waiting{0};  // a bit for each event
};

#endif
