// SPDX-License-Identifier: MIT
#include "ProfileIndex.h"

static int firstPlace(const QList<DialupProfile>& profiles, const QString& name) {
    for (int i = 0; i < profiles.size(); ++i)
        if (profiles.at(i).name == name) return i;
    return -1;
}

static QHash<QString, int> firstPlaces(const QList<DialupProfile>& profiles) {
    QHash<QString, int> places;
    places.reserve(profiles.size());
    for (int i = profiles.size() - 1; i >= 0; --i) places.insert(profiles.at(i).name, i);
    return places;
}

int ProfileIndex::find(const QList<DialupProfile>& profiles, const QString& name) {
    const int cheapSearches = 2;  // going through the list takes less than making the index
    if (!m_Profiles.isSharedWith(profiles)) {
        m_Profiles = profiles;
        m_Places.clear();
        m_nSearches = 0;
    }
    if (m_nSearches > 0 && name == m_strLast) return m_nLast;  // each listing asks for the default
    if (m_nSearches < cheapSearches) {
        ++m_nSearches;
        m_strLast = name;
        m_nLast = firstPlace(profiles, name);
        return m_nLast;
    }
    if (m_Places.isEmpty()) m_Places = firstPlaces(profiles);
    return m_Places.value(name, -1);
}
