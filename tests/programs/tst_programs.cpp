// SPDX-License-Identifier: MIT
// What all programs have in common: where they look for libraries, who may look into them, and how they end when the
// system has something missing.

#include <sys/stat.h>
#include <unistd.h>

#include <QDirIterator>
#include <QTemporaryDir>
#include <QThread>

#include "Program.h"
#include "Rows.h"
#include "TestFolder.h"

namespace {

const QString Programs = ORBISDIAL_BUILD_DIR "/bin/";

bool isELF(const QString& file) {
    QFile in(file);
    return in.open(QIODevice::ReadOnly) && in.read(4) == QByteArray("\177ELF");
}

// Programs and libraries, but no object files.
QStringList loadableFiles(const QString& folder) {
    QStringList found;
    QDirIterator files(folder, QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        if (!file.endsWith(".o") && isELF(file)) found.append(file);
    }
    return found;
}

void giveUpRights() {
    const uid_t nobody = 65534;
    if (getuid() == 0 && setuid(nobody) != 0) _exit(127);
}

// A program that somebody without special rights has started, waiting for its input.
class AnybodysProgram : public QProcess {
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
protected:
    void setupChildProcess() override { giveUpRights(); }
#else
public:
    AnybodysProgram() { setChildProcessModifier(giveUpRights); }
#endif
};

}  // namespace

class tst_programs : public QObject {
    Q_OBJECT

private slots:
    void librariesComeFromKnownFolders_data() {
        const Rows<bool> row("isInstalled");
        row("build tree", false);
        row("installation", true);
    }
    void librariesComeFromKnownFolders() {
        QFETCH(bool, isInstalled);
        const QTemporaryDir prefix;
        if (isInstalled) {
            const Outcome outcome =
                runProgram(CMAKE_PROGRAM, {"--install", ORBISDIAL_BUILD_DIR, "--prefix", prefix.path()});
            QVERIFY2(outcome.status == 0, outcome.err);
            QCOMPARE(runProgram(prefix.filePath(INSTALLED_PROGRAMS "/orbisctl"), {"--version"}).status, 0);
        }
        const QStringList files = loadableFiles(isInstalled ? prefix.path() : ORBISDIAL_BUILD_DIR);
        QVERIFY(files.size() >= 7);
        for (const QString& file : files) {
            const QByteArray dynamic = runProgram(READELF, {"-d", file}).out;
            QVERIFY2(!dynamic.contains("(RPATH)"), qPrintable(file));
            const int place = dynamic.indexOf("(RUNPATH)");
            if (place < 0) continue;
            const int begin = dynamic.indexOf('[', place) + 1;
            for (const QByteArray& folder : dynamic.mid(begin, dynamic.indexOf(']', begin) - begin).split(':'))
                QVERIFY2(folder.startsWith("$ORIGIN"), qPrintable(file + " looks into \"" + folder + '"'));
        }
    }

    // Its folder in /proc belongs to root as soon as nobody else may look into it.
    void nobodyLooksInto_data() {
        const Rows<QString, QStringList> row("program", "arguments");
        row("orbisctl", "orbisctl", {"explain", "-"});
        row("orbisdial", "orbisdial", {});
    }
    void nobodyLooksInto() {
        TestFolder folder;
        QDir().mkpath(folder.path("data"));
        ::chmod(QFile::encodeName(folder.path("")), 0755);
        ::chmod(QFile::encodeName(folder.path("data")), 0777);
        AnybodysProgram program;
        program.start(Programs + cell("program"), cell<QStringList>("arguments"));
        if (!program.waitForStarted()) QSKIP("only root can enter the build tree");
        const auto owner = [&] {
            struct stat info = {};
            ::stat(QByteArray("/proc/" + QByteArray::number(program.processId()) + "/maps"), &info);
            return int(info.st_uid);
        };
        QTRY_VERIFY(owner() == 0 || program.state() == QProcess::NotRunning);
        QCOMPARE(program.state(), QProcess::Running);
        program.kill();
        program.waitForFinished();
    }

