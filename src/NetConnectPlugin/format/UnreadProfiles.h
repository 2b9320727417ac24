// SPDX-License-Identifier: MIT
// The profiles of a document, which are read when they are asked for: a start needs one or two of a library's thousand.
#ifndef ORBISDIAL_UNREADPROFILES_H
#define ORBISDIAL_UNREADPROFILES_H

#include <QByteArray>
#include <QList>
#include <QString>
#include <QVector>

#include "NetConnectRecords.h"
#include "XmlScanner.h"

// Made by ProfileDocument::look(). GUI thread.
class UnreadProfiles {
public:
    // Keeps the document's bytes, among which a scanner of them finds the profiles.
    explicit UnreadProfiles(const QByteArray& content)
        : m_Content(content), m_pName(nullptr), m_pLangid(nullptr), m_bHasLangids(false) {}

    // The profile that the scanner stands on: the same one for all, which is not asked later on.
    void add(const XmlScanner& scanner);

    bool isEmpty() const { return m_Places.isEmpty(); }

    // Whether a name may follow the language.
    bool hasLangids() const { return m_bHasLangids; }

    // The first one of a name; false when there is none.
    bool find(const QString& name, DialupProfile* profile);

    const QList<DialupProfile>& all();

private:
    Q_DISABLE_COPY(UnreadProfiles)

    struct Place {
        Place() : begin(nullptr) {}

        const char* begin;
        XmlPiece name;
    };

    const QByteArray m_Content;  // the places are in it
    QVector<Place> m_Places;
    const XmlPiece* m_pName;  // where the scanner has the last one's; null for none
    const XmlPiece* m_pLangid;
    QList<DialupProfile> m_Last;  // the one that was found last, for a page asks several times
    QList<DialupProfile> m_All;   // empty until they are read
    bool m_bHasLangids;
};

#endif
