// SPDX-License-Identifier: MIT
// Shared folders and root: nobody is led to write into another's file, and everybody can read what is his.

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "FaultsFixture.h"

namespace {

const uid_t User = 12345;
const uid_t Stranger = 23456;

#define NEEDS_ROOT \
    if (geteuid() != 0) QSKIP("only root can be somebody else")

uid_t ownerOf(const QString& path) {
    struct stat info = {};
    return lstat(QFile::encodeName(path).constData(), &info) == 0 ? info.st_uid : uid_t(-1);
}

int modeOf(const QString& path) {
    struct stat info = {};
    return lstat(QFile::encodeName(path).constData(), &info) == 0 ? int(info.st_mode & 07777) : -1;
}

void give(const QString& path, uid_t user) { QCOMPARE(lchown(QFile::encodeName(path).constData(), user, user), 0); }

// Runs as another user in a process of its own: its exit status.
int runAs(uid_t user, const std::function<int()>& operation) {
    const pid_t child = fork();
    if (child == 0) {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        const bool isUser = setgid(user) == 0 && setuid(user) == 0;
        _exit(isUser ? operation() : 255);
    }
    int status = -1;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

NetConnectSettingUILogic* logic() { return NetConnectSettingUILogic::GetInstance(); }
int save(const QString& name) { return logic()->SaveDialUpProfile(LogicFixture::named(name, "secret")); }

}  // namespace

class tst_owners : public QObject {
    Q_OBJECT

private slots:
    void init() {
        NetConnectSettingUILogic::Destroy();
        m_pFixture.reset(new LogicFixture);
        m_pFixture->shipLibrary(LogicFixture::profile("Preset"));
        chmod(qPrintable(path("")), 0755);
        QDir().mkpath(path("data"));
        TestFolder::write(path("victim"), "precious");
    }
    void cleanup() {
        QCOMPARE(TestFolder::read(path("victim")), QByteArray("precious"));
        QCOMPARE(temporaryFiles(path("")), QStringList());
        NetConnectSettingUILogic::Destroy();
    }

    // Somebody guesses what the copy of the damaged file will be called.
    void aPlantedCopyIsNotFollowed() {
        const QString file = path("export.prof");
        TestFolder::write(file, "garbage");
        const QDateTime now = QDateTime::currentDateTimeUtc();
        for (int second = 0; second < 60; ++second) {
            const QString link = file + ".damaged-" + now.addSecs(second).toString("yyyyMMddThhmmssZ");
            QVERIFY(QFile::link(second % 2 ? path("victim") : path("missing"), link));
        }
        QCOMPARE(logic()->ExportChosenProfiles({"Preset"}, file), 0);
        QVERIFY(!QFile::exists(path("missing")));
        const QStringList copies =
            QDir(path("")).entryList({"export.prof.damaged-*-2"}, QDir::Files | QDir::NoSymLinks);
        QCOMPARE(copies.size(), 1);
        QCOMPARE(TestFolder::read(path(copies[0])), QByteArray("garbage"));
        QCOMPARE(modeOf(path(copies[0])), 0600);
    }

    void linksInSharedFolders_data() {
        const Rows<uid_t, uid_t, bool> row("folderOwner", "linkOwner", "isFollowed");
        row("a stranger's", 0, Stranger, false);
        row("the folder owner's", Stranger, Stranger, true);
        row("my own", 0, User, true);
    }
    void linksInSharedFolders() {
        NEEDS_ROOT;
        const QString shared = path("shared");
        const QString link = shared + "/export.prof";
        QDir().mkpath(shared);
        QDir().mkpath(path("mine"));
        QVERIFY(QFile::link(path("mine/export.prof"), link));
        give(shared, cell<uid_t>("folderOwner"));
        give(link, cell<uid_t>("linkOwner"));
        for (const char* name : {"data", "mine"}) give(path(name), User);
        chmod(qPrintable(shared), 01777);
        QCOMPARE(runAs(User, [&] { return logic()->ExportChosenProfiles({"Preset"}, link); }),
                 cell<bool>("isFollowed") ? 0 : 25);
        QCOMPARE(QFile::exists(path("mine/export.prof")), cell<bool>("isFollowed"));
        QVERIFY(QFileInfo(link).isSymLink());
    }

    void whatRootMakesBelongsToTheFoldersOwner() {
        NEEDS_ROOT;
        give(path("data"), User);
        QCOMPARE(save("First"), 0);
        TestFolder::write(m_pFixture->userFile(), "garbage");
        QCOMPARE(save("Second"), 0);
        const QStringList made = QDir(path("data")).entryList(QDir::Files | QDir::Hidden);
        QCOMPARE(made.size(), 3);  // with lock file and damaged copy
        for (const QString& name : made) {
            QCOMPARE(ownerOf(path("data/" + name)), User);
            QCOMPARE(modeOf(path("data/" + name)), 0600);
        }
        NetConnectSettingUILogic::Destroy();
        QCOMPARE(runAs(User, [] { return save("Third"); }), 0);
    }

    void rootFollowsNoLinkOfAUser_data() { nameRows("link", {"data/UserProfile.prof", "data/UserProfile.prof.lock"}); }
    void rootFollowsNoLinkOfAUser() {
        NEEDS_ROOT;
        TestFolder::write(path("victim"), LogicFixture::document(LogicFixture::profile("Secret")));
        const QByteArray before = TestFolder::read(path("victim"));
        QVERIFY(QFile::link(path("victim"), path(cell("link"))));
        give(path("data"), User);
        give(path(cell("link")), User);
        QCOMPARE(LogicFixture::names().contains("Secret"), false);
        QCOMPARE(save("New"), 25);
        QVERIFY(logic()->LastStorageProblem().reason.text().contains("link"));
        QCOMPARE(TestFolder::read(path("victim")), before);
        TestFolder::write(path("victim"), "precious");
    }

    void anExportBelongsToWhoExports() {
        NEEDS_ROOT;
        const QString file = path("export.prof");
        TestFolder::write(file, LogicFixture::document(""));
        give(file, User);
        QCOMPARE(save("Mine"), 0);
        QCOMPARE(logic()->ExportChosenProfiles({"Mine"}, file), 0);
        QCOMPARE(ownerOf(file), uid_t(0));
        QCOMPARE(modeOf(file), 0600);
    }

    void anOddUmaskTakesNothingAway() {
        NEEDS_ROOT;
        give(path("data"), User);
        const auto saveTwice = [&] {
            umask(0777);
            const int status = save("First") + logic()->ExportChosenProfiles({"Preset"}, path("data/export.prof"));
            LogicFixture::restart();
            return status + save("Second") + logic()->ExportChosenProfiles({"Preset"}, path("data/export.prof"));
        };
        QCOMPARE(runAs(User, saveTwice), 0);
    }

private:
    QString path(const QString& name) const { return m_pFixture->path(name); }

    QScopedPointer<LogicFixture> m_pFixture;
};

QTEST_GUILESS_MAIN(tst_owners)
#include "tst_owners.moc"
