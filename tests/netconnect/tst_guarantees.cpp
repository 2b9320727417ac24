// SPDX-License-Identifier: MIT
// What a save guarantees: a file keeps its mode and its links, a damaged one is kept, and what another process wrote
// is taken in. Writers that die and disks that fail are in tests/faults.

#include <sys/stat.h>

#include <thread>

#include "FileReplacement.h"
#include "LogicFixture.h"
#include "NetConnectStoreAction.h"
#include "UserFileLock.h"

class tst_guarantees : public LogicTest {
    Q_OBJECT

private slots:
    void theDefaultIsTakenInOnlyWhenItChangedOnDisk() {
        setUser(profile("A"), "<Default name='A'/>");
        restart();
        setUser(profile("A") + profile("theirs"), "<Default name='A'/>");
        QCOMPARE(logic()->SaveDialUpProfile(named("B")), 0);
        QCOMPARE(names(), QStringList({"A", "B", "theirs"}));
        setUser(profile("A"), "<Default name='Z' IsUserSet='1'/>");
        QCOMPARE(logic()->SaveDialUpProfile(named("B")), 0);
        QCOMPARE(defaultName(), QString("Z"));
        QVERIFY(logic()->IsDefaultUserSet());
    }

    void modes() {
        const QString exported = path("export.prof");
        setUser("");
        write(exported, document(""));
        for (const QString& file : {userFile(), exported})
            QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther | QFile::ReadGroup);
        restart();
        QCOMPARE(logic()->SaveDialUpProfile(named("A", "secret")), 0);
        QCOMPARE(logic()->ExportChosenProfiles({"A"}, exported), 0);
        for (const QString& file : {userFile(), exported, userFile() + ".lock"}) QCOMPARE(mode(file), 0600);
    }

    void aLinkIsFollowed() {
        const QString real = path("elsewhere/real.prof");
        write(real, document(profile("A")));
        QDir().mkpath(path("data"));
        QVERIFY(QFile::link(real, userFile()));
        QCOMPARE(logic()->SaveDialUpProfile(named("B")), 0);
        QVERIFY(QFileInfo(userFile()).isSymLink());
        QVERIFY(read(real).contains("name=\"B\""));
    }

    // A 32-bit program that does not ask for it can't even see one.
    void aLargeFileIsSeen() {
        QFile large(path("large"));
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(qint64(5) << 30));  // takes no space
        QVERIFY(FileStamp::of(large.fileName()).isRegularFile());
        QVERIFY(FileReplacement::isSameFile(large.fileName(), large.fileName()));
    }

    // tests/faults damages the user's file at every place.
    void aDamagedExportIsKept() {
        const QString file = path("export.prof");
        const QByteArray damaged = document(profile("A")).replace("</vrksdoc>", "<Profile name='B'");
        write(file, damaged);
        shipLibrary(profile("New"));
        QCOMPARE(logic()->ExportChosenProfiles({"New"}, file), 0);
        const QStringList kept = QDir(path("")).entryList({"export.prof.damaged-*"});
        QCOMPARE(kept.size(), 1);
        QCOMPARE(read(path(kept[0])), damaged);
        QCOMPARE(mode(path(kept[0])), 0600);
        QVERIFY(logic()->LastStorageProblem().reason.text().contains(path(kept[0])));
        QVERIFY(read(file).contains("name=\"A\"") && read(file).contains("name=\"New\""));
    }

    void aRefusedEditDeletesNothing() {
        setUser(profile("Old"));
        restart();
        setUser(profile("Old") + profile("New", "password='theirs'"));
        QCOMPARE(logic()->ReplaceDialUpProfile("Old", named("New")), 114);
        QCOMPARE(names(), QStringList({"New", "Old"}));
        QCOMPARE(fetch("New").password, QString("theirs"));
    }

    // tests/faults lets single looks fail.
    void aListingThatCannotReadKeepsWhatItHad_data() {
        const Rows<QByteArray, bool, bool> row("damage", "isKept", "isStored");
        row("not a file", "", true, false);
        row("torn", document(profile("A")).replace("</vrksdoc>", "<Profile name='B'"), true, true);
        row("empty", " ", true, true);
        row("gone", QByteArray(), false, true);
    }
    void aListingThatCannotReadKeepsWhatItHad() {
        QFETCH(QByteArray, damage);
        setUser(profile("A") + profile("B"), "<Default name='B' IsUserSet='1'/>");
        restart();
        QCOMPARE(names(), QStringList({"A", "B"}));
        QVERIFY(QFile::remove(userFile()));
        if (damage.isEmpty() && !damage.isNull())
            QVERIFY(QDir().mkpath(userFile()));
        else if (!damage.isNull())
            write(userFile(), damage);

        const bool isKept = cell<bool>("isKept");
        QCOMPARE(names(), isKept ? QStringList({"A", "B"}) : QStringList());
        QCOMPARE(defaultName(), QString("B"));
        QVERIFY(logic()->IsDefaultUserSet());
        QCOMPARE(logic()->LastStorageProblem().isNull(), !isKept);
        QCOMPARE(logic()->SaveDialUpProfile(named("C")), cell<bool>("isStored") ? 0 : 25);
        if (cell<bool>("isStored")) QCOMPARE(names(), isKept ? QStringList({"A", "B", "C"}) : QStringList("C"));
    }

    void whoeverKeepsTheLockIsWaitedForOnlySoLong() {
        QDir().mkpath(path("data"));
        UserFileLock other;
        QVERIFY(acquire(&other));
        UserFileLock::setLongestWait(200);
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(logic()->SaveDialUpProfile(named("A")), 25);
        QVERIFY(timer.elapsed() >= 200 && timer.elapsed() < 2000);
        QVERIFY(logic()->LastStorageProblem().reason.text().contains("locked"));
        QVERIFY(!QFile::exists(userFile()));

        // Why the save failed is told until one succeeds, not only until somebody gets the lock.
        other.release();
        NetConnectStoreAction action;
        QCOMPARE(action.lock(), 0);
        QVERIFY(logic()->LastStorageProblem().reason.text().contains("locked"));
        QCOMPARE(logic()->SaveDialUpProfile(named("A")), 0);
        QCOMPARE(action.commit(), 0);
        QVERIFY(logic()->LastStorageProblem().isNull());
    }

    // The lock file is removed while one holds it and another waits for it.
    void aRemovedLockFileLocksNobody() {
        QDir().mkpath(path("data"));
        UserFileLock first;
        QVERIFY(acquire(&first) && first.isInPlace());
        std::thread remover([this] {
            QThread::msleep(100);
            QFile::remove(userFile() + ".lock");
        });
        UserFileLock::setLongestWait(5000);
        UserFileLock second;
        const bool isAcquired = acquire(&second);
        remover.join();
        QVERIFY(isAcquired && second.isInPlace());  // of the new file
        QVERIFY(!first.isInPlace());
        second.release();

        NetConnectStoreAction action;
        QCOMPARE(logic()->SaveDialUpProfile(named("A")), 0);
        QVERIFY(QFile::remove(userFile() + ".lock"));
        QCOMPARE(action.commit(), 25);
        QVERIFY(logic()->LastStorageProblem().reason.text().contains("removed"));
        QVERIFY(!QFile::exists(userFile()));
    }

    // The logic would be locked out of its own file.
    void whatCouldNotBeReadBackIsNotWritten() {
        const QString file = path("large");
        QFile large(file);
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(FileReplacement::LargestFile + 1));  // takes no space
        QByteArray content;
        Reason reason;
        QCOMPARE(FileReplacement::read(file, &content, &reason), FileReplacement::Failed);
        QVERIFY(reason.text().contains("too large"));
        const QByteArray larger(int(FileReplacement::LargestFile) + 1, Qt::Uninitialized);
        QCOMPARE(FileReplacement::write(file, larger, FileReplacement::Export, FileReplacement::OverOld, &reason),
                 FileReplacement::Failed);
        QVERIFY(reason.text().contains("too large to be read again"));
        QCOMPARE(large.size(), FileReplacement::LargestFile + 1);
    }

    // A dead writer's files go, whatever they were to become; other files of a like name stay.
    void leftoversGo() {
        QDir().mkpath(path("data"));
        const QStringList leftovers{".tmp-abcdef", ".lock.tmp-abcdef", ".damaged-20200101T000000Z-2.tmp-abcdef"};
        const QStringList others{".tmp-abc", ".old.tmp-abcdef", ".damaged-20200101T000000Z"};
        for (const QString& name : leftovers + others) {
            QFile file(userFile() + name);
            QVERIFY(file.open(QIODevice::WriteOnly));
            QVERIFY(file.setFileTime(QDateTime::fromSecsSinceEpoch(0), QFile::FileModificationTime));
        }
        QCOMPARE(logic()->SaveDialUpProfile(named("A")), 0);
        for (const QString& name : leftovers) QVERIFY2(!QFile::exists(userFile() + name), qPrintable(name));
        for (const QString& name : others) QVERIFY2(QFile::exists(userFile() + name), qPrintable(name));
    }

private:
    bool acquire(UserFileLock* lock) const {
        Reason reason;
        return lock->acquire(userFile() + ".lock", &reason);
    }

    static int mode(const QString& path) {
        struct stat info;
        return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? int(info.st_mode & 07777) : -1;
    }
};

QTEST_MAIN(tst_guarantees)
#include "tst_guarantees.moc"
