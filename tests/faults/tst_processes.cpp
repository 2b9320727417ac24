// SPDX-License-Identifier: MIT
// The logic in this process and orbisctl in others change the same file at the same time.

#include <sys/wait.h>
#include <unistd.h>

#include "FaultsFixture.h"
#include "UserFileLock.h"

// A process takes far longer to start under a sanitizer.
static const int AddedByEach = ORBISDIAL_SANITIZED ? 40 : 200;
static const int Races = 20;
static const int Writers = 8;
static const int WritesByEach = ORBISDIAL_SANITIZED ? 10 : 40;

// Processes that do the same at the same time, each told its number: how many of them ended with another status than 0.
static int failuresOf(int processes, const std::function<int(int)>& work) {
    for (int i = 0; i < processes; ++i) {
        if (fork() != 0) continue;
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        _exit(work(i));
    }
    int failures = 0;
    for (int status = 0; wait(&status) > 0;) failures += status != 0;
    return failures;
}

class tst_processes : public QObject {
    Q_OBJECT

    static NetConnectSettingUILogic* logic() { return NetConnectSettingUILogic::GetInstance(); }

private slots:
    // A busy machine gives each its turn late; who waits less says so.
    void init() { UserFileLock::setLongestWait(15000); }

    void bothAdd() {
        FaultsFixture fixture;
        QProcess others;
        others.setProcessChannelMode(QProcess::MergedChannels);
        others.start("sh", {"-c", "for i in $(seq $2); do \"$1\" add theirs$i password=secret || exit; done", "sh",
                            ORBISCTL, QString::number(AddedByEach)});
        QStringList expected;
        int added = 0;
        const auto add = [&] {
            expected.append("ours" + QString::number(++added));
            return fixture.logic()->AddDialUpProfile(LogicFixture::named(expected.last(), "secret"));
        };
        while (others.state() != QProcess::NotRunning) {
            if (added < AddedByEach) QCOMPARE(add(), 0);
            others.waitForFinished(10);  // in step with the others, so that the two meet all the time
        }
        QVERIFY2(others.exitCode() == 0, others.readAll());
        while (added < AddedByEach) QCOMPARE(add(), 0);

        for (int i = 1; i <= AddedByEach; ++i) expected.append("theirs" + QString::number(i));
        expected.sort();
        FaultsFixture::restart();
        QStringList names = FaultsFixture::userNames();
        names.sort();
        QCOMPARE(names, expected);
        for (const QString& name : {expected.first(), expected.last()})
            QCOMPARE(fixture.show(name)["password"].toString(), QString("secret"));
    }

    void busyWritersAreAllServed() {
        FaultsFixture fixture;
        NetConnectSettingUILogic::Destroy();
        QCOMPARE(failuresOf(Writers,
                            [](int writer) {
                                for (int i = 0; i < WritesByEach; ++i) {
                                    const DialupProfile added =
                                        LogicFixture::named(QString("%1 %2").arg(writer).arg(i));
                                    if (logic()->AddDialUpProfile(added) != 0) return 1;
                                }
                                return 0;
                            }),
                 0);
        QCOMPARE(FaultsFixture::userNames().size(), Writers * WritesByEach);
    }

    // Each has a data folder of its own, so that only the target itself can keep them apart.
    void exportsIntoOneFileLoseNothing() {
        FaultsFixture fixture;
        NetConnectSettingUILogic::Destroy();
        const QString file = fixture.path("exports/all.prof");
        QDir().mkpath(fixture.path("exports"));
        QCOMPARE(failuresOf(Writers,
                            [&](int writer) {
                                qputenv("ORBISDIAL_DATA_DIR", QFile::encodeName(fixture.path("data%1").arg(writer)));
                                for (int i = 0; i < 5; ++i) {
                                    const QString name = QString("%1 %2").arg(writer).arg(i);
                                    if (logic()->AddDialUpProfile(LogicFixture::named(name)) != 0) return 1;
                                    if (logic()->ExportChosenProfiles({name}, file) != 0) return 2;
                                }
                                return 0;
                            }),
                 0);
        QCOMPARE(FaultsFixture::read(file).count("<Profile "), Writers * 5);
        QCOMPARE(QDir(fixture.path("exports")).entryList(QDir::Files | QDir::Hidden), QStringList("all.prof"));
    }

