// Reading and writing of profile files.

#include "FileReplacement.h"
#include "NetConnectXMLParse.h"
#include "ProfileDocumentWriter.h"
#include "Trace.h"
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

// The profiles with clean texts; the same list when they are clean already.
QList<DialupProfile> cleaned(const QList<DialupProfile>& profiles) {
    QList<DialupProfile> result = profiles;
    for (int i = 0; i < profiles.size(); ++i) {
        for (int field = 0; field < DialupProfileFieldCount; ++field) {
            QString DialupProfile::*const member = DialupProfileFields[field].member;
            const QString text = XmlText::clean(profiles.at(i).*member);
            if (text.size() != (profiles.at(i).*member).size()) result[i].*member = text;
        }
    }
    return result;
}

void writeUserSet(QXmlStreamWriter& xml, bool isUserSet) {
    if (isUserSet) xml.writeAttribute(QLatin1String("IsUserSet"), QLatin1String("1"));
}

}  // namespace

QString NetConnectXMLParse::profilePath(const QString& fileName) {
    if (fileName.isEmpty()) return userProfilePath();
    if (fileName == QLatin1String("ProfileLib.prof")) return shippedPath("ProfileLib.prof");
    return fileName;
}

NetConnectXMLParse::KeptFile* NetConnectXMLParse::keptFile(const QString& fileName) {
    if (fileName.isEmpty()) return &m_User;
    return fileName == QLatin1String("ProfileLib.prof") ? &m_Library : 0;
}

int NetConnectXMLParse::GetAllProfileFromUserDataXML(QList<DialupProfile>* profiles, QString* defaultName,
                                                     QString fileName, bool* isUserSet) {
    const TraceScope trace(__FILE__, "GetAllProfileFromUserDataXML");
    ProfileDocument document;
    const int status = loadDocument(profilePath(fileName), keptFile(fileName), &document);
    if (status == 23 || status == 25) return status;
    applyDocument(document, profiles, defaultName, isUserSet);
    return status;
}

// Parses a file, or takes what is kept of it when it has not changed.
int NetConnectXMLParse::loadDocument(const QString& path, KeptFile* kept, ProfileDocument* document) {
    const FileStamp stamp = FileStamp::of(path);
    if (kept && kept->isCurrent(path, stamp)) {
        *document = kept->document;
        if (kept->isComplete) return 0;
        qDebug("%s: %s: Read Error: n", __FILE__, "readXML");
        reportProblem(path, kept->damage.reason, kept->damage.line, kept->damage.column);
        return 6;
    }
    QByteArray content;
    int status = readFile(path, &content);
    if (status == 0 && kept && kept->isOf(path, content)) {
        kept->stamp = stamp;
        if (stamp.settled) kept->content.clear();
        clearProblem(path);
        *document = kept->document;
        return 0;
    }
    if (status == 0) {
        const QString refusal = XmlText::refusal(content);
        QXmlStreamReader reader(content);
        if (!refusal.isEmpty()) reader.raiseError(refusal);
        status = parseDocument(reader, document);
        if (status == 6) readError(reader, path, "readXML");
    }
    if (status == 0 || status == 23) clearProblem(path);
    if (!kept) return status;
    kept->path = path;
    kept->stamp = stamp;
    kept->isComplete = status == 0;
    kept->document = *document;
    kept->damage = status == 6 ? m_Problem : NetConnectStorageProblem();
    kept->content = status == 0 && !stamp.settled ? content : QByteArray();
    ++kept->revision;
    return status;
}

int NetConnectXMLParse::readXML(QXmlStreamReader& reader, QList<DialupProfile>* profiles, QString* defaultName,
                                bool* isUserSet) {
    ProfileDocument document;
    const int status = parseDocument(reader, &document);
    if (status == 6) readError(reader, QString(), "readXML");
    applyDocument(document, profiles, defaultName, isUserSet);
    return status;
}

