// SPDX-License-Identifier: MIT
// A password with a mark goes through everything that one can do with a profile: the mark is found nowhere but where
// it belongs. orbisctl says what the logic traces, and the problems that arise.

#include <errno.h>

#include <QDirIterator>

#include "OrbisctlFixture.h"
#include "Rows.h"

static const char Mark[] = "mArKeD-pAsSwOrD";

class tst_secrets : public QObject {
    Q_OBJECT

private slots:
    void passwordsStayHidden_data() {
        const Rows<bool> row("encrypts");
        row("sealed", true);
        row("plain", false);
    }
    void passwordsStayHidden() {
        QFETCH(bool, encrypts);
        const OrbisctlFixture fixture;
        QByteArray config = TestFolder::read(fixture.pluginDir() + "/NetConnectConfig.xml");
        if (!encrypts) config.replace("\"ENCRYPT\" value=\"true\"", "\"ENCRYPT\" value=\"false\"");
        fixture.ship("NetConnectConfig.xml", config);
        useAll(fixture);
        checkFiles(fixture.path(""), encrypts);
    }

private:
    static void useAll(const OrbisctlFixture& fixture) {
        qputenv("ORBISDIAL_SIM_DS_USER", "user");
        qputenv("ORBISDIAL_SIM_DS_PASSWORD", Mark);
        const QString exported = fixture.path("export.prof");
        const QByteArray saves = "SaveProfileToXML", full = "write=" + QByteArray::number(ENOSPC);
        const struct {
            QStringList arguments;
            int status;
            QByteArray said, fault;
        } commands[] = {
            {{"add", "A", "password=-"}, 0, saves, {}},
            {{"show", "A"}, 0, {}, {}},
            {{"--json", "show", "A"}, 0, {}, {}},
            {{"set", "A", "name=B", "password=-"}, 0, saves, {}},
            {{"set", "B", "password=-", "nofield=1"}, 2, {}, {}},
            {{"export", exported, "B"}, 0, saves, {}},
            {{"import", exported}, 0, {}, {}},
            {{"set", "B", "user=changed"}, 0, saves, {}},
            {{"import", exported, "--replace"}, 0, saves, {}},
            {{"default", "B"}, 0, saves, {}},
            {{"add", "C", "password=-"}, 0, saves, {}},
            {{"delete", "C"}, 0, saves, {}},
            {{"add", "X", Mark}, 2, {}, {}},
            {{"add", "X", QString("apn=") + Mark + '='}, 1, "apn", {}},
            {{"device"}, 0, {}, {}},
            {{"connect", "B"}, 0, {}, {}},
            {{"backup", fixture.path("backup of export.prof")}, 0, {}, {}},
            {{"set", "B", "user=u", "password=-"}, 1, "No space left", full},
            {{"export", exported, "B"}, 1, "No space left", full},
            {{"add", "D", "password=-"}, 0, "was damaged", {}},
        };
        for (const auto& command : commands) {
            if (command.said == "was damaged") damage(fixture.userFile());
            qputenv("ORBISDIAL_TEST_FAULT", command.fault);
            const Outcome outcome = fixture.run(QStringList("--trace") + command.arguments, Mark);
            qunsetenv("ORBISDIAL_TEST_FAULT");
            QVERIFY2(outcome.status == command.status && outcome.err.contains(command.said), outcome.err);
            QVERIFY2(!(outcome.out + outcome.err).contains(Mark), qPrintable(command.arguments.join(' ')));
        }
        QCOMPARE(fixture.show("B")["password"].toString(), QString(Mark));
    }

    static void damage(const QString& file) {
        const QByteArray content = TestFolder::read(file);
        TestFolder::write(file, content.left(content.lastIndexOf("<Default ")));
        QFile::setPermissions(file, QFile::ReadOwner | QFile::ReadOther);
    }

    // Sealed passwords stand in no file as they are; plain ones in the user's file, the exported and the damaged one,
    // which nobody else may read.
    static void checkFiles(const QString& folder, bool encrypts) {
        QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        bool found = false;
        while (files.hasNext()) {
            const QString file = files.next();
            const bool isPrivate = files.fileName().startsWith("UserProfile.prof") || file.endsWith("export.prof");
            const bool holdsMark = TestFolder::read(file).contains(Mark);
            found |= holdsMark;
            QVERIFY2(!holdsMark || (isPrivate && !encrypts), qPrintable(file));
            const QFile::Permissions others = QFile::ReadGroup | QFile::ReadOther;
            QVERIFY2(!isPrivate || !(files.fileInfo().permissions() & others), qPrintable(file));
        }
        QCOMPARE(found, !encrypts);
    }
};

QTEST_GUILESS_MAIN(tst_secrets)
#include "tst_secrets.moc"
