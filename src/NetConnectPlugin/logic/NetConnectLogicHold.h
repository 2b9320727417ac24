// SPDX-License-Identifier: MIT
// Holds the logic's mutex during one of its operations.
#ifndef ORBISDIAL_NETCONNECTLOGICHOLD_H
#define ORBISDIAL_NETCONNECTLOGICHOLD_H

#include <QPointer>

#include "NetConnectSettingUILogic.h"

// Whoever lets go of the logic publishes its status. A question's event loop may end the logic meanwhile.
class NetConnectSettingUILogic::Hold {
public:
    explicit Hold(NetConnectSettingUILogic* logic) : m_pLogic(logic) {
        logic->m_Mutex.lock();
        ++logic->m_nHolds;
    }
    ~Hold() {
        if (!m_pLogic) return;
        m_pLogic->publishStatus();
        m_pLogic->letGo();
    }
    bool isLogicGone() const { return !m_pLogic; }

private:
    Q_DISABLE_COPY(Hold)

    QPointer<NetConnectSettingUILogic> m_pLogic;
};

#endif
