// SPDX-License-Identifier: MIT
// Reading and writing of profile files.

#include <new>

#include "Change.h"
#include "FileReplacement.h"
#include "NetConnectXMLParse.h"
#include "ReasonText.h"
#include "Trace.h"
#include "XmlText.h"

QString NetConnectXMLParse::profilePath(const QString& fileName) {
    if (fileName.isEmpty()) return userProfilePath();
    if (fileName == QLatin1String(NetConnectFileNames::Library)) return shippedPath(NetConnectFileNames::Library);
    return fileName;
}

NetConnectXMLParse::KeptFile* NetConnectXMLParse::keptFile(const QString& fileName) {
    if (fileName.isEmpty()) return &m_User;
    return fileName == QLatin1String(NetConnectFileNames::Library) ? &m_Library : nullptr;
}

int NetConnectXMLParse::GetAllProfileFromUserDataXML(QList<DialupProfile>* profiles, QString* defaultName,
                                                     QString fileName, bool* isUserSet) {
    const TraceScope trace(__FILE__, "GetAllProfileFromUserDataXML");
    if (!profiles || !defaultName) return NetConnectStatus::FileMissing;
    ProfileDocument document;
    const int status = openDocument(fileName, false, &document);
    if (status == NetConnectStatus::FileMissing || status == NetConnectStatus::FileNotOpened) return status;
    applyDocument(document, status == 0, profiles, defaultName, isUserSet);
    if (fileName.isEmpty()) m_bUserFileRead = true;
    return status;
}

int NetConnectXMLParse::LookIntoLibrary(ProfileDocument* library, QString* defaultName) {
    const TraceScope trace(__FILE__, "GetAllProfileFromUserDataXML");
    const int status = openDocument(QLatin1String(NetConnectFileNames::Library), true, library);
    if (status == NetConnectStatus::FileMissing || status == NetConnectStatus::FileNotOpened) return status;
    QList<DialupProfile> ignoredProfiles;
    applyDocument(*library, status == 0, &ignoredProfiles, defaultName, nullptr);
    return status;
}

int NetConnectXMLParse::openDocument(const QString& fileName, bool leavesProfiles, ProfileDocument* document) {
    const QString path = profilePath(fileName);
    try {
        const int status = loadDocument(path, keptFile(fileName), document);
        if (!leavesProfiles) document->readRest();
        return status;
    } catch (const std::bad_alloc&) {
        reportOutOfMemory(path);
        return NetConnectStatus::FileNotOpened;
    }
}

bool NetConnectXMLParse::KeptFile::isTold() const { return !damage.isNull() && language == Change::GetLangName(); }

// Parses a file, or takes what is kept of it when it has not changed.
int NetConnectXMLParse::loadDocument(const QString& path, KeptFile* kept, ProfileDocument* document) {
    const FileStamp stamp = FileStamp::of(path);
    if (kept && kept->isCurrent(path, stamp)) {
        *document = kept->document;
        if (kept->isComplete) return 0;
        reportProblem(path, kept->damage.reason, kept->damage.line, kept->damage.column);
        return NetConnectStatus::ReadError;
    }
    QByteArray content;
    const bool isReadAhead = kept == &m_Library && m_Ahead.take(path, stamp, document);
    int status = isReadAhead ? 0 : readFile(path, &content);
    // One failed look is no proof.
    if (status == NetConnectStatus::FileMissing && FileStamp::of(path).exists()) status = readFile(path, &content);
    if (status == 0 && kept && kept->isOf(path, content)) {
        kept->stamp = stamp;
        if (stamp.settled) kept->content.clear();
        clearProblem(path);
        *document = kept->document;
        return 0;
    }
    if (status == 0 && !isReadAhead) status = parseDocument(path, content, kept == &m_Library, document);
    if (status == 0 || status == NetConnectStatus::FileMissing) clearProblem(path);
    if (!kept) return status;
    kept->path = path;
    kept->stamp = stamp;
    kept->isComplete = status == 0;
    kept->document = *document;
    kept->damage = status == NetConnectStatus::ReadError ? m_Problem : NetConnectStorageProblem();
    kept->language = Change::GetLangName();
    kept->content = status == 0 && !stamp.settled ? content : QByteArray();
    ++kept->revision;
    return status;
}

