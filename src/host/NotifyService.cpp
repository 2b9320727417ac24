// SPDX-License-Identifier: MIT
#include "NotifyService.h"

#include <algorithm>

void NotifyService::AddListener(QString clsid, INotify* listener) {
    if (listener && !m_Listeners.contains({clsid, listener})) m_Listeners.append({clsid, listener});
}

void NotifyService::RemoveListener(INotify* listener) {
    const auto isGone = [listener](const Listener& entry) { return entry.target == listener; };
    m_Listeners.erase(std::remove_if(m_Listeners.begin(), m_Listeners.end(), isGone), m_Listeners.end());
}

int NotifyService::SendNotify(QString clsid, unsigned int event, unsigned int param1, unsigned int param2) {
    const QString host = QStringLiteral(ORBISDIAL_HOST_LISTENER_CLSID);
    const bool delivered = deliver(clsid, event, param1, param2);
    if (clsid != host) deliver(host, event, param1, param2);
    return delivered ? 0 : -1;
}

bool NotifyService::deliver(const QString& clsid, unsigned int event, unsigned int param1, unsigned int param2) {
    bool delivered = false;
    const QVector<Listener> now = m_Listeners;
    for (const Listener& listener : now) {
        if (listener.clsid != clsid || !m_Listeners.contains(listener)) continue;
        listener.target->Notify(event, param1, param2);
        delivered = true;
    }
    return delivered;
}
