// SPDX-License-Identifier: MIT
// Tells that a file may have changed, whoever changed it and however: replaced, written in place, removed, made.
#ifndef ORBISDIAL_NETCONNECTFILEWATCH_H
#define ORBISDIAL_NETCONNECTFILEWATCH_H

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

#include "FileStamp.h"

// Its folder may come later, or go and come back. Sleeps while nothing happens. GUI thread.
class NetConnectFileWatch : public QObject {
    Q_OBJECT

public:
    explicit NetConnectFileWatch(QObject* parent);

    // Full path; an empty one watches nothing.
    void setFile(const QString& path);

signals:
    // Once for all that happens within a moment.
    void changed();

private slots:
    void lookSoon();
    void look();

private:
    void watchPlaces();

    QString m_strFile;
    FileStamp m_Seen;
    bool m_bSeen;
    QFileSystemWatcher m_Watcher;
    QTimer m_Timer;
};

#endif
