// SPDX-License-Identifier: MIT
#include "DeviceEvents.h"

#include <vrks.h>

namespace {

constexpr unsigned bitOf(int event) { return 1U << event; }

constexpr unsigned ModemBits =
    bitOf(VRKS_EVENT_MODEM_LIST_CHANGED) | bitOf(VRKS_EVENT_MODEM_CHANGED) | bitOf(VRKS_EVENT_UNLOCK_RESULT);

}  // namespace

DeviceEvents::DeviceEvents(QObject* parent)
    : QObject(parent), m_IsListening(VRKS_DevSrv_RegisterEventCallback(&DeviceEvents::onEvent, this) == 0) {}

DeviceEvents::~DeviceEvents() { stop(); }

void DeviceEvents::stop() {
    if (!m_IsListening) return;
    m_IsListening = false;
    VRKS_DevSrv_UnRegisterEventCallback(&DeviceEvents::onEvent, this);
    m_Events = 0;  // a delivery that is posted already finds nothing
}

// On the SDK's thread; takes no lock that another call holds while it waits for this one.
void DeviceEvents::onEvent(int event, void* events) {
    auto* self = static_cast<DeviceEvents*>(events);
    if (self->m_Events.fetch_or(bitOf(event)) == 0) QMetaObject::invokeMethod(self, "deliver", Qt::QueuedConnection);
}

void DeviceEvents::deliver() {
    const unsigned events = m_Events.exchange(0);
    if (events & bitOf(VRKS_EVENT_SYSTEM_MODE_CHANGED)) emit systemModeChanged();
    if (events & ModemBits) emit modemChanged();
    if (events & bitOf(VRKS_EVENT_CONNECTION_CHANGED)) emit connectionChanged();
    if (events) emit changed();
}
