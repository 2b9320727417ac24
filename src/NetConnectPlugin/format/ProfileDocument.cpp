#include "ProfileDocument.h"

#include <QHash>

#include "ProfileDocumentWriter.h"
#include "XmlText.h"

namespace {

// Profile files repeat few values many times: a value equal to its field's last one, or to one that was seen not long
// ago in any field, shares its text. Names do not repeat and would only crowd others out.
class ValuePool {
public:
    QString shared(int field, const QStringRef& value) {
        if (field == NameField) return value.toString();
        QString& last = m_Last[field];
        if (value == last) return last;
        QString& seen = m_Seen[qHash(value) % SeenCount];
        if (value != seen) seen = value.toString();
        last = seen;
        return last;
    }

private:
    enum { NameField = 0, SeenCount = 1024 };
    QString m_Last[DialupProfileFieldCount];
    QString m_Seen[SeenCount];
};

// The field of an attribute; -1 for none. The writer's order is tried first.
int fieldOf(const QStringRef& attribute, int expected) {
    for (int i = 0; i < DialupProfileFieldCount; ++i) {
        const int field = (expected + i) % DialupProfileFieldCount;
        if (attribute == QLatin1String(DialupProfileFields[field].attribute)) return field;
    }
    return -1;
}

void readProfile(const QXmlStreamAttributes& attributes, ValuePool* pool, DialupProfile* profile) {
    int expected = 0;
    for (int i = 0; i < attributes.size(); ++i) {
        const int field = fieldOf(attributes.at(i).qualifiedName(), expected);
        if (field < 0) continue;
        profile->*DialupProfileFields[field].member = pool->shared(field, attributes.at(i).value());
        expected = field + 1;
    }
}

NetConnectDefault readDefault(const QXmlStreamAttributes& attributes) {
    return NetConnectDefault(attributes.value(QLatin1String("name")).toString(),
                             attributes.value(QLatin1String("IsUserSet")) == QLatin1String("1"));
}

// Writes the plain default, which comes first, and the card's modes' defaults, if there are any.
void writeDefaults(ProfileDocumentWriter& writer, const QList<ProfileDefaultEntry>& defaults) {
    for (int i = 0; i < defaults.size(); ++i) {
        const ProfileDefaultEntry& entry = defaults.at(i);
        if (i == 1) writer.startElement("MultiModeDefaultProfile");
        writer.emptyElement(entry.kind == ProfileDefaultEntry::Plain ? "Default" : "item");
        writer.attribute("name", entry.value.name);
        if (entry.kind != ProfileDefaultEntry::Plain)
            writer.attribute("value", QLatin1String(entry.kind == ProfileDefaultEntry::CDMA ? "CDMA" : "WCDMA"));
        if (entry.value.isUserSet) writer.attribute("IsUserSet", QLatin1String("1"));
    }
    if (defaults.size() > 1) writer.endElement();
}

}  // namespace

void ProfileDocument::read(QXmlStreamReader& reader) {
    ValuePool pool;
    bool inModeDefaults = false;
    while (!reader.atEnd()) {
        reader.readNext();
        XmlText::refuseDeclarations(reader);
        if (reader.hasError()) return;
        if (reader.isEndElement() && reader.name() == QLatin1String("MultiModeDefaultProfile")) inModeDefaults = false;
        if (!reader.isStartElement()) continue;

        if (reader.name() == QLatin1String("Profile")) {
            profiles.append(DialupProfile());
            readProfile(reader.attributes(), &pool, &profiles.last());
        } else if (reader.name() == QLatin1String("Default")) {
            const ProfileDefaultEntry entry = {ProfileDefaultEntry::Plain, readDefault(reader.attributes())};
            defaults.append(entry);
        } else if (reader.name() == QLatin1String("MultiModeDefaultProfile")) {
            inModeDefaults = true;
        } else if (inModeDefaults && reader.name() == QLatin1String("item")) {
            const bool isCDMA = reader.attributes().value(QLatin1String("value")) == QLatin1String("CDMA");
            const ProfileDefaultEntry entry = {isCDMA ? ProfileDefaultEntry::CDMA : ProfileDefaultEntry::WCDMA,
                                               readDefault(reader.attributes())};
            defaults.append(entry);
        }
    }
}

QByteArray ProfileDocument::write() const {
    ProfileDocumentWriter writer;
    writer.startGroup();
    for (int i = 0; i < profiles.size(); ++i) writer.writeProfile(profiles.at(i));
    writer.endElement();
    writeDefaults(writer, defaults);
    return writer.finish();
}

// Only what changes is written, so that a list that is clean already goes on sharing its memory.
void ProfileDocument::clean() {
    const QList<DialupProfile> before = profiles;
    for (int i = 0; i < before.size(); ++i) {
        for (int field = 0; field < DialupProfileFieldCount; ++field) {
            QString DialupProfile::*const member = DialupProfileFields[field].member;
            const QString text = XmlText::clean(before.at(i).*member);
            if (text.size() != (before.at(i).*member).size()) profiles[i].*member = text;
        }
    }
    for (int i = 0; i < defaults.size(); ++i) defaults[i].value.name = XmlText::clean(defaults.at(i).value.name);
}
