#include "NetConnectStoreAction.h"

#include "NetConnectOperation.h"
#include "NetConnectSettingUILogic.h"
#include "UserFileLock.h"

// There is one user's file, so there is one lock, and one action at a time. Both are the GUI thread's alone.
struct NetConnectStoreAction::State {
    State()
        : actions(0),
          operations(0),
          kind(Change),
          lockFailed(false),
          isPending(false),
          isUserSet(false),
          hasSnapshot(false) {}

    bool isBrowsing() const { return actions > 0 && kind == Browse; }

    int actions;     // open actions, one inside the other
    int operations;  // running operations of the logic
    Kind kind;       // of the outermost action
    UserFileLock lock;
    bool lockFailed;  // or what the file holds can't be taken in
    bool isPending;   // something is to be written when the outermost action commits
    bool isUserSet;   // the default's flag to write
    bool hasSnapshot;
    NetConnectSettingUILogic::Snapshot snapshot;
};

NetConnectStoreAction::State& NetConnectStoreAction::state() {
    static State state;
    return state;
}

NetConnectStoreAction::NetConnectStoreAction(Kind kind) : m_bOpen(true) {
    State& now = state();
    if (now.actions++ > 0) return;
    now.kind = kind;
    now.isPending = false;
    now.hasSnapshot = false;
}

NetConnectStoreAction::~NetConnectStoreAction() {
    if (m_bOpen) drop();
}

int NetConnectStoreAction::lock() {
    const NetConnectOperation operation(NetConnectSettingUILogic::GetInstance());
    return state().lockFailed ? int(NetConnectSettingUILogic::FileNotOpened) : 0;
}

int NetConnectStoreAction::commit() {
    State& now = state();
    NetConnectSettingUILogic* logic = NetConnectSettingUILogic::instance();
    if (!m_bOpen) return 0;
    int status = now.lockFailed ? int(NetConnectSettingUILogic::FileNotOpened) : 0;
    const bool isOutermost = now.actions == 1;
    if (isOutermost && now.isPending && now.kind == Change && status == 0 && logic)
        status = logic->writeUserProfiles(now.isUserSet);
    if (isOutermost && status != 0)
        drop();  // memory holds what the file holds, or a repeated change would find itself done
    else
        close();
    return status;
}

void NetConnectStoreAction::drop() {
    State& now = state();
    if (!m_bOpen) return;
    NetConnectSettingUILogic* logic = NetConnectSettingUILogic::instance();
    if (now.hasSnapshot && logic) logic->restore(now.snapshot);
    now.isPending = false;
    close();
}

void NetConnectStoreAction::close() {
    State& now = state();
    m_bOpen = false;
    if (--now.actions > 0) return;
    now.isPending = false;
    now.hasSnapshot = false;
    now.snapshot = NetConnectSettingUILogic::Snapshot();
    releaseLock();
}

void NetConnectStoreAction::releaseLock() {
    State& now = state();
    if (now.actions > 0 || now.operations > 0) return;
    now.lock.release();
    now.lockFailed = false;
}

NetConnectOperation::NetConnectOperation(NetConnectSettingUILogic* logic) : m_pLogic(logic) {
    NetConnectStoreAction::State& now = NetConnectStoreAction::state();
    ++now.operations;
    logic->readAwaitedProfiles();
    if (!now.isBrowsing() && !now.lock.isHeld() && !now.lockFailed) {
        now.lockFailed = !logic->lockUserFile(&now.lock);
    }
    if (now.actions > 0 && !now.hasSnapshot) {
        now.snapshot = logic->snapshot();
        now.hasSnapshot = true;
    }
}

NetConnectOperation::~NetConnectOperation() {
    --NetConnectStoreAction::state().operations;
    NetConnectStoreAction::releaseLock();
}

bool NetConnectOperation::hasFailed() const { return NetConnectStoreAction::state().lockFailed; }

int NetConnectOperation::store(bool isUserSet) {
    NetConnectStoreAction::State& now = NetConnectStoreAction::state();
    if (hasFailed()) {
        m_pLogic->m_UserFileStamp.settled = false;  // the next change starts from what the file holds
        return NetConnectSettingUILogic::FileNotOpened;
    }
    if (now.actions == 0) return m_pLogic->writeUserProfiles(isUserSet);
    now.isPending = true;
    now.isUserSet = isUserSet;
    return 0;
}
