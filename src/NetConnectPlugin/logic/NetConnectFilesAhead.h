// SPDX-License-Identifier: MIT
// Reads the shipped files on a thread of its own while whoever needs them next is busy with something else.
#ifndef ORBISDIAL_NETCONNECTFILESAHEAD_H
#define ORBISDIAL_NETCONNECTFILESAHEAD_H

#include <QString>
#include <thread>

#include "FileStamp.h"
#include "NetConnectConfigDocument.h"
#include "ProfileDocument.h"

// For one thread, which must not change the files meanwhile through this process. What can't be read, or is not in our
// own tools' form, is left to whoever reads it later and tells of it.
class NetConnectFilesAhead {
public:
    NetConnectFilesAhead() {}
    ~NetConnectFilesAhead() { finish(); }

    void begin(const QString& configuration, const QString& library);

    // Becomes what was read ahead, once, where the file still has the stamp. Waits for the reading.
    bool take(const QString& path, const FileStamp& stamp, NetConnectConfigDocument* document);
    bool take(const QString& path, const FileStamp& stamp, ProfileDocument* document);

private:
    Q_DISABLE_COPY(NetConnectFilesAhead)

    template <class Document>
    struct File {
        QString path;
        FileStamp stamp;  // taken before the file was read
        bool isRead = false;
        Document document;

        void read(bool (Document::*scan)(const QByteArray& content));
        bool moveTo(Document* target, const QString& wanted, const FileStamp& now);
    };

    void finish();

    File<NetConnectConfigDocument> m_Configuration;
    File<ProfileDocument> m_Library;
    std::thread m_Thread;
};

#endif
