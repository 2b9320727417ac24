// SPDX-License-Identifier: MIT
#include "NetConnectFilesAhead.h"

#include <new>
#include <system_error>

#include "FileReplacement.h"

template <class Document>
void NetConnectFilesAhead::File<Document>::read(bool (Document::*scan)(const QByteArray& content)) {
    try {
        Reason ignored;
        QByteArray content;
        stamp = FileStamp::of(path);
        isRead = stamp.settled && FileReplacement::read(path, &content, &ignored) == FileReplacement::Done &&
                 (document.*scan)(content);
    } catch (const std::bad_alloc&) {
        isRead = false;
    }
}

template <class Document>
bool NetConnectFilesAhead::File<Document>::moveTo(Document* target, const QString& wanted, const FileStamp& now) {
    const bool isWanted = isRead && path == wanted && stamp == now;
    if (isWanted) *target = document;
    *this = File();
    return isWanted;
}

void NetConnectFilesAhead::begin(const QString& configuration, const QString& library) {
    finish();
    m_Configuration = File<NetConnectConfigDocument>();
    m_Library = File<ProfileDocument>();
    m_Configuration.path = configuration;
    m_Library.path = library;
    try {
        m_Thread = std::thread([this] {
            m_Configuration.read(&NetConnectConfigDocument::scan);
            m_Library.read(&ProfileDocument::look);
        });
    } catch (const std::system_error&) {
        // Without a thread nothing is read ahead.
    }
}

bool NetConnectFilesAhead::take(const QString& path, const FileStamp& stamp, NetConnectConfigDocument* document) {
    finish();
    return m_Configuration.moveTo(document, path, stamp);
}

bool NetConnectFilesAhead::take(const QString& path, const FileStamp& stamp, ProfileDocument* document) {
    finish();
    return m_Library.moveTo(document, path, stamp);
}

void NetConnectFilesAhead::finish() {
    if (m_Thread.joinable()) m_Thread.join();
}