int NetConnectXMLParse::parseDocument(const QString& path, const QByteArray& content, bool leavesProfiles,
                                      ProfileDocument* document) {
    if (leavesProfiles ? document->look(content) : document->scan(content)) return 0;
    const QString refusal = XmlText::refusal(content);
    QXmlStreamReader reader(content);
    if (!refusal.isEmpty()) reader.raiseError(refusal);
    document->read(reader);
    return reader.hasError() ? reportReadError(reader, path) : 0;
}

int NetConnectXMLParse::readXML(QXmlStreamReader& reader, QList<DialupProfile>* profiles, QString* defaultName,
                                bool* isUserSet) {
    if (!profiles || !defaultName) return NetConnectStatus::FileMissing;
    ProfileDocument document;
    document.read(reader);
    const int status = reader.hasError() ? reportReadError(reader, QString()) : 0;
    applyDocument(document, status == 0, profiles, defaultName, isUserSet);
    return status;
}

void NetConnectXMLParse::applyDocument(const ProfileDocument& document, bool isComplete, QList<DialupProfile>* profiles,
                                       QString* defaultName, bool* isUserSet) {
    const NetConnectDevice::Caller caller = {__FILE__, "readXML"};
    const NetConnectCardMode card = NetConnectDevice::cardMode(caller);
    if (profiles->isEmpty())
        *profiles = document.profiles;
    else
        *profiles += document.profiles;
    for (int i = 0; i < document.defaults.size(); ++i)
        applyDefault(document.defaults.at(i), card, defaultName, isUserSet);
    if (!isComplete) traceReadError("readXML");
    qDebug("%s : %s: %s: Exit. DefaultProfile: %s UserSet: %d.", traceTime().constData(), __FILE__, "readXML",
           qPrintable(*defaultName), isUserSet && *isUserSet ? 1 : 0);
}

// Remembers one default of a file, and answers with it when it is the one for the card's mode.
void NetConnectXMLParse::applyDefault(const ProfileDefaultEntry& entry, const NetConnectCardMode& card,
                                      QString* defaultName, bool* isUserSet) {
    if (entry.kind == ProfileDefaultEntry::Plain) {
        *defaultName = entry.value.name;
        if (!entry.value.name.isEmpty()) m_Remembered.plain.name = entry.value.name;
        m_Remembered.plain.isUserSet = entry.value.isUserSet;
        // Where the file has no item for a card's mode the flag stays what it was; at first it was nothing.
        if (isUserSet && (!card.isMultiMode || !m_bUserFileRead)) *isUserSet = entry.value.isUserSet;
        return;
    }
    const bool isCDMA = entry.kind == ProfileDefaultEntry::CDMA;
    (isCDMA ? m_Remembered.cdma : m_Remembered.wcdma) = entry.value;
    if (isCDMA ? !card.isCDMA() : !card.isWCDMA()) return;
    *defaultName = entry.value.name;
    if (isUserSet) *isUserSet = entry.value.isUserSet;
    qDebug("%s : %s: %s: Using Multi Mode Card, read %s from %s default. UserSet: %d.", traceTime().constData(),
           __FILE__, "readXML", qPrintable(entry.value.name), isCDMA ? "CDMA" : "WCDMA", entry.value.isUserSet ? 1 : 0);
}

int NetConnectXMLParse::SaveProfileToXML(QList<DialupProfile> profiles, QString defaultName, QString fileName,
                                         bool isUserSet, FileReplacement::Placing placing) {
    const TraceScope trace(__FILE__, "SaveProfileToXML");
    const bool isUserFile = fileName.isEmpty();
    const QString path = isUserFile ? userProfilePath() : fileName;
    if (path.isEmpty()) {
        qDebug("Error open file: ");
        return NetConnectStatus::FileNotOpened;
    }
    try {
        return saveDocument(profiles, NetConnectDefault(defaultName, isUserSet), path, isUserFile, placing);
    } catch (const std::bad_alloc&) {
        reportOutOfMemory(path);
        return NetConnectStatus::FileNotOpened;
    }
}

