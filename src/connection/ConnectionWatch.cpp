#include "ConnectionWatch.h"

#include <vrks.h>

namespace {

constexpr unsigned ConnectionBit = 1u << VRKS_EVENT_CONNECTION_CHANGED;
constexpr unsigned ModemBits =
    1u << VRKS_EVENT_MODEM_LIST_CHANGED | 1u << VRKS_EVENT_MODEM_CHANGED | 1u << VRKS_EVENT_UNLOCK_RESULT;

}  // namespace

ConnectionWatch::ConnectionWatch(QObject* parent)
    : QObject(parent), m_IsListening(VRKS_DevSrv_RegisterEventCallback(&ConnectionWatch::onEvent, this) == 0) {}

ConnectionWatch::~ConnectionWatch() { stop(); }

void ConnectionWatch::stop() {
    if (!m_IsListening) return;
    m_IsListening = false;
    VRKS_DevSrv_UnRegisterEventCallback(&ConnectionWatch::onEvent, this);
    m_Events = 0;  // a delivery that is posted already finds nothing
}

// On the SDK's thread; takes no lock that another call holds while it waits for this one.
void ConnectionWatch::onEvent(int event, void* watch) {
    const unsigned bit = (1u << event) & (ConnectionBit | ModemBits);
    auto* self = static_cast<ConnectionWatch*>(watch);
    if (bit && self->m_Events.fetch_or(bit) == 0) QMetaObject::invokeMethod(self, "deliver", Qt::QueuedConnection);
}

void ConnectionWatch::deliver() {
    const unsigned events = m_Events.exchange(0);
    if (events & ModemBits) emit modemChanged();
    if (events & ConnectionBit) emit connectionChanged();
}
