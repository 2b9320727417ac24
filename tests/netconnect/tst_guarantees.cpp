// What a save guarantees: nothing is lost when a writer dies, a disk is full, a file is damaged, or two processes
// write. The program runs itself again as the other process.

#include <fcntl.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QProcess>
#include <QtTest>

#include "FileReplacement.h"
#include "LogicFixture.h"
#include "NetConnectStoreAction.h"

static const int FileSizeLimit = 4096;

// Lets no file of this process grow beyond a few kilobytes; what exceeds them fails, or kills.
static void limitFileSize(bool kills) {
    const rlimit limit = {FileSizeLimit, FileSizeLimit};
    setrlimit(RLIMIT_FSIZE, &limit);
    const rlimit noCore = {0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    signal(SIGXFSZ, kills ? SIG_DFL : SIG_IGN);
}

static DialupProfile large() {
    DialupProfile profile;
    profile.name = "large";
    profile.user = QString(2 * FileSizeLimit, 'x');
    return profile;
}

// The other process: "add PREFIX COUNT", "die" or "full". Answers with the status of its last write.
static int runOther(const QStringList& arguments) {
    // Traces would fill the pipe to the test, which reads it only in the end.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    NetConnectSettingUILogic* logic = NetConnectSettingUILogic::GetInstance();
    int status = 0;
    if (arguments[0] == "add") {
        for (int i = 0; i < arguments[2].toInt() && status == 0; ++i)
            status = logic->AddDialUpProfile(LogicFixture::named(arguments[1] + QString::number(i), "secret"));
    } else {
        limitFileSize(arguments[0] == "die");
        status = logic->AddDialUpProfile(large());
    }
    NetConnectSettingUILogic::Destroy();
    return status;
}

class tst_guarantees : public LogicTest {
    Q_OBJECT

private slots:
    void aDyingOrFailingWriterLeavesTheOldFile_data() {
        QTest::addColumn<QString>("how");
        QTest::addColumn<int>("exitStatus");
        QTest::newRow("killed in the middle of the write") << "die" << -1;
        QTest::newRow("full disk") << "full" << 25;
    }
    void aDyingOrFailingWriterLeavesTheOldFile() {
        QFETCH(QString, how);
        QFETCH(int, exitStatus);
        m_pFixture->setUserFile(LogicFixture::profiles(LogicFixture::profile("name='Old'")));
        const QByteArray before = TestFolder::read(m_pFixture->folder.userFile());
        QCOMPARE(other({how}), exitStatus);
        QCOMPARE(TestFolder::read(m_pFixture->folder.userFile()), before);
        const QStringList leftovers =
            QDir(m_pFixture->folder.path("data")).entryList({"*.tmp-*"}, QDir::Files | QDir::Hidden);
        QCOMPARE(leftovers.isEmpty(), how == "full");

        // The next writer clears away what a dead one left, once it is sure that it is dead.
        for (const QString& name : leftovers) age(m_pFixture->folder.path("data/" + name));
        m_pFixture->restart();
        QCOMPARE(m_pFixture->logic()->SaveDialUpProfile(LogicFixture::named("New")), 0);
        QCOMPARE(m_pFixture->names(), QStringList({"New", "Old"}));
        QVERIFY(QDir(m_pFixture->folder.path("data")).entryList({"*.tmp-*"}, QDir::Files | QDir::Hidden).isEmpty());
    }

    void twoProcessesLoseNothing() {
        m_pFixture->restart();
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {"--other", "add", "theirs", "100"});
        for (int i = 0; i < 100; ++i)
            QCOMPARE(m_pFixture->logic()->AddDialUpProfile(LogicFixture::named("ours" + QString::number(i))), 0);
        QVERIFY(process.waitForFinished(120000));
        QCOMPARE(process.exitCode(), 0);
        QCOMPARE(m_pFixture->names().size(), 200);
    }

    void theDefaultIsTakenInOnlyWhenItChangedOnDisk() {
        m_pFixture->setUserFile(LogicFixture::profiles(LogicFixture::profile("name='A'"), "<Default name='A'/>"));
        NetConnectSettingUILogic* logic = m_pFixture->restart();
        QCOMPARE(other({"add", "theirs", "1"}), 0);
        QCOMPARE(logic->SaveDialUpProfile(LogicFixture::named("B")), 0);
        QCOMPARE(m_pFixture->names(), QStringList({"A", "B", "theirs0"}));
        m_pFixture->setUserFile(
            LogicFixture::profiles(LogicFixture::profile("name='A'"), "<Default name='Z' IsUserSet='1'/>"));
        QCOMPARE(logic->SaveDialUpProfile(LogicFixture::named("B")), 0);
        QCOMPARE(m_pFixture->defaultName(), QString("Z"));
        QVERIFY(logic->IsDefaultUserSet());
    }

    void modes() {
        const QString file = m_pFixture->folder.userFile();
        m_pFixture->setUserFile(LogicFixture::profiles(""));
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther | QFile::ReadGroup);
        const QString exported = m_pFixture->folder.path("export.prof");
        TestFolder::write(exported, LogicFixture::profiles(""));
        m_pFixture->restart();
        QCOMPARE(m_pFixture->logic()->SaveDialUpProfile(LogicFixture::named("A", "secret")), 0);
        QCOMPARE(m_pFixture->logic()->ExportChosenProfiles({"A"}, exported), 0);
        for (const QString& path : {file, exported, file + ".lock"}) QCOMPARE(mode(path), 0600);
    }

    void aLinkIsFollowed() {
        const QString real = m_pFixture->folder.path("elsewhere/real.prof");
        TestFolder::write(real, LogicFixture::profiles(LogicFixture::profile("name='A'")));
        QDir().mkpath(m_pFixture->folder.path("data"));
        QVERIFY(QFile::link(real, m_pFixture->folder.userFile()));
        m_pFixture->restart();
        QCOMPARE(m_pFixture->logic()->SaveDialUpProfile(LogicFixture::named("B")), 0);
        QVERIFY(QFileInfo(m_pFixture->folder.userFile()).isSymLink());
        QVERIFY(TestFolder::read(real).contains("name=\"B\""));
    }

    // A 32-bit program that does not ask for it can't even see one.
    void aLargeFileIsSeen() {
        QFile large(m_pFixture->folder.path("large"));
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(qint64(5) << 30));  // takes no space
        QVERIFY(FileStamp::of(large.fileName()).isRegularFile());
        QVERIFY(FileReplacement::isSameFile(large.fileName(), large.fileName()));
    }

    void damagedFilesAreKept_data() {
        QTest::addColumn<bool>("isExport");
        QTest::newRow("user file") << false;
        QTest::newRow("export") << true;
    }
    void damagedFilesAreKept() {
        QFETCH(bool, isExport);
        const QString path = isExport ? m_pFixture->folder.path("export.prof") : m_pFixture->folder.userFile();
        const QByteArray damaged =
            LogicFixture::profiles(LogicFixture::profile("name='A'")).replace("</vrksdoc>", "<Profile name='B'");
        TestFolder::write(path, damaged);
        m_pFixture->shipLibrary(LogicFixture::profiles(LogicFixture::profile("name='New'")));
        NetConnectSettingUILogic* logic = m_pFixture->restart();
        QCOMPARE(isExport ? logic->ExportChosenProfiles({"New"}, path)
                          : logic->SaveDialUpProfile(LogicFixture::named("New")),
                 0);

        const QFileInfo info(path);
        const QStringList kept = info.dir().entryList({info.fileName() + ".damaged-*"});
        QCOMPARE(kept.size(), 1);
        QCOMPARE(TestFolder::read(info.path() + "/" + kept[0]), damaged);
        QCOMPARE(mode(info.path() + "/" + kept[0]), 0600);
        QVERIFY(logic->LastStorageProblem().reason.contains(kept[0]));
        const QByteArray content = TestFolder::read(path);
        QVERIFY(content.contains("name=\"A\"") && content.contains("name=\"New\""));
    }

    void anUnreadableFileIsNotReplaced() {
        // A folder can be opened by nobody, root included.
        QDir().mkpath(m_pFixture->folder.userFile());
        NetConnectSettingUILogic* logic = m_pFixture->restart();
        QCOMPARE(logic->SaveDialUpProfile(LogicFixture::named("A")), 25);
        QVERIFY(QFileInfo(m_pFixture->folder.userFile()).isDir());
        QCOMPARE(logic->LastStorageProblem().file, m_pFixture->folder.userFile());
    }

    void aRefusedEditDeletesNothing() {
        m_pFixture->setUserFile(LogicFixture::profiles(LogicFixture::profile("name='Old'")));
        NetConnectSettingUILogic* logic = m_pFixture->restart();
        QCOMPARE(other({"add", "New", "1"}), 0);
        QCOMPARE(logic->ReplaceDialUpProfile("Old", LogicFixture::named("New0")), 114);
        QCOMPARE(m_pFixture->names(), QStringList({"New0", "Old"}));
        QCOMPARE(m_pFixture->fetch("New0").password, QString("secret"));
    }

    void whoeverKeepsTheLockIsWaitedForOnlySoLong() {
        m_pFixture->restart();
        QDir().mkpath(m_pFixture->folder.path("data"));
        QProcess holder;
        holder.start("flock", {m_pFixture->folder.userFile() + ".lock", "sleep", "30"});
        QVERIFY(holder.waitForStarted());
        QTRY_VERIFY(QFile::exists(m_pFixture->folder.userFile() + ".lock"));
        QTest::qWait(200);
        QCOMPARE(m_pFixture->logic()->SaveDialUpProfile(LogicFixture::named("A")), 25);
        QVERIFY(m_pFixture->logic()->LastStorageProblem().reason.contains("locked"));
        QVERIFY(!QFile::exists(m_pFixture->folder.userFile()));
        holder.kill();
        holder.waitForFinished();
    }

private:
    int other(const QStringList& arguments) {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), QStringList("--other") + arguments);
        if (!process.waitForFinished(60000)) return -2;
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }

    static int mode(const QString& path) {
        struct stat info;
        return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? int(info.st_mode & 07777) : -1;
    }

    static void age(const QString& path) {
        const timespec longAgo[2] = {{1000000000, 0}, {1000000000, 0}};
        ::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), longAgo, 0);
    }
};

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == "--other") return runOther(arguments.mid(2));
    tst_guarantees test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_guarantees.moc"
