// SPDX-License-Identifier: MIT
// The program as a user starts it: arguments, exit status, and the picture.
#include <signal.h>

#include <QImage>

#include "Program.h"
#include "Rows.h"
#include "TestFolder.h"

class tst_orbisdial : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QDir().rmdir(m_Folder.path("library/lang"));
        QVERIFY(QFile::link(TEXTS_DIR, m_Folder.path("library/lang")));
        const QString folder = m_Folder.path("library/plugins/FakeSettingsPlugin");
        QVERIFY(QDir().mkpath(folder) && QFile::link(FAKE_PLUGIN, folder + "/libFakeSettingsPlugin.so"));
        TestFolder::write(m_Folder.path("library/plugins/Broken/libBroken.so"), "no library at all");
    }

    void runs_data() {
        const Rows<QStringList, int, QString> row("arguments", "status", "said");
        const QStringList picture = {"--screenshot", m_Picture};
        const QString nowhere = m_Folder.path("no such folder/picture.png");
        row("picture", picture, 0, "libBroken.so: it can't be loaded");
        row("picture of a page", picture + QStringList{"--page", "Fake page", "--lang", "ar"}, 0, "");
        row("unknown modem", picture + QStringList{"--device", "wrong"}, 2, "\"wrong\"");
        row("picture not written", {"--screenshot", nowhere}, 1, nowhere);
        row("language", {"--lang", "xx"}, 2, "en, ar, de, es, fr, ru, zh_CN");
        row("picture of an import", picture + QStringList("x.prof"), 2, "a file to import");
        row("page", {"--page", "None"}, 2, "FakeSettingsPlugin, Host");
        row("no display", {"-platform", "nowhere"}, 1, "no window can be opened: Could not find");
        row("no display, wrong option", {"-platform", "nowhere", "--wrong"}, 2, "Unknown option 'wrong'");
    }

    void runs() {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QString, said);
        QFile::remove(m_Picture);
        const Outcome outcome = runProgram(ORBISDIAL_PROGRAM, arguments);
        QVERIFY2(outcome.status == status, outcome.err);
        QVERIFY2(outcome.err.contains(said.toUtf8()), outcome.err);
        QCOMPARE(QImage(m_Picture, "PNG").width() > 300, status == 0);
    }

    void speaksTheUsersLanguage_data() {
        const Rows<QStringList, QByteArray, QString> row("arguments", "LANGUAGE", "said");
        row("English", {"--help"}, "ja", "Connection manager for");
        row("the system's", {"--help"}, "de", QString::fromUtf8("Verbindungsmanager f\u00fcr"));
        row("the one wanted", {"--help", "--lang", "es"}, "de", "Gestor de conexiones");
        row("a fault", {"--lang", "es", "--page", "None"}, "de", QString::fromUtf8("no existe la p\u00e1gina"));
    }
    void speaksTheUsersLanguage() {
        qputenv("LC_ALL", "ja_JP.UTF-8");
        qputenv("LANGUAGE", cell<QByteArray>("LANGUAGE"));
        const Outcome outcome = runProgram(ORBISDIAL_PROGRAM, cell<QStringList>("arguments"));
        qputenv("LC_ALL", "C.UTF-8");
        qunsetenv("LANGUAGE");
        QVERIFY2((outcome.out + outcome.err).contains(cell<QString>("said").toUtf8()), outcome.out + outcome.err);
    }

    // As when its window is closed: a default that only the SIM card proposed does not stay behind.
    void endsInOrderWhenASignalAsksForIt_data() {
        const Rows<int> row("number");
        row("Ctrl+C", SIGINT);
        row("kill", SIGTERM);
        row("the session ends", SIGHUP);
    }
    void endsInOrderWhenASignalAsksForIt() {
        QFETCH(int, number);
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("ORBISDIAL_LIBRARY_PATH", ORBISDIAL_LIBRARY_DIR);
        environment.insert("ORBISDIAL_DEVICE", "simulated");
        program.setProcessEnvironment(environment);
        program.start(ORBISDIAL_PROGRAM, QStringList());
        QTRY_VERIFY(TestFolder::read(m_Folder.userFile()).contains("<Default name=\"US"));
        QTest::qWait(100);  // the file is there before the window
        QCOMPARE(::kill(pid_t(program.processId()), number), 0);
        QVERIFY(program.waitForFinished());
        QVERIFY(program.exitStatus() == QProcess::NormalExit && program.exitCode() == 0);
        QVERIFY(TestFolder::read(m_Folder.userFile()).contains("<Default name=\"\"/>"));
    }

    // The second start asks the first one to come to the front, and ends; other folders are another program.
    void startsOnce() {
        const QString runner = QStandardPaths::findExecutable("dbus-run-session");
        if (runner.isEmpty()) QSKIP("no dbus-run-session");
        const QString script =
            QStringLiteral(
                "%1 & first=$!; sleep 1; timeout 20 %1; echo second $?; kill -0 $first && echo first runs; "
                "ORBISDIAL_CONFIG_DIR=%2 timeout 2 %1; echo other $?; kill $first; wait $first")
                .arg(ORBISDIAL_PROGRAM, m_Folder.path("other"));
        const Outcome outcome = runProgram(runner, {"--", "sh", "-c", script});
        QVERIFY2(outcome.out.startsWith("second 0\nfirst runs\nother "), outcome.out + outcome.err);
        QVERIFY2(!outcome.out.contains("other 0"), outcome.out);  // it runs until the time is over
    }

private:
    const TestFolder m_Folder;
    const QString m_Picture = m_Folder.path("picture.png");
};

QTEST_GUILESS_MAIN(tst_orbisdial)
#include "tst_orbisdial.moc"
