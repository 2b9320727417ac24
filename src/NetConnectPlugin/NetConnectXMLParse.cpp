// SPDX-License-Identifier: MIT
#include "NetConnectXMLParse.h"

#include <QFileInfo>
#include <QStringList>

#include "CommonUtilsBase.h"
#include "ReasonText.h"

#ifndef ORBISDIAL_BUILD_TIME
#define ORBISDIAL_BUILD_TIME "unknown build time"
#endif

static NetConnectXMLParse* m_pNetConnectXMLParse = nullptr;

NetConnectXMLParse* NetConnectXMLParse::GetInstance() {
    if (!m_pNetConnectXMLParse) m_pNetConnectXMLParse = new NetConnectXMLParse;
    return m_pNetConnectXMLParse;
}

void NetConnectXMLParse::Destroy() {
    delete m_pNetConnectXMLParse;
    m_pNetConnectXMLParse = nullptr;
}

NetConnectDeviceInfo* NetConnectXMLParse::GetCurrentDeviceInfo() { return &m_DeviceInfo; }

QString NetConnectXMLParse::getUserDataDirectory() {
    qDebug("%s: %s: %s before caling VRKS_GetUserDataDirectory()", ORBISDIAL_BUILD_TIME, __FILE__,
           "getUserDataDirectory");
    long retVal = 0;
    const QString result = NetConnectDevice::userDataDirectory(&retVal);
    qDebug("%s: %s: %s after caling VRKS_GetUserDataDirectory(), retVal=%ld", ORBISDIAL_BUILD_TIME, __FILE__,
           "getUserDataDirectory", retVal);
    return result;
}

QString NetConnectXMLParse::userProfilePath() {
    const QString directory = getUserDataDirectory();
    if (!directory.isEmpty()) return directory + QLatin1String(NetConnectFileNames::User);
    reportProblem(QLatin1String(NetConnectFileNames::User), Reason("the user data directory can't be had"));
    return QString();
}

QString NetConnectXMLParse::shippedPath(const char* fileName) {
    return CommonUtilsBase::GetPluginLibraryPath() + QLatin1String("/plugins/NetConnectPlugin/") +
           QLatin1String(fileName);
}

// What can't be looked at counts too, and a link that leads nowhere: whoever put it there wants to hear of it.
static bool isThere(const QString& path) { return FileStamp::of(path).exists() || QFileInfo(path).isSymLink(); }

QString NetConnectXMLParse::configurationPath() {
    const QStringList folders = CommonUtilsBase::GetConfigurationFolders();
    for (int i = 0; i < folders.size(); ++i) {
        const QString path = folders.at(i) + QLatin1Char('/') + QLatin1String(NetConnectFileNames::Configuration);
        if (isThere(path)) return path;
    }
    return shippedPath(NetConnectFileNames::Configuration);
}

void NetConnectXMLParse::reportProblem(const QString& file, const Reason& reason, qint64 line, qint64 column) {
    m_bKeepProblem = false;
    m_Problem.file = file;
    m_Problem.reason = reason;
    m_Problem.line = line;
    m_Problem.column = column;
}

void NetConnectXMLParse::reportOutOfMemory(const QString& path) {
    qDebug("Error open file: ");
    reportProblem(path, Reason("there is not enough memory for it"));
}

void NetConnectXMLParse::clearProblem(const QString& file) {
    if (!m_bKeepProblem && m_Problem.file == file) m_Problem = NetConnectStorageProblem();
}

int NetConnectXMLParse::readFile(const QString& path, QByteArray* content) {
    Reason reason;
    const FileReplacement::Outcome outcome = FileReplacement::read(path, content, &reason);
    if (outcome == FileReplacement::Done) return 0;
    if (outcome == FileReplacement::Missing) {
        qDebug("File %s does not exist", qPrintable(path));
        return NetConnectStatus::FileMissing;
    }
    qDebug("Error open file: ");
    reportProblem(path, Reason("can't be read: %1").arg(reason));
    return NetConnectStatus::FileNotOpened;
}

void NetConnectXMLParse::traceReadError(const char* function) { qDebug("%s: %s: Read Error: n", __FILE__, function); }

int NetConnectXMLParse::reportReadError(const QXmlStreamReader& reader, const QString& path) {
    reportProblem(path, Reason(reader.errorString()), reader.lineNumber(), reader.columnNumber());
    return NetConnectStatus::ReadError;
}

int NetConnectXMLParse::writeFile(const QString& path, const QByteArray& content, FileReplacement::Purpose purpose,
                                  FileReplacement::Placing placing) {
    Reason reason = Reason("can't be written as XML");
    FileReplacement::Outcome outcome = FileReplacement::Failed;
    if (!content.isEmpty()) {
        reason = Reason();
        outcome = FileReplacement::write(path, content, purpose, placing, &reason);
    }
    if (outcome == FileReplacement::Taken) return TargetAppeared;
    if (outcome != FileReplacement::Done) {
        qDebug("Error open file: ");
        reportProblem(path, reason);
        return NetConnectStatus::FileNotOpened;
    }
    clearProblem(path);
    if (!reason.isEmpty()) reportProblem(path, reason);
    return 0;
}