int NetConnectXMLParse::saveDocument(const QList<DialupProfile>& profiles, const NetConnectDefault& value,
                                     const QString& path, bool isUserFile, FileReplacement::Placing placing) {
    const FileReplacement::Purpose purpose = isUserFile ? FileReplacement::UserFile : FileReplacement::Export;
    FileReplacement::DamagedCopy damaged;
    if (!prepareTarget(path, isUserFile ? m_User : KeptFile(), purpose, &damaged))
        return NetConnectStatus::FileNotOpened;

    ProfileDocument document;
    document.profiles = profiles;
    if (!isUserFile) return writeOver(path, document.writeClean(), purpose, placing, &damaged);
    const NetConnectRememberedDefaults remembered = withModeDefault(value);
    document.defaults = defaultEntries(value, remembered);
    const QByteArray content = document.writeClean();
    const int status = writeOver(path, content, purpose, placing, &damaged);
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
    const NetConnectCardMode card = NetConnectDevice::cardMode();
    if (!card.isCDMA() && !card.isWCDMA()) return remembered;
    (card.isCDMA() ? remembered.cdma : remembered.wcdma) = value;
    qDebug("%s : %s: %s: Using Multi Mode Card, set %s to %s default. UserSet: %d.", traceTime().constData(), __FILE__,
           "SaveProfileToXML", qPrintable(value.name), card.isCDMA() ? "CDMA" : "WCDMA", value.isUserSet ? 1 : 0);
    return remembered;
}

bool NetConnectXMLParse::isModeDefault(const NetConnectDefault& value) const {
    const NetConnectCardMode card = NetConnectDevice::cardMode();
    if (card.isCDMA()) return m_Remembered.cdma == value;
    return !card.isWCDMA() || m_Remembered.wcdma == value;
}

QList<ProfileDefaultEntry> NetConnectXMLParse::defaultEntries(const NetConnectDefault& value,
                                                              const NetConnectRememberedDefaults& remembered) {
    const ProfileDefaultEntry all[] = {{ProfileDefaultEntry::Plain, value},
                                       {ProfileDefaultEntry::WCDMA, remembered.wcdma},
                                       {ProfileDefaultEntry::CDMA, remembered.cdma}};
    QList<ProfileDefaultEntry> entries;
    for (size_t i = 0; i < sizeof(all) / sizeof(all[0]); ++i) {
        if (all[i].kind != ProfileDefaultEntry::Plain && all[i].value.name.isEmpty()) continue;
        entries.append(all[i]);
    }
    return entries;
}

// Makes sure that replacing a file loses nothing: one that can't be read stays, a damaged one is copied first.
bool NetConnectXMLParse::prepareTarget(const QString& path, const KeptFile& kept, FileReplacement::Purpose purpose,
                                       FileReplacement::DamagedCopy* copy) {
    const FileStamp stamp = FileStamp::of(path);
    if (!stamp.exists()) return true;
    if (kept.isComplete && kept.path == path && kept.stamp == stamp) return true;

    QByteArray content;
    const int status = readFile(path, &content);
    if (status != 0) return status == NetConnectStatus::FileMissing;
    ProfileDocument document;
    if (document.scan(content)) return true;
    QXmlStreamReader reader(content);
    const QString refusal = XmlText::refusal(content);
    if (!refusal.isEmpty()) reader.raiseError(refusal);
    document.read(reader);
    if (content.isEmpty() || !reader.hasError()) return true;

    Reason reason;
    if (!copy->make(path, content, purpose, &reason)) {
        qDebug("Error open file: ");
        reportProblem(path, Reason("is damaged, and can't be kept: %1").arg(reason));
        return false;
    }
    reportProblem(
        path, Reason("was damaged (%1); the damaged file is kept as %2").arg(reader.errorString()).arg(copy->path()),
        reader.lineNumber(), reader.columnNumber());
    m_bKeepProblem = true;
    return true;
}

// The copy of what was damaged stays only when it is needed.
int NetConnectXMLParse::writeOver(const QString& path, const QByteArray& content, FileReplacement::Purpose purpose,
                                  FileReplacement::Placing placing, FileReplacement::DamagedCopy* damaged) {
    const int status = writeFile(path, content, purpose, placing);
    if (status == 0) damaged->keep();
    return status;
}
