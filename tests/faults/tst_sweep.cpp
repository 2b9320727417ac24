// SPDX-License-Identifier: MIT
// Every system call of every operation fails once, with every error: the file is wholly old or wholly new, what was not
// stored is answered and explained, and nothing is left beside the file.

#include <errno.h>

#include "FaultsFixture.h"

namespace {

using Errors = QList<int>;
using Operation = std::function<int()>;

// What came of an operation.
enum Sign { Stored = 1, Explained = 2, FaultMet = 4 };

struct AlwaysReplace : NetConnectClashPolicy {
    bool replace(const QString&) override { return true; }
};

NetConnectSettingUILogic* logic() { return NetConnectSettingUILogic::GetInstance(); }

int importFrom(const QString& file) {
    AlwaysReplace policy;
    QStringList names;
    const int status = logic()->GetDialUpProfileFromFile(&names, file);
    return status != 0 ? status : logic()->ImportChosenProfiles(names, &policy);
}

const QMap<QString, Errors>& errorsByCall() {
    static const QMap<QString, Errors> errors{{"open", {EROFS, EMFILE, ENOSPC}},
                                              {"open to read", {EMFILE, EIO, EACCES}},
                                              {"read", {EIO}},
                                              {"stat", {EIO, EACCES}},
                                              {"write", {ENOSPC, EIO}},
                                              {"fsync", {EIO, ENOSPC}},
                                              {"fsync folder", {EIO}},
                                              {"fchmod", {EPERM}},
                                              {"close", {EIO}},
                                              {"rename", {EIO, EACCES}},
                                              {"linkat", {EPERM}},
                                              {"unlink", {EIO}},
                                              {"flock", {ENOLCK}}};
    return errors;
}

// Interrupted calls are made again, those that did a part go on, and what a file system can't do is done otherwise.
const QStringList Interruptible{"open",
                                "open to read",
                                "read",
                                "read in full",
                                "write",
                                "write in full",
                                "rename with flags",
                                "rename with flags or link",
                                "fsync",
                                "fsync folder",
                                "close",
                                "flock"};

void dropTrace(QtMsgType, const QMessageLogContext&, const QString&) {}

// Runs with a logic that starts as in any process, and prepares it just before: the signs.
int run(const Operation& operation, const std::function<void()>& prepare) {
    const QtMessageHandler before = qInstallMessageHandler(dropTrace);
    LogicFixture::names();
    prepare();
    const bool isStored = operation() == 0;
    const bool isMet = FaultySystem::hasFailed();
    FaultySystem::fail(nullptr, 0);
    const bool isExplained = !logic()->LastStorageProblem().isNull();
    qInstallMessageHandler(before);
    return (isStored ? Stored : 0) | (isExplained ? Explained : 0) | (isMet ? FaultMet : 0);
}

}  // namespace

Q_DECLARE_METATYPE(Operation)

class tst_sweep : public QObject {
    Q_OBJECT

private slots:
    void everyCallFailsOnce_data() {
        const Rows<Operation, QString> row("operation", "file");
        const QString user = "data/UserProfile.prof";
        const auto exportTo = [this](const char* file) {
            return [this, file] { return logic()->ExportChosenProfiles({"Old", "Other"}, path(file)); };
        };
        row(
            "add", [] { return logic()->AddDialUpProfile(LogicFixture::named("New")); }, user);
        row(
            "rename", [] { return logic()->ReplaceDialUpProfile("Old", LogicFixture::named("Renamed")); }, user);
        row(
            "delete", [] { return logic()->DelDialUpProfile("Old"); }, user);
        row(
            "default", [] { return logic()->SetDefaultDialUpProfileName("Other", true); }, user);
        row(
            "import", [this] { return importFrom(path("import.prof")); }, user);
        row("export", exportTo("export.prof"), "export.prof");
        row("first export", exportTo("new.prof"), "new.prof");
        row("export over a damaged file", exportTo("damaged.prof"), "damaged.prof");
        row(
            "template", [] { return logic()->updateProfileTemplate(); },
            "library/plugins/NetConnectPlugin/SysProfile.prof");
    }
    void everyCallFailsOnce() {
        begin();
        const QMap<QString, QByteArray> after = afterwards();
        for (auto errors = errorsByCall().begin(); errors != errorsByCall().end(); ++errors) {
            bool isMet = true;
            for (int n = 1; isMet; ++n) {
                const int error = errors->at(n % errors->size());
                isMet = check(errors.key(), error, n, after);
                if (QTest::currentTestFailed())
                    qFatal("%s %d fails with %s", qPrintable(errors.key()), n, strerror(error));
            }
        }
    }