    void aTargetThatAppearsMeanwhileIsAddedTo() {
        FaultsFixture fixture;
        const QString file = fixture.path("export.prof");
        QCOMPARE(logic()->AddDialUpProfile(LogicFixture::named("Mine")), 0);  // makes the lock file, too
        FaultySystem::before(
            "rename", [&] { FaultsFixture::write(file, LogicFixture::document(LogicFixture::profile("Theirs"))); });
        QCOMPARE(logic()->ExportChosenProfiles({"Alpha"}, file), 0);
        const QByteArray content = FaultsFixture::read(file);
        QVERIFY2(content.contains("Theirs") && content.contains("Alpha"), content);
    }

    // Between the opening and the locking: what is locked then guards nothing.
    void aFileReplacedBeforeItWasLockedIsLockedAnew() {
        const TestFolder folder;
        const QString file = folder.path("file");
        TestFolder::write(file, "old");
        FaultySystem::before("flock", [&] {
            TestFolder::write(file + ".new", "new");
            QVERIFY(::rename(qPrintable(file + ".new"), qPrintable(file)) == 0);
        });
        UserFileLock lock;
        Reason reason;
        QVERIFY(lock.acquire(file, &reason) && lock.isInPlace());
    }

    void aTargetThatOthersLockIsNotReplaced() {
        FaultsFixture fixture;
        const QString file = fixture.path("export.prof");
        QCOMPARE(logic()->ExportChosenProfiles({"Alpha"}, file), 0);
        const QByteArray before = FaultsFixture::read(file);
        UserFileLock other;
        Reason reason;
        QVERIFY(other.acquireIfThere(file, &reason) && other.isHeld());
        UserFileLock::setLongestWait(100);
        QCOMPARE(logic()->ExportChosenProfiles({"Beta"}, file), 25);
        QVERIFY(logic()->LastStorageProblem().text().contains("locked"));
        QCOMPARE(FaultsFixture::read(file), before);
    }

    // A program that ends clears a default that the configuration proposed, but not the one that the user chose
    // elsewhere while it ran.
    void aDefaultChosenElsewhereOutlivesTheProposal() {
        FaultsFixture fixture;
        FaultsFixture::userNames();
        COMPARE_DONE(fixture.run({"default", "Beta"}));
        NetConnectSettingUILogic::Destroy();
        const QJsonObject chosen = fixture.run({"--json", "default"}).json();
        QCOMPARE(chosen["name"].toString(), QString("Beta"));
        QVERIFY(chosen["userSet"].toBool());
    }

    void oneRenamesWhatTheOtherDeletes_data() {
        const Rows<bool> row("weRename");
        row("we rename, orbisctl deletes", true);
        row("we delete, orbisctl renames", false);
    }
    void oneRenamesWhatTheOtherDeletes() {
        QFETCH(bool, weRename);
        FaultsFixture fixture;
        QSet<bool> outcomes;
        unsigned long delay = 1;
        for (int i = 0; i < Races; ++i) {
            fixture.writeUser("<Profile name='A' phonenumber='*99#' autoapn='true'/><Profile name='Kept'/>",
                              "<Default name='A' IsUserSet='1'/>");
            FaultsFixture::restart();
            QProcess other;
            other.start(ORBISCTL, weRename ? QStringList{"delete", "A"} : QStringList{"set", "A", "name=B"});
            QVERIFY(other.waitForStarted());
            QThread::msleep(delay);
            QCOMPARE(weRename ? fixture.logic()->ReplaceDialUpProfile("A", LogicFixture::named("B"))
                              : fixture.logic()->DelDialUpProfile("A"),
                     0);
            QVERIFY(other.waitForFinished());
            const bool otherFoundA = other.exitCode() == 0;
            outcomes.insert(otherFoundA);
            delay = otherFoundA ? delay / 2 + delay / 4 : 2 * delay + 1;  // towards the moment when both want the lock
            if (!otherFoundA) COMPARE_REFUSED((Outcome{1, {}, other.readAllStandardError()}), 1, "no profile \"A\"");

            // An edit that comes after the deletion stores the profile that was edited; a deletion that comes after
            // the renaming finds nothing to delete.
            FaultsFixture::restart();
            QCOMPARE(FaultsFixture::userNames(),
                     weRename || otherFoundA ? QStringList({"B", "Kept"}) : QStringList{"Kept"});
        }
        QCOMPARE(outcomes.size(), 2);  // or the two did not really meet
    }
};

QTEST_GUILESS_MAIN(tst_processes)
#include "tst_processes.moc"
