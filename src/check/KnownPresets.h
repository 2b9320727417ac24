// SPDX-License-Identifier: MIT
// The names that the profile library has.
#ifndef ORBISDIAL_CHECK_KNOWNPRESETS_H
#define ORBISDIAL_CHECK_KNOWNPRESETS_H

#include <QSet>
#include <QStringList>

// Nothing where the library can't be read whole: then no name can be said to be missing.
class KnownPresets {
public:
    void add(const QStringList& names) { m_Names.unite(QSet<QString>(names.begin(), names.end())); }
    void giveUp() { m_bWhole = false; }

    bool lacks(const QString& name) const { return m_bWhole && !m_Names.contains(name); }

    // What to do about a name that is lacking.
    QString adviceFor(const QString& name) const;

private:
    QSet<QString> m_Names;
    bool m_bWhole = true;
};

#endif
