// SPDX-License-Identifier: MIT
#include "FileFindings.h"

#include <algorithm>
#include <tuple>

void FileFindings::add(const XmlPlace& place, const QString& text, const QString& remedy) {
    if (!isFull()) m_Findings.append({m_File, place, text, remedy});
}

QList<Finding> FileFindings::inOrder() const {
    QList<Finding> ordered = m_Findings;
    std::stable_sort(ordered.begin(), ordered.end(), [](const Finding& a, const Finding& b) {
        return std::tie(a.place.line, a.place.column) < std::tie(b.place.line, b.place.column);
    });
    if (isFull()) ordered.append({m_File, {}, "there may be more faults", "mend these first"});
    return ordered;
}

const XmlPlace* FirstPlaces::meet(const QString& key, const XmlPlace& place) {
    const auto found = m_Places.constFind(key);
    if (found != m_Places.constEnd()) return &*found;
    m_Places.insert(key, place);
    return nullptr;
}
