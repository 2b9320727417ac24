// SPDX-License-Identifier: MIT
// Where a path leads: a folder, held open, and a name in it.
#ifndef ORBISDIAL_FILEPLACE_H
#define ORBISDIAL_FILEPLACE_H

#include <QByteArray>
#include <QString>

#include "Descriptor.h"

// Whoever may write into a folder can plant a link there. So links are followed one by one: in a folder that everybody
// writes to (sticky) only those of ours and of the folder's owner, and as root only root's, in root's folders. What is
// done in the folder that is held open can't be led elsewhere any more.
class FilePlace {
public:
    // Finds the folder; the file itself need not exist, and is no link. False, with the reason, when it can't be had;
    // isMissing() tells whether because something on the way does not exist.
    bool open(const QString& path, Reason* reason);

    bool isMissing() const { return m_bMissing; }
    int folder() const { return m_Folder.get(); }
    const QByteArray& name() const { return m_Name; }
    void setName(const QByteArray& name) { m_Name = name; }

    // The path without the links.
    QString path() const;

    // True when what is there could be looked at; errno says why not.
    bool look(struct stat* info) const {
        return ::fstatat(folder(), m_Name.constData(), info, AT_SYMLINK_NOFOLLOW) == 0;
    }

    bool operator==(const FilePlace& other) const;

private:
    bool fail(const char* what, Reason* reason);
    bool enter(int from, const QByteArray& name);
    bool followLink(const QByteArray& name, const struct stat& link, QByteArray* rest, Reason* reason);

    Descriptor m_Folder;
    QByteArray m_FolderPath;  // ends with a slash; empty for the current folder
    QByteArray m_Name;
    bool m_bMissing = false;
};

#endif
