#include "NetConnectXMLParse.h"

#include "CommonUtilsBase.h"
#include "Trace.h"
#include "XmlText.h"
#include "vrks.h"

#ifndef ORBISDIAL_BUILD_TIME
#define ORBISDIAL_BUILD_TIME "unknown build time"
#endif

static NetConnectXMLParse* m_pNetConnectXMLParse = 0;

NetConnectXMLParse* NetConnectXMLParse::GetInstance() {
    if (!m_pNetConnectXMLParse) m_pNetConnectXMLParse = new NetConnectXMLParse;
    return m_pNetConnectXMLParse;
}

void NetConnectXMLParse::Destroy() {
    delete m_pNetConnectXMLParse;
    m_pNetConnectXMLParse = 0;
}

NetConnectCardMode NetConnectCardMode::current(bool* answered) {
    unsigned char isMultiMode = 0;
    unsigned int mode = 0;
    NetConnectCardMode card;
    const bool success = VRKS_DevSrv_GetMultiModeCardStatus(&isMultiMode, 0, 0, &mode) == 0;
    if (answered) *answered = success;
    if (!success) return card;
    card.isMultiMode = isMultiMode != 0;
    card.mode = mode;
    return card;
}

NetConnectDeviceInfo* NetConnectXMLParse::GetCurrentDeviceInfo() { return &m_DeviceInfo; }

QString NetConnectXMLParse::getUserDataDirectory() {
    qDebug("%s: %s: %s before caling VRKS_GetUserDataDirectory()", ORBISDIAL_BUILD_TIME, __FILE__,
           "getUserDataDirectory");
    unsigned short* directory = 0;
    const long retVal = VRKS_GetUserDataDirectory(&directory);
    qDebug("%s: %s: %s after caling VRKS_GetUserDataDirectory(), retVal=%ld", ORBISDIAL_BUILD_TIME, __FILE__,
           "getUserDataDirectory", retVal);
    QString result;
    if (retVal == 0 && directory) result = QString::fromUtf16(directory);
    delete[] directory;
    return result;
}

QString NetConnectXMLParse::userProfilePath() {
    const QString directory = getUserDataDirectory();
    if (!directory.isEmpty()) return directory + QLatin1String("UserProfile.prof");
    reportProblem(QLatin1String("UserProfile.prof"), QLatin1String("the user data directory can't be had"));
    return QString();
}

QString NetConnectXMLParse::shippedPath(const char* fileName) {
    return CommonUtilsBase::GetPluginLibraryPath() + QLatin1String("/plugins/NetConnectPlugin/") +
           QLatin1String(fileName);
}

void NetConnectXMLParse::reportProblem(const QString& file, const QString& reason, qint64 line, qint64 column) {
    m_bKeepProblem = false;
    m_Problem.file = file;
    m_Problem.reason = reason;
    m_Problem.line = line;
    m_Problem.column = column;
}

void NetConnectXMLParse::reportOutOfMemory(const QString& path) {
    qDebug("Error open file: ");
    reportProblem(path, QLatin1String("there is not enough memory for it"));
}

void NetConnectXMLParse::clearProblem(const QString& file) {
    if (!m_bKeepProblem && m_Problem.file == file) m_Problem = NetConnectStorageProblem();
}

int NetConnectXMLParse::readFile(const QString& path, QByteArray* content) {
    QString reason;
    const FileReplacement::Outcome outcome = FileReplacement::read(path, content, &reason);
    if (outcome == FileReplacement::Done) return 0;
    if (outcome == FileReplacement::Missing) {
        qDebug("File %s does not exist", qPrintable(path));
        return 23;
    }
    qDebug("Error open file: ");
    reportProblem(path, QLatin1String("can't be read: ") + reason);
    return 25;
}

void NetConnectXMLParse::traceReadError(const char* function) { qDebug("%s: %s: Read Error: n", __FILE__, function); }

int NetConnectXMLParse::reportReadError(const QXmlStreamReader& reader, const QString& path) {
    reportProblem(path, reader.errorString(), reader.lineNumber(), reader.columnNumber());
    return 6;
}

int NetConnectXMLParse::writeFile(const QString& path, const QByteArray& content, FileReplacement::Purpose purpose,
                                  FileReplacement::Placing placing) {
    QString reason = content.isEmpty() ? QLatin1String("can't be written as XML") : XmlText::refusal(content);
    FileReplacement::Outcome outcome = FileReplacement::Failed;
    if (reason.isEmpty()) outcome = FileReplacement::write(path, content, purpose, placing, &reason);
    if (outcome == FileReplacement::Taken) return TargetAppeared;
    if (outcome != FileReplacement::Done) {
        qDebug("Error open file: ");
        reportProblem(path, reason);
        return 25;
    }
    clearProblem(path);
    if (!reason.isEmpty()) reportProblem(path, reason);
    return 0;
}
