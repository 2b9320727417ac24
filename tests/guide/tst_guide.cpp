// SPDX-License-Identifier: MIT
// The guide for authors of plug-ins, followed to the letter: its text is the source of a plug-in that is built against
// an installed tree, put where the guide says, and loaded.
#include <QRegularExpression>

#include "Host.h"
#include "Program.h"
#include "TestFolder.h"

class tst_guide : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QVERIFY(run({"--install", ORBISDIAL_BUILD_DIR, "--prefix", m_Folder.path("usr")}));
        const QByteArray guide = TestFolder::read(ORBISDIAL_SOURCE_DIR "/docs/plugin-authors.md");
        TestFolder::write(m_Folder.path("example/CMakeLists.txt"), block(guide, "cmake"));
        TestFolder::write(m_Folder.path("example/ExamplePlugin.cpp"), block(guide, "cpp"));
    }

    void buildsAgainstAnInstalledTree() {
        QStringList configure{"-S", m_Folder.path("example"), "-B", m_Folder.path("build"),
                              "-DCMAKE_PREFIX_PATH=" + m_Folder.path("usr")};
        configure += QString(CMAKE_ARGUMENTS).split('|');
        QVERIFY(run(configure));
        QVERIFY(run({"--build", m_Folder.path("build")}));
    }

    void isLoadedAndHears() {
        const QString libraries = folderOf("orbisdial");
        QVERIFY2(!libraries.isEmpty(), "the library path is not installed");
        QVERIFY(QDir().mkpath(libraries + "/plugins/ExamplePlugin"));
        QVERIFY(QFile::copy(m_Folder.path("build/libExamplePlugin.so"),
                            libraries + "/plugins/ExamplePlugin/libExamplePlugin.so"));
        qputenv("ORBISDIAL_LIBRARY_PATH", QFile::encodeName(libraries));
        const Outcome outcome =
            runProgram(m_Folder.path("usr/bin/orbisdial"), {"--screenshot", m_Folder.path("picture.png")});
        QVERIFY2(outcome.status == 0 && !outcome.err.contains("libExamplePlugin"), outcome.err);

        Host host;
        host.start();
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression("[1-9][0-9]* profiles"));
        QVERIFY(host.changeLanguage("de"));
    }

private:
    // The first block of the guide in a language.
    static QByteArray block(const QByteArray& guide, const QByteArray& language) {
        const QByteArray start = "```" + language + '\n';
        const int from = guide.indexOf(start) + start.size();
        return guide.mid(from, guide.indexOf("```", from) - from);
    }

    static bool run(const QStringList& arguments) {
        const int longest = 240000;  // ms, of a compiler on a busy machine
        QProcess cmake;
        cmake.setProcessChannelMode(QProcess::MergedChannels);
        cmake.start(CMAKE_PROGRAM, arguments);
        const bool isDone = cmake.waitForFinished(longest) && cmake.exitCode() == 0;
        if (!isDone) qWarning("%s", cmake.readAll().constData());
        return isDone;
    }

    // Where the distribution puts libraries is its own choice.
    QString folderOf(const QString& name) const {
        for (const char* place : {"lib", "lib64", "lib/x86_64-linux-gnu", "lib/i386-linux-gnu"}) {
            const QString folder = m_Folder.path("usr/") + place + '/' + name;
            if (QDir(folder + "/plugins").exists()) return folder;
        }
        return QString();
    }

    const TestFolder m_Folder;
};

QTEST_MAIN(tst_guide)

#include "tst_guide.moc"
