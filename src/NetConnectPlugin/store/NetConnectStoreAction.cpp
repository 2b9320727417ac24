// SPDX-License-Identifier: MIT
#include "NetConnectStoreAction.h"

#include "NetConnectOperation.h"
#include "NetConnectStatus.h"

NetConnectStoreAction::NetConnectStoreAction(Kind kind) : m_bOpen(true) {
    UserStore::instance().beginAction(kind == Browse ? UserStore::Browse : UserStore::Change);
}

NetConnectStoreAction::~NetConnectStoreAction() { drop(); }

int NetConnectStoreAction::lock() {
    const NetConnectOperation operation;
    return operation.hasFailed() ? NetConnectStatus::FileNotOpened : NetConnectStatus::Success;
}

int NetConnectStoreAction::commit() {
    if (!m_bOpen) return NetConnectStatus::Success;
    m_bOpen = false;
    return UserStore::instance().commitAction();
}

void NetConnectStoreAction::drop() {
    if (m_bOpen) UserStore::instance().dropAction();
    m_bOpen = false;
}