    void interruptionsAreNoFailures_data() { everyCallFailsOnce_data(); }
    void interruptionsAreNoFailures() {
        begin();
        const QMap<QString, QByteArray> after = afterwards();
        for (const QString& call : Interruptible) {
            start();
            const int signs = run(*operation(), [&] { FaultySystem::fail(qPrintable(call), EINTR, 1); });
            QVERIFY2(
                (signs & ~FaultMet) == (after.keys().join(' ').contains(".damaged-") ? Stored | Explained : Stored),
                qPrintable(call));
            compare(after);
        }
    }

    // A target that is there whenever it is to be made, and gone whenever one looks.
    void aTargetThatNeverHoldsStillIsGivenUp() {
        m_pFixture.reset(new LogicFixture);
        FaultySystem::fail("rename", EEXIST);
        m_pFixture->shipLibrary(LogicFixture::profile("Old"));
        QCOMPARE(logic()->ExportChosenProfiles({"Old"}, path("new.prof")), 25);
        FaultySystem::fail(nullptr, 0);
        QVERIFY(!logic()->LastStorageProblem().isNull());
        QCOMPARE(temporaryFiles(path("")), QStringList());
    }

private:
    QString path(const QString& name) const { return m_pFixture->path(name); }
    const Operation* operation() const { return &m_Operation; }

    void begin() {
        NetConnectSettingUILogic::Destroy();
        m_pFixture.reset(new LogicFixture);
        m_pFixture->shipConfig(LogicFixture::section("ProfileTemplate", {"name=Fresh"}));
        m_Operation = cell<Operation>("operation");
    }

    // The same files each time.
    void start() const {
        LogicFixture::end();
        for (const QString& name : files().keys()) QFile::remove(path(name));
        const QByteArray profiles = LogicFixture::profile("Old") + LogicFixture::profile("Other");
        TestFolder::write(m_pFixture->userFile() + ".lock", "");
        m_pFixture->setUser(profiles, "<Default name=\"Old\" IsUserSet=\"1\"/>");
        m_pFixture->ship("SysProfile.prof", "<vrksdoc/>");
        m_pFixture->shipConfig(LogicFixture::section("ProfileTemplate", {"name=Fresh"}));
        TestFolder::write(path("import.prof"), LogicFixture::document(LogicFixture::profile("Other", "user='them'")));
        TestFolder::write(path("export.prof"), LogicFixture::document(LogicFixture::profile("Kept")));
        TestFolder::write(path("damaged.prof"), "<vrksdoc><ProfileGroup>" + LogicFixture::profile("Kept"));
    }

    // All files and their contents; a copy's time is left out.
    QMap<QString, QByteArray> files() const {
        QMap<QString, QByteArray> result;
        QDirIterator files(path(""), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = files.next();
            result.insert(file.mid(path("").size()), TestFolder::read(file));
        }
        return result;
    }
    static QMap<QString, QByteArray> timeless(const QMap<QString, QByteArray>& files) {
        QMap<QString, QByteArray> result;
        for (auto file = files.begin(); file != files.end(); ++file)
            result.insert(QString(file.key()).replace(QRegularExpression("\\.damaged-.*Z"), ".damaged-"), *file);
        return result;
    }
    void compare(const QMap<QString, QByteArray>& expected) const {
        QCOMPARE(timeless(files()).keys(), timeless(expected).keys());
        QVERIFY(timeless(files()) == timeless(expected));
    }

    QMap<QString, QByteArray> afterwards() const {
        start();
        run(*operation(), [] {});
        return files();
    }

    // False when the n-th call is never made.
    bool check(const QString& call, int error, int n, const QMap<QString, QByteArray>& after) const {
        start();
        const QMap<QString, QByteArray> before = files();
        const int signs = run(*operation(), [&] { FaultySystem::fail(qPrintable(call), error, n); });
        const bool isStored = (signs & Stored) != 0;
        [&] {
            QVERIFY(isStored || (signs & Explained) != 0);
            compare(isStored ? after : before);
        }();
        return (signs & FaultMet) != 0;
    }

    QScopedPointer<LogicFixture> m_pFixture;
    Operation m_Operation;
};

QTEST_GUILESS_MAIN(tst_sweep)
#include "tst_sweep.moc"
