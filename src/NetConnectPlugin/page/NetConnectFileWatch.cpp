// SPDX-License-Identifier: MIT
#include "NetConnectFileWatch.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

// Milliseconds; by then a stamp tells the file from a later one, and a program that writes often has not been followed
// at each step.
static const int Moment = 150;

// The nearest folder above a place that is there.
static QString folderAbove(const QString& place) {
    QString path = place;
    do {
        const QString above = QFileInfo(path).absolutePath();
        if (above == path) break;
        path = above;
    } while (!QFileInfo(path).isDir());
    return path;
}

NetConnectFileWatch::NetConnectFileWatch(QObject* parent) : QObject(parent), m_bSeen(false) {
    m_Timer.setSingleShot(true);
    m_Timer.setInterval(Moment);
    connect(&m_Timer, SIGNAL(timeout()), this, SLOT(look()));
    connect(&m_Watcher, SIGNAL(directoryChanged(QString)), this, SLOT(lookSoon()));
    connect(&m_Watcher, SIGNAL(fileChanged(QString)), this, SLOT(lookSoon()));
}

void NetConnectFileWatch::setFile(const QString& path) {
    if (path == m_strFile) return;
    m_strFile = path;
    m_bSeen = false;  // it may have changed since the caller read it
    watchPlaces();
    lookSoon();
}

// The timer is not started again, or a busy program would keep it from running out.
void NetConnectFileWatch::lookSoon() {
    if (!m_Timer.isActive()) m_Timer.start();
}

void NetConnectFileWatch::look() {
    watchPlaces();
    const FileStamp now = FileStamp::of(m_strFile);
    if (m_bSeen && now == m_Seen) return;
    m_Seen = now;
    m_bSeen = true;
    emit changed();
}

// The file itself, for what is written in place; its folder, since a replaced file takes the watch with it; and the
// folder above, since a replaced folder does the same. All of them anew: a name may stand for another inode now.
void NetConnectFileWatch::watchPlaces() {
    const QStringList before = m_Watcher.files() + m_Watcher.directories();
    if (!before.isEmpty()) m_Watcher.removePaths(before);
    if (m_strFile.isEmpty()) return;
    const QString folder = folderAbove(m_strFile);
    m_Watcher.addPath(folder);
    m_Watcher.addPath(folderAbove(folder));
    if (QFileInfo(m_strFile).exists()) m_Watcher.addPath(m_strFile);
}