    void standardStreams_data() {
        const Rows<QString, int, QByteArray> row("command", "status", "words");
        const QByteArray closed = "Bad file descriptor", full = "No space left";
        row("closed output", "$bin/orbisctl list >&-", 1, closed);
        row("all closed", "$bin/orbisctl list <&- >&- 2>&-", 1, "");
        row("closed, not needed", "$bin/orbisctl add A phonenumber=1 <&- >&- 2>&-", 0, "");
        row("closed input", "$bin/orbisctl explain - <&-", 1, "standard input");
        row("closed input for a password", "$bin/orbisctl add A password=- <&-", 1, closed);
        row("input that is a folder", "$bin/orbisctl explain - </", 1, "standard input");
        row("full", "$bin/orbisctl list >/dev/full", 1, full);
        row("full, JSON", "$bin/orbisctl --json add A phonenumber=1 >/dev/full", 1, full);
        row("full, help", "$bin/orbisctl --help >/dev/full", 1, full);
        row("full, a command's help", "$bin/orbisctl list --help >/dev/full", 1, full);
        row("full, version", "$bin/orbisctl --version >/dev/full", 1, full);
        row("window: closed output", "$bin/orbisdial --version >&-", 1, closed);
        row("window: full, help", "$bin/orbisdial --help >/dev/full", 1, full);
        row("full, diagnostics", "$bin/orbisctl frob 2>/dev/full", 2, "");
        row("reader gone", "sleep 0.2 | { $bin/orbisctl list; echo $? >&2; } | true", 0, "Broken pipe\n1\n");
        row("reader of traces gone", "{ $bin/orbisctl --trace add A phonenumber=1; echo $? >&3; } 3>&2 2>&1 | true", 0,
            "0\n");
        row("presets: closed output", "$presets >&-", 1, closed);
        row("presets: all closed", "$presets <&- >&- 2>&-", 1, "");
        row("presets: full", "$presets >/dev/full", 1, full);
        row("presets: full, help", "$bin/orbis-presets --help >/dev/full", 1, full);
        row("presets: full, version", "$bin/orbis-presets --version >/dev/full", 1, full);
    }
    // Nothing is written into a file that took a closed stream's place, and nothing is left behind.
    void standardStreams() {
        const TestFolder folder;
        const QString variables =
            QString(
                "bin=%1; presets=\"$bin/orbis-presets --output-dir %2 --template "
                "%3/NetConnectConfig.template.xml --library-template "
                "%3/ProfileLib.template.prof\"; ")
                .arg(ORBISDIAL_BUILD_DIR "/bin", folder.path("library"), ORBISDIAL_SOURCE_DIR "/data");
        shipAll(folder);
        const Outcome outcome = runProgram("sh", {"-c", variables + cell("command")});
        QCOMPARE(outcome.status, cell<int>("status"));
        QVERIFY2(outcome.err.contains(cell<QByteArray>("words")), outcome.err);
        QVERIFY2(outcome.err.count("orbis") <= 1, outcome.err);
        QDirIterator files(folder.path(""), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QByteArray content = TestFolder::read(files.next());
            QVERIFY2(content.isEmpty() || content.startsWith("<?xml"), qPrintable(files.filePath()));
            QVERIFY2(!files.fileName().contains("tmp"), qPrintable(files.filePath()));
        }
    }

    void memoryRunsOut_data() {
        const Rows<QString> row("command");
        row("list", "$bin/orbisctl list");
        row("add", "$bin/orbisctl add New phonenumber=1");
    }
    void memoryRunsOut() {
        if (ORBISDIAL_SANITIZED) QSKIP("the sanitizers reserve more memory than any limit");
        const TestFolder folder;
        shipAll(folder);
        QByteArray profiles;
        for (int i = 0; i < 20000; ++i) profiles += "<Profile name='" + QByteArray::number(i) + "'/>";
        const QByteArray before = "<vrksdoc><ProfileGroup>" + profiles + "</ProfileGroup></vrksdoc>";
        bool hasRunOut = false;
        for (int megabytes = 120; megabytes > 20; megabytes -= 5) {
            TestFolder::write(folder.userFile(), before);
            const QString command = QString("bin=%1; ulimit -v %2; ").arg(Programs).arg(megabytes * 1000);
            const Outcome outcome = runProgram("sh", {"-c", command + cell("command")});
            if (outcome.status == 127) break;  // not even the libraries can be loaded
            if (outcome.status == 0) continue;
            hasRunOut = true;
            QVERIFY2(outcome.err.count('\n') == 1 && outcome.err.contains("memory"), outcome.err);
            QCOMPARE(outcome.status, 1);
            QVERIFY(TestFolder::read(folder.userFile()) == before);
            const QStringList files = QDir(folder.path("data")).entryList(QDir::Files | QDir::Hidden);
            QVERIFY2(files.size() <= 2, qPrintable(files.join(' ')));
        }
        QVERIFY(hasRunOut);
    }

private:
    static void shipAll(const TestFolder& folder) {
        for (const char* file : {"NetConnectConfig.xml", "ProfileLib.prof", "SysProfile.prof"})
            folder.ship(file, TestFolder::read(QString(ORBISDIAL_LIBRARY_DIR "/plugins/NetConnectPlugin/") + file));
    }
};

QTEST_GUILESS_MAIN(tst_programs)
#include "tst_programs.moc"
