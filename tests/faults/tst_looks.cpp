// SPDX-License-Identifier: MIT
// One look at the user's file fails, whichever and however: the command fails with a line and the file is as it was, or
// it did what it was told and nothing is lost.

#include <errno.h>
#include <utime.h>

#include <QtTest>

#include "OrbisctlFixture.h"
#include "Rows.h"

class tst_looks : public QObject {
    Q_OBJECT

private slots:
    void noFailedLookLosesAProfile_data() {
        const Rows<QStringList, QStringList> row("command", "names");
        row("add", {"add", "New", "autoapn=true", "phonenumber=*99#"}, {"First", "New", "Second"});
        row("set", {"set", "Second", "user=somebody"}, {"First", "Second"});
        row("rename", {"set", "Second", "name=Third"}, {"First", "Third"});
        row("delete", {"delete", "Second"}, {"First"});
        row("default", {"default", "Second"}, {"First", "Second"});
        row("clear", {"default", "--clear"}, {"First", "Second"});
        row("import", {"import", "IMPORT"}, {"First", "Imported", "Second"});
        row("import --replace", {"import", "--replace", "IMPORT"}, {"First", "Imported", "Second"});
    }
    void noFailedLookLosesAProfile() {
        const int errors[] = {EIO, EMFILE, ENOMEM, ESTALE, EACCES};
        const int mostLooks = 100;
        for (int n = 1; n <= mostLooks; ++n) {
            bool wasLooked = false;
            for (const int error : {ENOENT, errors[n % 5]}) {
                checkLook(n, error, &wasLooked);
                if (QTest::currentTestFailed()) return;
            }
            if (wasLooked) continue;
            QVERIFY2(n > 3, "hardly a look failed");
            return;
        }
        QFAIL("no end of looks");
    }

    // A listing must not show an empty list either.
    void aReaderLooksTwice() {
        const OrbisctlFixture fixture;
        prepare(fixture);
        const Outcome outcome = runWithFault(fixture, {"list"}, 1, ENOENT);
        QCOMPARE(outcome.status, 0);
        QVERIFY2(outcome.out.contains("First") && outcome.out.contains("Second"), outcome.out);
    }

private:
    static void checkLook(int n, int error, bool* wasLooked) {
        QFETCH(QStringList, command);
        QFETCH(QStringList, names);
        const OrbisctlFixture fixture;
        prepare(fixture);
        command.replaceInStrings("IMPORT", fixture.path("import.prof"));
        const QByteArray before = OrbisctlFixture::read(fixture.userFile());
        const Outcome outcome = runWithFault(fixture, command, n, error);
        *wasLooked = *wasLooked || QFile::exists(fixture.path("failed"));

        const QByteArray place =
            "look " + QByteArray::number(n) + ": " + QByteArray(strerror(error)) + ": " + outcome.err;
        if (outcome.status != 0) {
            QVERIFY2(outcome.err.startsWith("orbisctl: ") && outcome.err.count('\n') == 1, place);
            QVERIFY2(OrbisctlFixture::read(fixture.userFile()) == before, place);
        } else {
            QVERIFY2(userNames(fixture) == names, place + OrbisctlFixture::read(fixture.userFile()));
        }
        QVERIFY2(QDir(fixture.path("data")).entryList({"*.damaged-*", "*.tmp-*"}, QDir::Files | QDir::Hidden).isEmpty(),
                 place);
    }

    // A file whose time is in the future counts as changed at every look.
    static void prepare(const OrbisctlFixture& fixture) {
        fixture.writeUser("<Profile name='First'/><Profile name='Second'/>", "<Default name='First' IsUserSet='1'/>");
        utimbuf future = {time(nullptr) + 3600, time(nullptr) + 3600};
        QCOMPARE(utime(qPrintable(fixture.userFile()), &future), 0);
        OrbisctlFixture::write(fixture.path("import.prof"),
                               "<vrksdoc><ProfileGroup><Profile name='Imported'/></ProfileGroup></vrksdoc>");
    }

    static Outcome runWithFault(const OrbisctlFixture& fixture, const QStringList& command, int n, int error) {
        const QString fault = QString("%1:%2:UserProfile.prof").arg(n).arg(error);
        qputenv("ORBISDIAL_TEST_LOOK", fault.toLatin1());
        qputenv("ORBISDIAL_TEST_LOOK_FAILED", QFile::encodeName(fixture.path("failed")));
        const Outcome outcome = OrbisctlFixture::run(command);
        qunsetenv("ORBISDIAL_TEST_LOOK");
        return outcome;
    }

    static QStringList userNames(const OrbisctlFixture& fixture) {
        QStringList names;
        QRegularExpression profile("<Profile name=.([^'\"]*)");
        auto match = profile.globalMatch(QString::fromUtf8(OrbisctlFixture::read(fixture.userFile())));
        while (match.hasNext()) names.append(match.next().captured(1));
        names.sort();
        return names;
    }
};

QTEST_GUILESS_MAIN(tst_looks)
#include "tst_looks.moc"
