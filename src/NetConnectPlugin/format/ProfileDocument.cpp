// SPDX-License-Identifier: MIT
#include "ProfileDocument.h"

#include <QHash>

#include "ProfileDocumentWriter.h"
#include "XmlScanner.h"
#include "XmlText.h"

namespace {

const char ProfileElement[] = "Profile";
const char ModeDefaults[] = "MultiModeDefaultProfile";

// The text by which a pool knows a value again. A reader's value is gone with its element; a scanner's stays.
void remember(const TextPart&, const QString& text, QString* key) { *key = text; }
void remember(const XmlPiece& value, const QString&, XmlPiece* key) { *key = value; }

// Profile files repeat few values many times: a value equal to its field's last one, or to one that was seen not long
// ago in any field, shares its text. Names do not repeat and would only crowd others out.
template <class Value, class Key>
class ValuePool {
public:
    QString shared(int field, const Value& value) {
        if (field == NameField) return value.toString();
        Entry& last = m_Last[field];
        if (!(value == last.key)) {
            Entry& seen = m_Seen[qHash(value) % SeenCount];
            if (!(value == seen.key)) {
                seen.text = value.toString();
                remember(value, seen.text, &seen.key);
            }
            last = seen;
        }
        return last.text;
    }

private:
    enum { NameField = 0, SeenCount = 1024 };
    struct Entry {
        Key key;
        QString text;
    };
    Entry m_Last[DialupProfileFieldCount];
    Entry m_Seen[SeenCount];
};

bool isField(const TextPart& attribute, int field) {
    return attribute == QLatin1String(DialupProfileFields[field].attribute);
}
bool isField(const XmlPiece& attribute, int field) { return attribute == DialupProfileFields[field].attribute; }

// The field of an attribute; -1 for none. The writer's order is tried first.
template <class Name>
int findField(const Name& attribute, int expected) {
    for (int i = 0; i < DialupProfileFieldCount; ++i) {
        const int field = (expected + i) % DialupProfileFieldCount;
        if (isField(attribute, field)) return field;
    }
    return -1;
}

// Finds the fields of attributes by name and place.
class FieldFinder {
public:
    int fieldOf(const TextPart& attribute, int, int expected) const { return findField(attribute, expected); }

    // The scanner keeps the piece of a name that comes again at its place.
    int fieldOf(const XmlPiece& attribute, int place, int expected) {
        Known& known = m_Known[place];
        if (known.name != attribute.begin) {
            known.name = attribute.begin;
            known.field = findField(attribute, expected);
        }
        return known.field;
    }

private:
    struct Known {
        Known() : name(nullptr), field(-1) {}
        const char* name;
        int field;
    };
    Known m_Known[XmlScanner::MostAttributes];
};

// Takes elements, from Qt's reader or from the scanner, into a document.
template <class Element, class Pool>
class ProfileElements {
public:
    explicit ProfileElements(ProfileDocument* document) : m_Document(document), m_InModeDefaults(false) {}

    void start(const Element& element) {
        QList<DialupProfile>& profiles = m_Document->profiles;
        if (element.isNamed(ProfileElement)) {
            if (element.hasFormerNames())
                profiles.append(profiles.at(profiles.size() - 1));
            else
                profiles.append(DialupProfile());
            readProfile(element, &profiles.last());
        } else if (element.isNamed("Default")) {
            readDefault(element, ProfileDefaultEntry::Plain);
        } else if (element.isNamed(ModeDefaults)) {
            m_InModeDefaults = true;
        } else if (m_InModeDefaults && element.isNamed("item")) {
            const bool isCDMA = element.value("value") == QLatin1String("CDMA");
            readDefault(element, isCDMA ? ProfileDefaultEntry::CDMA : ProfileDefaultEntry::WCDMA);
        }
    }

    void endModeDefaults() { m_InModeDefaults = false; }

private:
    // What the former profile had, too, is there already.
    void readProfile(const Element& element, DialupProfile* profile) {
        int expected = 0;
        for (int i = element.nextChanged(0); i < element.attributeCount(); i = element.nextChanged(i + 1)) {
            const int field = m_Fields.fieldOf(element.attributeName(i), i, expected);
            if (field < 0) continue;
            profile->*DialupProfileFields[field].member = m_Pool.shared(field, element.attributeValue(i));
            expected = field + 1;
        }
    }

    void readDefault(const Element& element, ProfileDefaultEntry::Kind kind) {
        const bool isUserSet = element.value("IsUserSet") == QLatin1String("1");
        const ProfileDefaultEntry entry = {kind, NetConnectDefault(element.value("name"), isUserSet)};
        m_Document->defaults.append(entry);
    }

