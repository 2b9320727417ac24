// SPDX-License-Identifier: MIT
// A test's own folders: user data, host settings and a library path with shipped files, all temporary.
#ifndef ORBISDIAL_TESTFOLDER_H
#define ORBISDIAL_TESTFOLDER_H

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <QtTest>

class TestFolder {
public:
    // Makes the folders and points the environment at them. The simulated modem must be asked for before the
    // first device call, since the SDK chooses its backend once.
    TestFolder() {
        QDir().mkpath(pluginDir());
        QDir().mkpath(path("library/lang"));
        qputenv("ORBISDIAL_DATA_DIR", QFile::encodeName(path("data")));
        qputenv("ORBISDIAL_CONFIG_DIR", QFile::encodeName(path("config")));
        qputenv("ORBISDIAL_LIBRARY_PATH", QFile::encodeName(path("library")));
    }

    QString path(const QString& name) const { return m_Root.path() + "/" + name; }
    QString pluginDir() const { return path("library/plugins/NetConnectPlugin"); }
    QString userFile() const { return path("data/UserProfile.prof"); }

    // The language that the test runs in.
    static QByteArray language() {
        const QByteArray chosen = qgetenv("ORBISDIAL_TEST_LANGUAGE");
        return chosen.isEmpty() ? "en" : chosen;
    }

    // Writes a file, making its folder.
    static void write(const QString& file, const QByteArray& content) {
        QDir().mkpath(QFileInfo(file).path());
        QFile out(file);
        QVERIFY2(out.open(QIODevice::WriteOnly | QIODevice::Truncate), qPrintable(file));
        QCOMPARE(out.write(content), qint64(content.size()));
    }

    // A file of the library path: NetConnectConfig.xml, ProfileLib.prof or SysProfile.prof.
    void ship(const QString& name, const QByteArray& content) const { write(pluginDir() + "/" + name, content); }

    static QByteArray read(const QString& file) {
        QFile in(file);
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_Root;
};

#endif
