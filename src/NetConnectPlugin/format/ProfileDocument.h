// SPDX-License-Identifier: MIT
// What one profile file says: its profiles and the defaults that it names, read from XML and written as XML.
#ifndef ORBISDIAL_PROFILEDOCUMENT_H
#define ORBISDIAL_PROFILEDOCUMENT_H

#include <QByteArray>
#include <QList>
#include <QSharedPointer>
#include <QXmlStreamReader>

#include "NetConnectRecords.h"
#include "UnreadProfiles.h"

// A default profile's name, and whether the user chose it.
struct NetConnectDefault {
    NetConnectDefault() : isUserSet(false) {}
    NetConnectDefault(const QString& defaultName, bool userSet) : name(defaultName), isUserSet(userSet) {}
    bool operator==(const NetConnectDefault& other) const { return name == other.name && isUserSet == other.isUserSet; }
    bool operator!=(const NetConnectDefault& other) const { return !(*this == other); }

    QString name;
    bool isUserSet;
};

// One default that a profile file names: the plain one, or that of a multi-mode card's mode.
struct ProfileDefaultEntry {
    enum Kind { Plain, CDMA, WCDMA };
    Kind kind;
    NetConnectDefault value;
};

// A value; its texts are those of the file, names untranslated.
struct ProfileDocument {
    // Becomes what a document in our own writers' form says; false, and nothing, for any other, which read() reads.
    bool scan(const QByteArray& content);

    // The same as scan(), but leaves the profiles to readRest() or to whoever wants some of them.
    bool look(const QByteArray& content);
    void readRest();

    // Reads on to the end, or to the first error, which the reader then has; what was read before it stays.
    void read(QXmlStreamReader& reader);

    // The whole document as UTF-8; empty when a text holds what XML can't.
    QByteArray write() const;

    // Takes what XML 1.0 forbids out of every text.
    void clean();

    // The same as clean() and write().
    QByteArray writeClean();

    QList<DialupProfile> profiles;
    QList<ProfileDefaultEntry> defaults;    // in file order
    QSharedPointer<UnreadProfiles> unread;  // the profiles, as long as they are not read; null otherwise

private:
    bool scanAll(const QByteArray& content);
};

#endif