int NetConnectXMLParse::parseDocument(QXmlStreamReader& reader, ProfileDocument* document) {
    ValuePool pool;
    bool inModeDefaults = false;
    while (!reader.atEnd()) {
        reader.readNext();
        XmlText::refuseDeclarations(reader);
        if (reader.hasError()) return 6;
        if (reader.isEndElement() && reader.name() == QLatin1String("MultiModeDefaultProfile")) inModeDefaults = false;
        if (!reader.isStartElement()) continue;

        if (reader.name() == QLatin1String("Profile")) {
            document->profiles.append(DialupProfile());
            readProfile(reader.attributes(), &pool, &document->profiles.last());
        } else if (reader.name() == QLatin1String("Default")) {
            const DefaultEntry entry = {DefaultEntry::Plain, readDefault(reader.attributes())};
            document->defaults.append(entry);
        } else if (reader.name() == QLatin1String("MultiModeDefaultProfile")) {
            inModeDefaults = true;
        } else if (inModeDefaults && reader.name() == QLatin1String("item")) {
            const bool isCDMA = reader.attributes().value(QLatin1String("value")) == QLatin1String("CDMA");
            const DefaultEntry entry = {isCDMA ? DefaultEntry::CDMA : DefaultEntry::WCDMA,
                                        readDefault(reader.attributes())};
            document->defaults.append(entry);
        }
    }
    return reader.hasError() ? 6 : 0;
}

void NetConnectXMLParse::applyDocument(const ProfileDocument& document, QList<DialupProfile>* profiles,
                                       QString* defaultName, bool* isUserSet) {
    bool answered = false;
    const NetConnectCardMode card = NetConnectCardMode::current(&answered);
    if (answered && card.mode != NetConnectCardMode::None)
        qDebug("%s : %s: %s: Get MultiMode Status Success! dwCardMode: %d", traceTime().constData(), __FILE__,
               "readXML", int(card.mode));
    if (isUserSet) *isUserSet = false;
    if (profiles->isEmpty())
        *profiles = document.profiles;
    else
        *profiles += document.profiles;
    for (int i = 0; i < document.defaults.size(); ++i)
        applyDefault(document.defaults.at(i), card, defaultName, isUserSet);
    qDebug("%s : %s: %s: Exit. DefaultProfile: %s UserSet: %d.", traceTime().constData(), __FILE__, "readXML",
           qPrintable(*defaultName), isUserSet && *isUserSet ? 1 : 0);
}

// Remembers one default of a file, and answers with it when it is the one for the card's mode.
void NetConnectXMLParse::applyDefault(const DefaultEntry& entry, const NetConnectCardMode& card, QString* defaultName,
                                      bool* isUserSet) {
    if (entry.kind == DefaultEntry::Plain) {
        *defaultName = entry.value.name;
        if (!entry.value.name.isEmpty()) m_Remembered.plain.name = entry.value.name;
        m_Remembered.plain.isUserSet = entry.value.isUserSet;
        if (isUserSet && !card.isMultiMode) *isUserSet = entry.value.isUserSet;
        return;
    }
    const bool isCDMA = entry.kind == DefaultEntry::CDMA;
    (isCDMA ? m_Remembered.cdma : m_Remembered.wcdma) = entry.value;
    if (isCDMA ? !card.isCDMA() : !card.isWCDMA()) return;
    *defaultName = entry.value.name;
    if (isUserSet) *isUserSet = entry.value.isUserSet;
    qDebug("%s : %s: %s: Using Multi Mode Card, read %s from %s default. UserSet: %d.", traceTime().constData(),
           __FILE__, "readXML", qPrintable(entry.value.name), isCDMA ? "CDMA" : "WCDMA", entry.value.isUserSet ? 1 : 0);
}

int NetConnectXMLParse::SaveProfileToXML(QList<DialupProfile> profiles, QString defaultName, QString fileName,
                                         bool isUserSet) {
    const TraceScope trace(__FILE__, "SaveProfileToXML");
    const bool isUserFile = fileName.isEmpty();
    const QString path = isUserFile ? userProfilePath() : fileName;
    if (path.isEmpty()) {
        qDebug("Error open file: ");
        return 25;
    }
    if (!prepareTarget(path, isUserFile ? m_User : KeptFile())) return 25;

    ProfileDocument document;
    document.profiles = cleaned(profiles);
    if (!isUserFile) return writeFile(path, writeDocument(document), false);

    const NetConnectDefault value(defaultName, isUserSet);
    const NetConnectRememberedDefaults remembered = withModeDefault(value);
    document.defaults = defaultEntries(value, remembered);
    const QByteArray content = writeDocument(document);
    const int status = writeFile(path, content, false);
    if (status != 0) return status;
    m_Remembered = remembered;
    m_User.path = path;
    m_User.stamp = FileStamp::of(path);
    m_User.stamp.settled = false;  // another program may write before this stamp could tell: the bytes must
    m_User.isComplete = true;
    m_User.damage = NetConnectStorageProblem();
    m_User.document = document;
    m_User.content = content;
    return 0;
}