    ProfileDocument* m_Document;
    Pool m_Pool;
    FieldFinder m_Fields;
    bool m_InModeDefaults;
};

// Writes the plain default, which comes first, and the card's modes' defaults, if there are any.
void writeDefaults(ProfileDocumentWriter& writer, const QList<ProfileDefaultEntry>& defaults) {
    for (int i = 0; i < defaults.size(); ++i) {
        const ProfileDefaultEntry& entry = defaults.at(i);
        if (i == 1) writer.startElement(ModeDefaults);
        writer.emptyElement(entry.kind == ProfileDefaultEntry::Plain ? "Default" : "item");
        writer.attribute("name", entry.value.name);
        if (entry.kind != ProfileDefaultEntry::Plain)
            writer.attribute("value", QLatin1String(entry.kind == ProfileDefaultEntry::CDMA ? "CDMA" : "WCDMA"));
        if (entry.value.isUserSet) writer.attribute("IsUserSet", QLatin1String("1"));
    }
    if (defaults.size() > 1) writer.endElement();
}

}  // namespace

typedef ProfileElements<XmlScanner, ValuePool<XmlPiece, XmlPiece> > ScannedElements;

bool ProfileDocument::scan(const QByteArray& content) {
    ProfileDocument scanned;
    if (!scanned.scanAll(content)) return false;
    *this = scanned;
    return true;
}

bool ProfileDocument::look(const QByteArray& content) {
    ProfileDocument looked;
    looked.unread = QSharedPointer<UnreadProfiles>(new UnreadProfiles(content));
    if (!looked.scanAll(content)) return false;
    *this = looked;
    return true;
}

bool ProfileDocument::scanAll(const QByteArray& content) {
    XmlScanner scanner(content);
    ScannedElements elements(this);
    for (XmlScanner::Token token = scanner.next(); token != XmlScanner::End; token = scanner.next()) {
        if (token == XmlScanner::Unknown) return false;
        if (token == XmlScanner::EndElement) {
            if (scanner.isNamed(ModeDefaults)) elements.endModeDefaults();
        } else if (unread && scanner.isNamed(ProfileElement)) {
            unread->add(scanner);
        } else {
            elements.start(scanner);
        }
    }
    return true;
}

void ProfileDocument::readRest() {
    if (!unread) return;
    profiles = unread->all();
    unread.clear();
}

void UnreadProfiles::add(const XmlScanner& scanner) {
    if (!scanner.hasFormerNames()) {
        m_pName = scanner.find("name");
        m_pLangid = scanner.find("langid");
    }
    Place place;
    place.begin = scanner.elementBegin();
    if (m_pName) place.name = *m_pName;
    if (m_pLangid && m_pLangid->size > 0) m_bHasLangids = true;
    m_Places.append(place);
}

bool UnreadProfiles::find(const QString& name, DialupProfile* profile) {
    if (m_Last.isEmpty() || m_Last.first().name != name) {
        int place = 0;
        while (place < m_Places.size() && !m_Places.at(place).name.isText(name)) ++place;
        if (place == m_Places.size()) return false;
        const char* const begin = m_Places.at(place).begin;
        const int rest = int(m_Content.constData() + m_Content.size() - begin);
        XmlScanner scanner(QByteArray::fromRawData(begin, rest));
        scanner.next();
        ProfileDocument found;
        ScannedElements(&found).start(scanner);
        m_Last = found.profiles;
    }
    *profile = m_Last.first();
    return true;
}

const QList<DialupProfile>& UnreadProfiles::all() {
    ProfileDocument document;
    if (m_All.isEmpty() && document.scan(m_Content)) m_All = document.profiles;
    return m_All;
}

void ProfileDocument::read(QXmlStreamReader& reader) {
    ProfileElements<XmlReaderElement, ValuePool<TextPart, QString> > elements(this);
    while (!reader.atEnd()) {
        reader.readNext();
        XmlText::refuseDeclarations(reader);
        if (reader.hasError()) return;
        if (reader.isStartElement())
            elements.start(XmlReaderElement(reader));
        else if (reader.isEndElement() && reader.name() == QLatin1String(ModeDefaults))
            elements.endModeDefaults();
    }
}

static QByteArray written(const ProfileDocument& document, bool* isClean) {
    ProfileDocumentWriter writer;
    writer.startGroup();
    writer.writeProfiles(document.profiles);
    writer.endElement();
    writeDefaults(writer, document.defaults);
    *isClean = writer.isClean();
    return writer.finish();
}

QByteArray ProfileDocument::write() const {
    bool isClean = true;
    return written(*this, &isClean);
}

// Most documents are clean already; whoever writes them looks at each character anyway.
QByteArray ProfileDocument::writeClean() {
    bool isClean = true;
    const QByteArray content = written(*this, &isClean);
    if (isClean) return content;
    clean();
    return write();
}

// Only what changes is written, so that a list that is clean already goes on sharing its memory.
void ProfileDocument::clean() {
    const QList<DialupProfile> before = profiles;
    for (int i = 0; i < before.size(); ++i) {
        for (int field = 0; field < DialupProfileFieldCount; ++field) {
            QString DialupProfile::*const member = DialupProfileFields[field].member;
            const QString& dirty = before.at(i).*member;
            if (dirty.isEmpty()) continue;
            const QString text = XmlText::clean(dirty);
            if (text.size() != dirty.size()) profiles[i].*member = text;
        }
    }
    for (int i = 0; i < defaults.size(); ++i) defaults[i].value.name = XmlText::clean(defaults.at(i).value.name);
}
