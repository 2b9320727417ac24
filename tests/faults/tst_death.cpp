// SPDX-License-Identifier: MIT
// A save that dies at any of its system calls leaves the file wholly old or wholly new, and the next start reads it.

#include <sys/wait.h>
#include <unistd.h>

#include "FaultsFixture.h"

namespace {

enum { Survived = 0, Killed = SIGKILL };

using Save = int (*)(const QString& file);

NetConnectSettingUILogic* logic() { return NetConnectSettingUILogic::GetInstance(); }

int saveUser(const QString&) { return logic()->SaveDialUpProfile(LogicFixture::named("New", "secret")); }
int saveExport(const QString& file) { return logic()->ExportChosenProfiles({"Old", "Other"}, file); }
int saveTemplate(const QString&) { return logic()->updateProfileTemplate(); }
int saveRenamed(const QString&) { return logic()->ReplaceDialUpProfile("Old", LogicFixture::named("Renamed")); }

// Saves in a process of its own, which starts as any other and is killed at the n-th system call: its wait status.
int saveAndDie(Save save, const QString& file, int n) {
    const pid_t child = fork();
    if (child == 0) {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        logic();
        FaultySystem::killAt(n);
        const int status = save(file);
        FaultySystem::killAt(0);
        _exit(status);
    }
    int status = -1;
    waitpid(child, &status, 0);
    return status;
}

}  // namespace

Q_DECLARE_METATYPE(Save)

class tst_death : public QObject {
    Q_OBJECT

private slots:
    void leavesTheOldFileOrTheNew_data() {
        const Rows<QString, Save> row("file", "save");
        row("user file", "data/UserProfile.prof", Save(saveUser));
        row("export", "export.prof", Save(saveExport));
        row("template", "library/plugins/NetConnectPlugin/SysProfile.prof", Save(saveTemplate));
        row("rename", "data/UserProfile.prof", Save(saveRenamed));
    }
    void leavesTheOldFileOrTheNew() {
        QFETCH(Save, save);
        LogicFixture fixture;
        fixture.shipConfig(LogicFixture::section("ProfileTemplate", {"name=Fresh"}));
        const QByteArray user = LogicFixture::document(LogicFixture::profile("Old") + LogicFixture::profile("Other"));
        const QString path = fixture.path(cell("file"));
        const bool isUserFile = path == fixture.userFile();
        const QByteArray before = isUserFile ? user : LogicFixture::document("");
        const auto start = [&] {
            TestFolder::write(fixture.userFile(), user);
            TestFolder::write(path, before);
        };

        start();
        QCOMPARE(saveAndDie(save, path, 0), int(Survived));
        const QByteArray after = TestFolder::read(path);
        QVERIFY(after != before);

        int n = 0;
        int status = Killed;
        bool sawOld = false, sawNew = false, sawLeftover = false;
        while (status == Killed) {
            start();
            status = saveAndDie(save, path, ++n);
            const QByteArray content = TestFolder::read(path);
            QVERIFY2(content == before || content == after, qPrintable(QString("torn at call %1").arg(n)));
            sawOld |= status == Killed && content == before;
            sawNew |= status == Killed && content == after;
            sawLeftover |= !temporaryFiles(fixture.path("data")).isEmpty();
            nextStartWorks(&fixture);
            if (QTest::currentTestFailed()) return;
        }
        QCOMPARE(status, int(Survived));
        QVERIFY(sawOld && sawNew && sawLeftover == isUserFile);
        QVERIFY2(n > 7, "a save opens, writes, sets the mode, flushes, closes, renames and flushes the folder");
    }

private:
    // It clears away what a dead writer left beside the file, too, once it is sure that it is dead.
    static void nextStartWorks(LogicFixture* fixture) {
        fixture->restart();
        const QStringList names = fixture->names();
        const NetConnectStorageProblem problem = logic()->LastStorageProblem();
        QVERIFY2(problem.isNull(), qPrintable(problem.text()));
        QVERIFY(names.contains("Other"));
        QCOMPARE(names.count("Old") + names.count("Renamed"), 1);
        DialupProfile fresh;
        QCOMPARE(logic()->NewDialUpProfileTemplate(&fresh), 0);
        for (const QString& name : temporaryFiles(fixture->path("data"))) {
            QFile leftover(name);
            QVERIFY(leftover.open(QIODevice::ReadWrite));
            QVERIFY(leftover.setFileTime(QDateTime::fromSecsSinceEpoch(0), QFile::FileModificationTime));
        }
        QCOMPARE(logic()->AddDialUpProfile(LogicFixture::named("Next")), 0);
        QCOMPARE(temporaryFiles(fixture->path("data")), QStringList());
        NetConnectSettingUILogic::Destroy();
    }
};

QTEST_GUILESS_MAIN(tst_death)
#include "tst_death.moc"
