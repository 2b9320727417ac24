#include "DeviceEvents.h"

#include <vrks.h>

DeviceEvents::DeviceEvents(QObject* parent) : QObject(parent) {
    VRKS_DevSrv_RegisterEventCallback(&DeviceEvents::onEvent, this);
}

DeviceEvents::~DeviceEvents() { VRKS_DevSrv_UnRegisterEventCallback(&DeviceEvents::onEvent, this); }

// On the SDK's thread.
void DeviceEvents::onEvent(int event, void* self) {
    auto* const events = static_cast<DeviceEvents*>(self);
    const bool isUnderway = events->m_Waiting.fetch_or(1U << event) != 0;
    if (!isUnderway)
        QMetaObject::invokeMethod(
            events, [events] { events->deliver(); }, Qt::QueuedConnection);
}

void DeviceEvents::deliver() {
    const unsigned waiting = m_Waiting.exchange(0);
    for (int event = VRKS_EVENT_MODEM_LIST_CHANGED; event <= VRKS_EVENT_USSD_RESULT; ++event) {
        if (waiting & (1U << event)) emit raised(event);
    }
}
