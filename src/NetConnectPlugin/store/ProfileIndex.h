// SPDX-License-Identifier: MIT
// Finds profiles by name.
#ifndef ORBISDIAL_PROFILEINDEX_H
#define ORBISDIAL_PROFILEINDEX_H

#include <QHash>
#include <QList>
#include <QString>

#include "NetConnectRecords.h"

// Nobody has to tell it that a list changed: it keeps a copy, and a list that no longer shares its data with the copy
// is another one. A change of the list so finds its data shared and copies them.
class ProfileIndex {
public:
    ProfileIndex() : m_nSearches(0), m_nLast(-1) {}

    // The first place of a name in the list; -1 when there is none.
    int find(const QList<DialupProfile>& profiles, const QString& name);

private:
    QList<DialupProfile> m_Profiles;
    QHash<QString, int> m_Places;  // empty until it is worth its making
    int m_nSearches;               // since the list changed
    QString m_strLast;             // what was last gone through the list for, and its place
    int m_nLast;
};

#endif
