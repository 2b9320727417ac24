// SPDX-License-Identifier: MIT
// What is found in one file.
#ifndef ORBISDIAL_CHECK_FILEFINDINGS_H
#define ORBISDIAL_CHECK_FILEFINDINGS_H

#include <QHash>
#include <QList>

#include "Finding.h"

class FileFindings {
public:
    explicit FileFindings(const QString& file) : m_File(file) {}

    void add(const XmlPlace& place, const QString& text, const QString& remedy);

    // Nobody reads on, and a hostile file has millions: more are dropped, and looking on is in vain.
    bool isFull() const { return m_Findings.size() >= Most; }

    // In the order of the file; a full list says that it is.
    QList<Finding> inOrder() const;

private:
    static constexpr int Most = 200;

    const QString m_File;
    QList<Finding> m_Findings;
};

// Finds what stands twice.
class FirstPlaces {
public:
    // Where the key stood first; null for this being the first time.
    const XmlPlace* meet(const QString& key, const XmlPlace& place);

private:
    QHash<QString, XmlPlace> m_Places;
};

// "line 7", for a text that refers to another place.
inline QString lineText(const XmlPlace& place) { return QString("line %1").arg(place.line); }

// A name as texts show it.
inline QString inQuotes(const QString& name) { return '"' + name + '"'; }

#endif
