// SPDX-License-Identifier: MIT
#include "UserStore.h"

#include "NetConnectOperation.h"
#include "NetConnectStatus.h"
#include "NetConnectXMLParse.h"
#include "ReasonText.h"

UserStore& UserStore::instance() {
    static UserStore store;
    return store;
}

UserStore::UserStore()
    : m_pFiles(nullptr),
      m_nRevision(0),
      m_bStoredKnown(false),
      m_bKeepsDefault(false),
      m_bFollows(false),
      m_bAwaited(false),
      m_bWhole(false),
      m_nActions(0),
      m_nOperations(0),
      m_Kind(Change),
      m_bFailed(false),
      m_bPending(false),
      m_bListPending(false) {}

void UserStore::attach(const UserStoreMembers& members, NetConnectXMLParse* files,
                       const std::function<void()>& changed) {
    m_Members = members;
    m_pFiles = files;
    m_Changed = changed;
}

void UserStore::detach() {
    m_Members = UserStoreMembers();
    m_pFiles = nullptr;
    m_Changed = std::function<void()>();
    m_Stamp = FileStamp();
    m_StoredDefault = NetConnectDefault();
    m_StoredProfiles.clear();
    m_bAwaited = m_bWhole = m_bStoredKnown = m_bKeepsDefault = m_bFollows = false;
    if (m_bPending && m_Kind == Change) m_bFailed = true;
    m_Index = ProfileIndex();
    m_Snapshot = Snapshot();
}

// --- reading ---

void UserStore::readAwaited() {
    if (m_bAwaited) read();
}

int UserStore::read() {
    m_bAwaited = false;
    QList<DialupProfile> profiles;
    NetConnectDefault value = defaultToStore();
    const int status = load(&profiles, &value);
    // Who only browses has no lock, but stores nothing either.
    if (status == NetConnectStatus::FileMissing && !m_Members.profiles->isEmpty() && !isBrowsing()) {
        m_Stamp.settled = false;
        const NetConnectOperation secondLook;
    } else if (isWorthMore(status)) {
        *m_Members.profiles = profiles;
        setDefaultInMemory(value);
        m_StoredDefault = value;
    }
    m_Changed();
    return status;
}

// Reads the user's file: default and flag keep their values where the file says nothing.
int UserStore::load(QList<DialupProfile>* profiles, NetConnectDefault* value) {
    const int status = m_pFiles->GetAllProfileFromUserDataXML(profiles, &value->name, QString(), &value->isUserSet);
    rememberFile(status);
    m_bStoredKnown = status == NetConnectStatus::Success;
    if (m_bStoredKnown) m_StoredProfiles = *profiles;
    return status;
}

// Whether what was read just now counts for more than what is in memory: a part does only while there is nothing whole.
bool UserStore::isWorthMore(int status) {
    if (status == NetConnectStatus::FileNotOpened) return false;
    const bool isPart = status == NetConnectStatus::ReadError;
    if (isPart && m_bWhole && !m_Members.profiles->isEmpty()) return false;
    m_bWhole = !isPart;
    return true;
}

NetConnectDefault UserStore::defaultInMemory() const {
    return NetConnectDefault(*m_Members.defaultName, *m_Members.isUserSet);
}

void UserStore::setDefaultInMemory(const NetConnectDefault& value, bool keepsStored) {
    *m_Members.defaultName = value.name;
    *m_Members.isUserSet = value.isUserSet;
    m_bKeepsDefault = keepsStored;
}

NetConnectDefault UserStore::defaultToStore() const { return m_bKeepsDefault ? m_StoredDefault : defaultInMemory(); }

void UserStore::proposeForNow(const QString& name) { setDefaultInMemory(NetConnectDefault(name, false), true); }

int UserStore::find(const QString& name) {
    if (!isAttached()) return -1;
    readAwaited();
    return m_Index.find(*m_Members.profiles, name);
}

// A file that could not be read is read again before anything is written over it, though it did not change.
void UserStore::rememberFile(int status) {
    const FileStamp stamp = m_pFiles->userFileStamp();
    if (stamp != m_Stamp) ++m_nRevision;
    m_Stamp = stamp;
    if (status == NetConnectStatus::FileNotOpened) m_Stamp.settled = false;
}

bool UserStore::isUpToDate() const { return !isAttached() || FileStamp::of(m_pFiles->userProfilePath()) == m_Stamp; }

// --- locking ---

// Keeps other processes away from the user's file, and takes in what they wrote into it before.
bool UserStore::lockFile() {
    const QString path = m_pFiles->userProfilePath();
    const bool isLocked = !path.isEmpty() && acquireBeside(path) && takeInChanges(path);
    m_Changed();
    return isLocked;
}

bool UserStore::acquireBeside(const QString& userFile) {
    Reason reason;
    m_strLockPath = userFile + QLatin1String(".lock");
    if (!m_Lock.acquire(m_strLockPath, &reason)) {
        m_pFiles->reportProblem(m_strLockPath, reason);
        return false;
    }
    return true;
}

