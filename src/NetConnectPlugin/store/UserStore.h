// SPDX-License-Identifier: MIT
// The user's profiles and default profile, between memory and the user's file.
#ifndef ORBISDIAL_USERSTORE_H
#define ORBISDIAL_USERSTORE_H

#include <QList>
#include <QString>
#include <functional>

#include "FileStamp.h"
#include "NetConnectStorageProblem.h"
#include "ProfileDocument.h"
#include "ProfileIndex.h"
#include "UserFileLock.h"

class NetConnectXMLParse;

// What of the user's file is in memory. It belongs to the logic; the store keeps it in step with the file.
struct UserStoreMembers {
    UserStoreMembers() : profiles(nullptr), defaultName(nullptr), isUserSet(nullptr) {}

    QList<DialupProfile>* profiles;
    QString* defaultName;
    bool* isUserSet;
};

// There is one user's file, so there is one store, which outlives the logic: an action may begin before that and end
// after it. NetConnectOperation and NetConnectStoreAction are the ways in; while no logic is attached they do nothing.
// GUI thread only. Status: 0, 6, 23 and 25, as the file layer's.
class UserStore {
public:
    enum Kind { Change, Browse };

    static UserStore& instance();

    // Takes up the logic's members and the file layer; the function is told when a file was locked, read or written.
    void attach(const UserStoreMembers& members, NetConnectXMLParse* files, const std::function<void()>& changed);

    // Before the members go. What an open action gathered is lost: its commit will answer 25.
    void detach();

    // --- reading ---

    // Leaves the first reading to whoever needs the profiles first.
    void awaitProfiles() { m_bAwaited = true; }
    bool isAwaited() const { return m_bAwaited; }
    void readAwaited();

    // Reads the user's file into the members. What was read before stays when the file can't be read now, or not to
    // its end; that the file is missing is believed only when it is still missing once it is locked.
    int read();

    // The first place of a name among the user's profiles; -1 when there is none.
    int find(const QString& name);

    // The default as last read from or written to the user's file.
    NetConnectDefault storedDefault() const { return m_StoredDefault; }

    // How often the file was found as another program had left it.
    int revision() const { return m_nRevision; }

    // Whether the file still is as it was last read or written here.
    bool isUpToDate() const;

    // Makes a profile the default in memory alone: what is stored keeps the one that it has, until another one is
    // stored or the file is read.
    void proposeForNow(const QString& name);
    bool isProposalForNow() const { return m_bKeepsDefault; }

    // Whether listings leave the file as it is, for it is another program's; the next write ends that.
    void follow(bool follows) { m_bFollows = follows; }
    bool isFollowing() const { return m_bFollows; }

    // --- for the scope objects ---

    void beginOperation();
    void endOperation();
    void beginAction(Kind kind);
    int commitAction();
    void dropAction();

    // Nothing will be stored: the user's file could not be locked or read.
    bool hasFailed() const { return m_bFailed; }

    // Writes profiles and default, or leaves that to the open action: 0 or 25.
    int store();

    // Stores another default; the former one comes back when that fails.
    int storeDefault(const NetConnectDefault& value);

    // An open action that is dropped calls this, too. Without one nothing is kept.
    void alsoUndo(const std::function<void()>& undo);

private:
    // What a dropped action puts back.
    struct Snapshot {
        Snapshot() : isTaken(false), keepsDefault(false) {}

        bool isTaken;
        QList<DialupProfile> profiles;
        NetConnectDefault defaultProfile;
        bool keepsDefault;
        QList<std::function<void()> > undo;
    };

    UserStore();
    ~UserStore() {}
    Q_DISABLE_COPY(UserStore)

    bool isAttached() const { return m_pFiles; }
    bool isBrowsing() const { return m_nActions > 0 && m_Kind == Browse; }
    bool lockFile();
    bool acquireBeside(const QString& userFile);
    bool takeInChanges(const QString& userFile);
    int load(QList<DialupProfile>* profiles, NetConnectDefault* value);
    bool isWorthMore(int status);
    void rememberFile(int status);
    bool isStillLocked();
    NetConnectDefault defaultInMemory() const;
    void setDefaultInMemory(const NetConnectDefault& value, bool keepsStored = false);
    NetConnectDefault defaultToStore() const;
    bool isWriteDue() const;
    int write();
    void takeSnapshot();
    void closeAction();
    void releaseLock();

    UserStoreMembers m_Members;
    NetConnectXMLParse* m_pFiles;
    std::function<void()> m_Changed;

    FileStamp m_Stamp;  // of the user's file as the profiles were read or written
    int m_nRevision;
    QList<DialupProfile> m_StoredProfiles;
    NetConnectDefault m_StoredDefault;
    bool m_bStoredKnown;   // the two are what the file holds
    bool m_bKeepsDefault;  // the default in memory is for now: m_StoredDefault is to be written
    bool m_bFollows;
    bool m_bAwaited;
    bool m_bWhole;  // the profiles in memory are all that a file held
    ProfileIndex m_Index;

    int m_nActions;     // open actions, one inside the other
    int m_nOperations;  // running operations of the logic
    Kind m_Kind;        // of the outermost action
    UserFileLock m_Lock;
    QString m_strLockPath;
    bool m_bFailed;       // no lock, a file that can't be taken in, or a logic that went with what was gathered
    bool m_bPending;      // something is to be written when the outermost action commits
    bool m_bListPending;  // that is more than the default
    Snapshot m_Snapshot;
};

#endif
