// SPDX-License-Identifier: MIT
// Gathers the writes of one action into one rewrite of the user's profile file.
#ifndef ORBISDIAL_NETCONNECTSTOREACTION_H
#define ORBISDIAL_NETCONNECTSTOREACTION_H

#include <QtGlobal>

// Usage: make one, call the logic's operations, then commit() or drop(). One that goes without either is
// dropped. Actions nest: an inner one joins the outermost, which alone locks, writes or drops. GUI thread;
// never keep one open while a question is on screen, since it locks other processes out.
//
// A Change locks the user's file against other processes when the first operation wants to write, and takes in
// what they changed. A Browse never locks and never writes: what the operations would store is dropped when it
// ends; it may outlive the logic, so that the logic's end writes nothing either.
class NetConnectStoreAction {
public:
    enum Kind { Change, Browse };

    explicit NetConnectStoreAction(Kind kind = Change);
    ~NetConnectStoreAction();

    // Locks the user's file now rather than at the first write, and takes in what other processes changed: none gets
    // in between a look and the change that depends on it. 0 or 25; 0 without a lock for a Browse.
    int lock();

    // Writes once what was gathered. 0, or 25 when the file could not be locked or written; the status of the
    // operations in between counts too. An inner action answers 0 or the failed lock and leaves the write to
    // the outermost.
    int commit();

    // Forgets what was gathered and puts profiles and default back to what they were before the action. Dropping
    // an inner action drops the whole.
    void drop();

private:
    Q_DISABLE_COPY(NetConnectStoreAction)

    bool m_bOpen;
};

#endif
