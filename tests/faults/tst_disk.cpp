// SPDX-License-Identifier: MIT
// A disk that fails at any step of a save: the old file stays, the caller gets 25, and the person gets one line.

#include <errno.h>
#include <string.h>

#include "FaultsFixture.h"

namespace {

const int SettlingTime = 150;  // milliseconds; a file that changed just now is read again in any case

struct Fault {
    QByteArray call;
    int error;

    QString reason() const { return QString::fromLocal8Bit(strerror(error)); }
};

// While one lives, calls fail.
class Failing {
public:
    explicit Failing(const Fault& fault) { FaultySystem::fail(fault.call.constData(), fault.error); }
    ~Failing() { FaultySystem::fail(nullptr, 0); }
};

}  // namespace

Q_DECLARE_METATYPE(Fault)

class tst_disk : public QObject {
    Q_OBJECT

private slots:
    void aFailedSaveKeepsTheOldFile_data() {
        const Rows<Fault> row("fault");
        row("full disk", Fault{"write", ENOSPC});
        row("a disk that takes nothing", Fault{"write anything", EIO});
        row("read-only file system", Fault{"open", EROFS});
        row("no locks", Fault{"flock", ENOLCK});
        row("mode refused", Fault{"fchmod", EPERM});
        row("failing flush", Fault{"fsync", EIO});
        row("failing close", Fault{"close", EIO});
        row("failing rename", Fault{"rename", EIO});
    }
    void aFailedSaveKeepsTheOldFile() {
        QFETCH(Fault, fault);
        FaultsFixture fixture;
        NetConnectSettingUILogic* const logic = fixture.logic();
        QObject host;
        logic->PublishStatus(&host);
        const QString exported = fixture.path("export.prof");
        const QString system = NetConnectXMLParse::shippedPath("SysProfile.prof");
        const auto save = [&] { return logic->SaveDialUpProfile(LogicFixture::named("New", "secret")); };
        const auto contents = [&] {
            return QList<QByteArray>{fixture.read(fixture.userFile()), fixture.read(exported), fixture.read(system)};
        };
        QCOMPARE(logic->SaveDialUpProfile(LogicFixture::named("Old", "secret")), 0);
        QCOMPARE(logic->ExportChosenProfiles({"Alpha"}, exported), 0);
        FaultsFixture::userNames();  // stores the proposed default
        QTest::qSleep(SettlingTime);
        QCOMPARE(FaultsFixture::userNames(), QStringList{"Old"});
        const QList<QByteArray> before = contents();

        const auto refuses = [&](int status, const QString& file) {
            const NetConnectStorageProblem problem = logic->LastStorageProblem();
            QCOMPARE(status, 25);
            QVERIFY2(problem.file == file || problem.file == file + ".lock", qPrintable(problem.file));
            QVERIFY2(problem.reason.text().contains(fault.reason()), qPrintable(problem.reason.text()));
            QVERIFY(contents() == before);
        };
        const auto orbisctlRefuses = [&](const QStringList& arguments, const QString& file) {
            qputenv("ORBISDIAL_TEST_FAULT", fault.call + "=" + QByteArray::number(fault.error));
            const Outcome outcome = fixture.run(arguments);
            qunsetenv("ORBISDIAL_TEST_FAULT");
            COMPARE_REFUSED(outcome, 1, file.toUtf8());
            COMPARE_REFUSED(outcome, 1, fault.reason().toUtf8());
            QVERIFY(contents() == before);
        };
        {
            const Failing failing(fault);
            refuses(logic->ExportChosenProfiles({"Beta"}, exported), exported);
            orbisctlRefuses({"export", exported, "Beta"}, exported);
            if (fault.call != "flock") refuses(logic->updateProfileTemplate(), system);
            refuses(save(), fixture.userFile());
            QCOMPARE(host.property("lastStorageProblem").toString(), logic->LastStorageProblem().text());
            refuses(logic->ReplaceDialUpProfile("Old", LogicFixture::named("Renamed")), fixture.userFile());
            refuses(logic->DelDialUpProfile("Old"), fixture.userFile());
            refuses(logic->SetDefaultDialUpProfileName("Old", true), fixture.userFile());
            refuses(save(), fixture.userFile());
            orbisctlRefuses({"add", "Theirs", "phonenumber=*99#", "autoapn=true"}, fixture.userFile());
            QCOMPARE(temporaryFiles(fixture.path("")), QStringList());
        }
        if (QTest::currentTestFailed()) return;

        // As soon as the disk works again, what the caller repeats is stored, and nothing else.
        QCOMPARE(save(), 0);
        QCOMPARE(host.property("lastStorageProblem").toString(), QString());
        FaultsFixture::restart();
        QCOMPARE(FaultsFixture::userNames(), QStringList({"New", "Old"}));
    }