// Takes in what other processes wrote since the user's file was last read or written here. The default counts only
// when they changed it: the one in memory may be newer. False when the file can't be read at all.
bool UserStore::takeInChanges(const QString& userFile) {
    const FileStamp stamp = FileStamp::of(userFile);
    if (m_Stamp.settled && stamp == m_Stamp) return true;
    QList<DialupProfile> profiles;
    NetConnectDefault value = m_StoredDefault;
    const int status = load(&profiles, &value);
    if (!isWorthMore(status)) return status != NetConnectStatus::FileNotOpened;
    *m_Members.profiles = profiles;
    if (value == m_StoredDefault) return true;
    m_StoredDefault = value;
    setDefaultInMemory(value);
    return true;
}

void UserStore::releaseLock() {
    if (m_nActions > 0 || m_nOperations > 0) return;
    m_Lock.release();
    m_bFailed = false;
}

// --- writing ---

int UserStore::store() {
    if (!isAttached()) return NetConnectStatus::FileNotOpened;
    if (m_bFailed) {
        m_Stamp.settled = false;  // the next change starts from what the file holds
        return NetConnectStatus::FileNotOpened;
    }
    if (m_nActions == 0) return write();
    m_bPending = m_bListPending = true;
    return NetConnectStatus::Success;
}

// Whoever removes the lock file lets others lock a new one: what the user's file holds is then no longer known here.
bool UserStore::isStillLocked() {
    if (m_Lock.isInPlace()) return true;
    m_pFiles->reportProblem(m_strLockPath, Reason("was removed while the profiles were being changed"));
    return false;
}

int UserStore::write() {
    const NetConnectDefault value = defaultToStore();
    int status = NetConnectStatus::FileNotOpened;
    if (isStillLocked())
        status = m_pFiles->SaveProfileToXML(*m_Members.profiles, value.name, QString(), value.isUserSet);
    if (status == NetConnectStatus::Success) {
        m_pFiles->clearProblem(m_strLockPath);  // a lock alone is no reason to forget why the last save failed
        m_bWhole = m_bStoredKnown = true;
        m_bFollows = false;
        m_StoredProfiles = *m_Members.profiles;
        m_StoredDefault = value;
        m_Stamp = m_pFiles->userFileStamp();
    } else {
        m_Stamp.settled = false;  // the next change starts from what the file holds
    }
    m_Changed();
    return status;
}

int UserStore::storeDefault(const NetConnectDefault& value) {
    const NetConnectDefault former = defaultInMemory();
    const bool keptStored = m_bKeepsDefault;
    const bool isListPending = m_bListPending;
    setDefaultInMemory(value);
    const int status = store();
    m_bListPending = isListPending;
    if (status != NetConnectStatus::Success) setDefaultInMemory(former, keptStored);
    return status;
}

// Whether writing is due: a default that was proposed and taken back again leaves the file as it is.
bool UserStore::isWriteDue() const {
    const NetConnectDefault value = defaultToStore();
    const bool isStored = m_bStoredKnown && m_StoredDefault == value && m_pFiles->isModeDefault(value) &&
                          m_StoredProfiles.isSharedWith(*m_Members.profiles);
    return m_bPending && m_Kind == Change && (m_bListPending || !isStored);
}

// --- operations and actions ---

void UserStore::beginOperation() {
    ++m_nOperations;
    if (!isAttached()) return;
    readAwaited();
    if (!isBrowsing() && !m_Lock.isHeld() && !m_bFailed) m_bFailed = !lockFile();
    takeSnapshot();
}

void UserStore::endOperation() {
    --m_nOperations;
    releaseLock();
}

void UserStore::takeSnapshot() {
    if (m_nActions == 0 || m_Snapshot.isTaken) return;
    m_Snapshot.isTaken = true;
    m_Snapshot.profiles = *m_Members.profiles;
    m_Snapshot.defaultProfile = defaultInMemory();
    m_Snapshot.keepsDefault = m_bKeepsDefault;
}

void UserStore::alsoUndo(const std::function<void()>& undo) {
    if (m_nActions > 0) m_Snapshot.undo.append(undo);
}

void UserStore::beginAction(Kind kind) {
    if (m_nActions++ == 0) m_Kind = kind;
}

int UserStore::commitAction() {
    int status = m_bFailed ? NetConnectStatus::FileNotOpened : NetConnectStatus::Success;
    const bool isOutermost = m_nActions == 1;
    if (isOutermost && isWriteDue() && status == NetConnectStatus::Success) status = write();
    if (isOutermost && status != NetConnectStatus::Success)
        dropAction();  // memory holds what the file holds, or a repeated change would find itself done
    else
        closeAction();
    return status;
}

void UserStore::dropAction() {
    while (!m_Snapshot.undo.isEmpty()) m_Snapshot.undo.takeLast()();
    if (m_Snapshot.isTaken) {
        *m_Members.profiles = m_Snapshot.profiles;
        setDefaultInMemory(m_Snapshot.defaultProfile, m_Snapshot.keepsDefault);
    }
    m_bPending = m_bListPending = false;
    closeAction();
}

void UserStore::closeAction() {
    if (--m_nActions > 0) return;
    m_bPending = m_bListPending = false;
    m_Snapshot = Snapshot();
    releaseLock();
}