// The remembered defaults after this one was saved under the card mode of the moment.
NetConnectRememberedDefaults NetConnectXMLParse::withModeDefault(const NetConnectDefault& value) const {
    NetConnectRememberedDefaults remembered = m_Remembered;
    const NetConnectCardMode card = NetConnectCardMode::current();
    if (!card.isCDMA() && !card.isWCDMA()) return remembered;
    (card.isCDMA() ? remembered.cdma : remembered.wcdma) = value;
    qDebug("%s : %s: %s: Using Multi Mode Card, set %s to %s default. UserSet: %d.", traceTime().constData(), __FILE__,
           "SaveProfileToXML", qPrintable(value.name), card.isCDMA() ? "CDMA" : "WCDMA", value.isUserSet ? 1 : 0);
    return remembered;
}

bool NetConnectXMLParse::isModeDefault(const NetConnectDefault& value) const {
    const NetConnectCardMode card = NetConnectCardMode::current();
    if (card.isCDMA()) return m_Remembered.cdma == value;
    return !card.isWCDMA() || m_Remembered.wcdma == value;
}

QList<NetConnectXMLParse::DefaultEntry> NetConnectXMLParse::defaultEntries(
    const NetConnectDefault& value, const NetConnectRememberedDefaults& remembered) {
    const DefaultEntry all[] = {
        {DefaultEntry::Plain, value}, {DefaultEntry::WCDMA, remembered.wcdma}, {DefaultEntry::CDMA, remembered.cdma}};
    QList<DefaultEntry> entries;
    for (size_t i = 0; i < sizeof(all) / sizeof(all[0]); ++i) {
        if (all[i].kind != DefaultEntry::Plain && all[i].value.name.isEmpty()) continue;
        entries.append(all[i]);
        entries.last().value.name = XmlText::clean(all[i].value.name);
    }
    return entries;
}

// Writes the plain default, which comes first, and the card's modes' defaults, if there are any.
void NetConnectXMLParse::writeDefaults(QXmlStreamWriter& xml, const QList<DefaultEntry>& defaults) {
    for (int i = 0; i < defaults.size(); ++i) {
        const DefaultEntry& entry = defaults.at(i);
        if (i == 1) xml.writeStartElement(QLatin1String("MultiModeDefaultProfile"));
        xml.writeEmptyElement(QLatin1String(entry.kind == DefaultEntry::Plain ? "Default" : "item"));
        xml.writeAttribute(QLatin1String("name"), entry.value.name);
        if (entry.kind != DefaultEntry::Plain)
            xml.writeAttribute(QLatin1String("value"),
                               QLatin1String(entry.kind == DefaultEntry::CDMA ? "CDMA" : "WCDMA"));
        writeUserSet(xml, entry.value.isUserSet);
    }
    if (defaults.size() > 1) xml.writeEndElement();
}

QByteArray NetConnectXMLParse::writeDocument(const ProfileDocument& document) {
    ProfileDocumentWriter writer;
    writer.startGroup();
    for (int i = 0; i < document.profiles.size(); ++i) writer.writeProfile(document.profiles.at(i));
    writer.xml().writeEndElement();
    writeDefaults(writer.xml(), document.defaults);
    return writer.finish();
}

// Makes sure that replacing a file loses nothing: one that can't be read stays, a damaged one is copied first.
bool NetConnectXMLParse::prepareTarget(const QString& path, const KeptFile& kept) {
    const FileStamp stamp = FileStamp::of(path);
    if (!stamp.exists()) return true;
    if (kept.isComplete && kept.path == path && kept.stamp == stamp) return true;

    QByteArray content;
    if (readFile(path, &content) != 0) return false;
    ProfileDocument document;
    QXmlStreamReader reader(content);
    const QString refusal = XmlText::refusal(content);
    if (!refusal.isEmpty()) reader.raiseError(refusal);
    if (content.isEmpty() || parseDocument(reader, &document) == 0) return true;

    QString copy;
    QString reason;
    if (!FileReplacement::keepDamaged(path, &copy, &reason)) {
        qDebug("Error open file: ");
        reportProblem(path, reason);
        return false;
    }
    reportProblem(
        path, QString::fromLatin1("was damaged (%1); the damaged file is kept as %2").arg(reader.errorString(), copy),
        reader.lineNumber(), reader.columnNumber());
    m_bKeepProblem = true;
    return true;
}