    // A choice that could not be stored must not look stored, neither now nor after the next save.
    void aChoiceThatCouldNotBeStoredIsNone() {
        FaultsFixture fixture;
        COMPARE_DONE(fixture.run({"add", "Mine"}));
        COMPARE_DONE(fixture.run({"add", "Other"}));
        COMPARE_DONE(fixture.run({"default", "Mine"}));
        FaultsFixture::restart();
        FaultsFixture::userNames();
        {
            const Failing failing({"write", ENOSPC});
            QCOMPARE(fixture.logic()->SetDefaultDialUpProfileName("Other", false), 25);
            QCOMPARE(LogicFixture::defaultName(), QString("Mine"));
            QVERIFY(fixture.logic()->IsDefaultUserSet());
        }
        QCOMPARE(fixture.logic()->SaveDialUpProfile(LogicFixture::named("Third")), 0);
        QVERIFY(FaultsFixture::read(fixture.userFile()).contains("<Default name=\"Mine\" IsUserSet=\"1\"/>"));
    }

    void aFolderThatCannotBeFlushedIsSaid() {
        FaultsFixture fixture;
        const Failing failing({"fsync folder", EIO});
        QCOMPARE(fixture.logic()->SaveDialUpProfile(LogicFixture::named("New")), 0);
        QVERIFY(fixture.logic()->LastStorageProblem().reason.text().contains(strerror(EIO)));
        QVERIFY(FaultsFixture::read(fixture.userFile()).contains("New"));
    }

    void aDeviceThatTakesNothingEndsTheOutput() {
        const FaultsFixture fixture;
        qputenv("ORBISDIAL_TEST_FAULT", "output of nothing=0");
        const Outcome outcome = fixture.run({"list"});
        qunsetenv("ORBISDIAL_TEST_FAULT");
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.out + outcome.err, QByteArray());
    }

    // The user's folder goes while the program runs: it is made again, but not in the place of something else.
    void theUsersFolderGoes() {
        FaultsFixture fixture;
        for (const bool isFile : {false, true}) {
            QCOMPARE(fixture.logic()->SaveDialUpProfile(LogicFixture::named("Old")), 0);
            QVERIFY(QDir(fixture.path("data")).removeRecursively());
            if (isFile) FaultsFixture::write(fixture.path("data"), "a file");
            QCOMPARE(fixture.logic()->SaveDialUpProfile(LogicFixture::named("New")), isFile ? 25 : 0);
            QCOMPARE(fixture.logic()->LastStorageProblem().isNull(), !isFile);
        }
        COMPARE_REFUSED(fixture.run({"add", "New"}), 1, fixture.path("data").toUtf8());
    }

    // A file that could not be read for a moment (too many open files) is not taken for an empty one.
    void aFileThatCouldNotBeReadForAMomentIsNotLost_data() {
        const Rows<bool> row("fromTheStart");
        row("at the start", true);
        row("when another process has written", false);
    }
    void aFileThatCouldNotBeReadForAMomentIsNotLost() {
        QFETCH(bool, fromTheStart);
        FaultsFixture fixture;
        COMPARE_DONE(fixture.run({"add", "First"}));
        if (!fromTheStart) FaultsFixture::restart();
        COMPARE_DONE(fixture.run({"add", "Second"}));
        COMPARE_DONE(fixture.run({"default", "First"}));
        QTest::qSleep(SettlingTime);
        {
            const Failing failing({"open to read", EMFILE});
            if (fromTheStart) FaultsFixture::restart();
            FaultsFixture::userNames();
            QCOMPARE(fixture.logic()->SaveDialUpProfile(LogicFixture::named("New")), 25);
        }
        QCOMPARE(fixture.logic()->SaveDialUpProfile(LogicFixture::named("New")), 0);
        FaultsFixture::restart();
        QCOMPARE(FaultsFixture::userNames(), QStringList({"First", "New", "Second"}));
        QCOMPARE(LogicFixture::defaultName(), QString("First"));
        QVERIFY(fixture.logic()->IsDefaultUserSet());
    }
};

QTEST_GUILESS_MAIN(tst_disk)
#include "tst_disk.moc"
