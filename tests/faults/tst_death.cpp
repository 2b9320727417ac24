// A save that dies at any of its system calls leaves the file wholly old or wholly new, and the next start reads it.

#include <sys/wait.h>
#include <unistd.h>

#include <QtTest>

#include "FaultySystem.h"
#include "LogicFixture.h"

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
        QTest::addColumn<QString>("file");
        QTest::addColumn<Save>("save");
        QTest::newRow("user file") << "data/UserProfile.prof" << Save(saveUser);
        QTest::newRow("export") << "export.prof" << Save(saveExport);
        QTest::newRow("template") << "library/plugins/NetConnectPlugin/SysProfile.prof" << Save(saveTemplate);
        QTest::newRow("rename") << "data/UserProfile.prof" << Save(saveRenamed);
    }
    void leavesTheOldFileOrTheNew() {
        QFETCH(QString, file);
        QFETCH(Save, save);
        LogicFixture fixture;
        fixture.shipConfig(
            LogicFixture::config("<ProfileTemplate>" + LogicFixture::item("name", "Fresh") + "</ProfileTemplate>"));
        const QByteArray user =
            LogicFixture::profiles(LogicFixture::profile("name='Old'") + LogicFixture::profile("name='Other'"));
        const QString path = fixture.folder.path(file);
        const QByteArray before = path == fixture.folder.userFile() ? user : LogicFixture::profiles("");
        const auto start = [&] {
            fixture.setUserFile(user);
            TestFolder::write(path, before);
        };

        start();
        QCOMPARE(saveAndDie(save, path, 0), int(Survived));
        const QByteArray after = TestFolder::read(path);
        QVERIFY(after != before);

        int n = 0;
        int status = Killed;
        bool sawOld = false;
        bool sawNew = false;
        while (status == Killed) {
            start();
            status = saveAndDie(save, path, ++n);
            const QByteArray content = TestFolder::read(path);
            QVERIFY2(content == before || content == after, qPrintable(QString("torn at call %1").arg(n)));
            sawOld |= status == Killed && content == before;
            sawNew |= status == Killed && content == after;
            nextStartWorks(&fixture);
            if (QTest::currentTestFailed()) return;
        }
        QCOMPARE(status, int(Survived));
        QVERIFY(sawOld && sawNew);
        QVERIFY2(n > 7, "a save opens, writes, sets the mode, flushes, closes, renames and flushes the folder");
    }

private:
    static void nextStartWorks(LogicFixture* fixture) {
        fixture->restart();
        const QStringList names = fixture->names();
        QVERIFY2(fixture->logic()->LastStorageProblem().isNull(),
                 qPrintable(fixture->logic()->LastStorageProblem().text()));
        QVERIFY(names.contains("Other"));
        QCOMPARE(names.count("Old") + names.count("Renamed"), 1);
        DialupProfile fresh;
        QCOMPARE(fixture->logic()->NewDialUpProfileTemplate(&fresh), 0);
        QCOMPARE(fixture->logic()->AddDialUpProfile(LogicFixture::named("Next")), 0);
        NetConnectSettingUILogic::Destroy();
    }
};

QTEST_GUILESS_MAIN(tst_death)
#include "tst_death.moc"
