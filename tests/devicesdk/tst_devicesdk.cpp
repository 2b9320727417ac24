// The device SDK: what each environment makes of it, its events, and the user data directory.
#include <sys/stat.h>

#include <QProcess>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>
#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "vrks.h"
#include "vrks_simulated.h"

using Answers = QMap<QString, QString>;

namespace {

// What the callbacks saw: which one, the event, the thread.
struct Delivery {
    char callback;
    int event;
    std::thread::id thread;
};

std::mutex deliveriesMutex;
std::vector<Delivery> deliveries;

void record(char callback, int event) {
    const std::lock_guard lock(deliveriesMutex);
    deliveries.push_back({callback, event, std::this_thread::get_id()});
}

QString recorded() {
    const std::lock_guard lock(deliveriesMutex);
    QStringList texts;
    for (const Delivery& delivery : deliveries) texts << delivery.callback + QString::number(delivery.event);
    return texts.join(' ');
}

int first(int event, void*) {
    record('a', event);
    return 0;
}

int second(int event, void*) {
    record('b', event);
    return 0;
}

QSemaphore entered;
QSemaphore mayLeave;

int blocking(int, void*) {
    entered.release();
    mayLeave.acquire();
    return 0;
}

std::atomic<long> resultWithin{-2};

int removingItself(int event, void*) {
    record('r', event);
    resultWithin = VRKS_DevSrv_UnRegisterDevInitEventCallback(removingItself);
    VRKS_DevSrv_UnRegisterDevInitEventCallback(second);
    entered.release();
    mayLeave.acquire();
    return 0;
}

int waitingWithin(int event, void*) {
    record('w', event);
    resultWithin = vrks_simulated_wait_events();
    if (event < 3) vrks_simulated_raise_event(event + 1);
    return 0;
}

std::optional<QString> dataDirectory() {
    unsigned short* text = nullptr;
    if (VRKS_GetUserDataDirectory(&text) != 0) return text ? std::optional<QString>("failed and wrote") : std::nullopt;
    const std::unique_ptr<unsigned short[]> owner(text);
    return QString::fromUtf16(text);
}

mode_t modeOf(const QString& path) {
    struct stat info {};
    return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? info.st_mode & 07777 : 0;
}

QStringList namesIn(const QString& folder) {
    return QDir(folder).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System);
}

// True when unregistering takes until the running callback is let go.
bool unregisteringWaits(VRKS_DevInitEventCallback callback) {
    if (!entered.tryAcquire(1, 10000)) return false;
    QSemaphore removed;
    std::thread remover([&] {
        VRKS_DevSrv_UnRegisterDevInitEventCallback(callback);
        removed.release();
    });
    const bool tooEarly = removed.tryAcquire(1, 100);
    mayLeave.release();
    remover.join();
    return !tooEarly;
}

// Runs the probe with the device asked for, none when it is null.
int runProbe(const QString& device, const QStringList& arguments, QString* output = nullptr) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    device.isNull() ? environment.remove("ORBISDIAL_DEVICE") : environment.insert("ORBISDIAL_DEVICE", device);
    QProcess probe;
    probe.setProcessEnvironment(environment);
    probe.start(VRKS_PROBE, arguments);
    if (!probe.waitForFinished() || probe.exitStatus() != QProcess::NormalExit) return -1;
    if (output) *output = QString::fromUtf8(probe.readAllStandardOutput());
    return probe.exitCode();
}

// A buffer with a guard behind it: text up to a size, or nothing when the guard was touched.
template <std::size_t Size>
struct Guarded {
    char place[Size + 1];
    Guarded() { std::fill(std::begin(place), std::end(place), 'G'); }
    QString text(std::size_t offset, std::size_t size) const {
        return place[Size] == 'G' ? QString::fromUtf8(place + offset, int(qstrnlen(place + offset, uint(size))))
                                  : QString();
    }
    QString number(std::size_t offset) const {
        return place[Size] == 'G' ? QString::number(qFromUnaligned<qint32>(place + offset)) : QString();
    }
};

// What the simulated modem answers, by setting; a query that fails has no answers.
Answers askEverything() {
    Answers answers;
    int number = 0;
    unsigned char isMultiMode = 0;
    unsigned int cardMode = 0;
    Guarded<VRKS_CUSTOMIZE_NAME_SIZE> name;
    Guarded<VRKS_IMSI_SIZE> imsi;
    Guarded<VRKS_SYSINFO_SIZE> system;
    Guarded<VRKS_DSPROFILE_SIZE> profile;
    if (VRKS_DevSrv_GetDevStatus(&number) == 0) answers["STATUS"] = QString::number(number);
    if (VRKS_DevSrv_GetProductType(&number) == 0) answers["PRODUCT_TYPE"] = QString::number(number);
    if (VRKS_DevSrv_GetCustomizeName(name.place) == 0) answers["CUSTOMIZE_NAME"] = name.text(0, sizeof name.place);
    if (VRKS_DevSrv_GetImsiInfo(imsi.place) == 0) answers["IMSI"] = imsi.text(0, sizeof imsi.place);
    if (VRKS_DevSrv_GetMultiModeCardStatus(&isMultiMode, nullptr, nullptr, &cardMode) == 0)
        answers.insert({{"MULTI_MODE", QString::number(isMultiMode)}, {"CARD_MODE", QString::number(cardMode)}});
    if (VRKS_NetSrv_GetSysInfoEx(system.place) == 0)
        answers.insert({{"SYS_MODE", system.number(4)}, {"SYS_SUBMODE", system.number(20)}});
    if (VRKS_NetConnectSrv_DSGetProfile(profile.place) == 0)
        answers.insert({{"DS_USER", profile.text(0, 256)}, {"DS_PASSWORD", profile.text(256, 256)}});
    return answers;
}

const Answers Defaults = {{"STATUS", "3"},    {"PRODUCT_TYPE", "0"}, {"CUSTOMIZE_NAME", ""},
                          {"CARD_MODE", "0"}, {"MULTI_MODE", "0"},   {"IMSI", "310260123456789"},
                          {"SYS_MODE", "0"},  {"SYS_SUBMODE", "0"}};

}  // namespace

class TestDeviceSdk : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(vrks_simulated_active()); }

    void cleanup() {
        for (VRKS_DevInitEventCallback callback : {first, second, blocking, removingItself, waitingWithin})
            VRKS_DevSrv_UnRegisterDevInitEventCallback(callback);
        QCOMPARE(vrks_simulated_wait_events(), 0L);
        QCOMPARE(vrks_simulated_reset(), 0L);
        const std::lock_guard lock(deliveriesMutex);
        deliveries.clear();
        resultWithin = -2;
    }

    void environment_data() {
        QTest::addColumn<Answers>("variables");
        QTest::addColumn<Answers>("changed");  // against the defaults; null: the query fails
        const QString longest(256, 'u');
        const QString cut(62, 'n');
        const QString none;
        const auto row = [](const char* name, const Answers& variables, const Answers& changed) {
            QTest::newRow(name) << variables << changed;
        };
        const Answers all = {{"IMSI", "262011234567890"}, {"STATUS", "-1"},      {"CUSTOMIZE_NAME", "Größe"},
                             {"PRODUCT_TYPE", "1"},       {"MULTI_MODE", "255"}, {"CARD_MODE", "2"},
                             {"SYS_MODE", "2"},           {"SYS_SUBMODE", "31"}, {"DS_USER", "u"},
                             {"DS_PASSWORD", "p"}};
        row("nothing set", {}, {});
        row("everything set", all, all);
        row("no card", {{"IMSI", ""}}, {{"IMSI", none}});
        row("IMSI too long", {{"IMSI", "3102601234567890"}}, {{"IMSI", none}});
        row("no number", {{"STATUS", "3x"}, {"PRODUCT_TYPE", ""}}, {{"STATUS", none}, {"PRODUCT_TYPE", none}});
        row("not a byte", {{"MULTI_MODE", "256"}}, {{"MULTI_MODE", none}, {"CARD_MODE", none}});
        row("beyond 32 bits", {{"SYS_MODE", "4294967298"}}, {{"SYS_MODE", none}, {"SYS_SUBMODE", none}});
        row("name fills its place", {{"CUSTOMIZE_NAME", cut + "n"}}, {{"CUSTOMIZE_NAME", cut + "n"}});
        row("name cut before a character", {{"CUSTOMIZE_NAME", cut + "é"}}, {{"CUSTOMIZE_NAME", cut}});
        row("user alone", {{"DS_USER", "u"}}, {{"DS_USER", "u"}, {"DS_PASSWORD", ""}});
        row("profile fills its place", {{"DS_USER", longest}, {"DS_PASSWORD", longest + "x"}},
            {{"DS_USER", longest}, {"DS_PASSWORD", longest}});
    }

    void environment() {
        QFETCH(Answers, variables);
        QFETCH(Answers, changed);
        Answers expected = Defaults;
        for (auto it = changed.cbegin(); it != changed.cend(); ++it) {
            expected.remove(it.key());
            if (!it->isNull()) expected[it.key()] = *it;
        }
        const auto variable = [](const QString& name) { return "ORBISDIAL_SIM_" + name.toLatin1(); };
        for (auto it = variables.cbegin(); it != variables.cend(); ++it) qputenv(variable(it.key()), it->toUtf8());
        QCOMPARE(vrks_simulated_reset(), 0L);
        for (const QString& name : variables.keys()) qunsetenv(variable(name));
        QCOMPARE(askEverything(), expected);
    }

    void withoutModem_data() {
        QTest::addColumn<QString>("device");
        QTest::addColumn<QString>("backend");
        QTest::newRow("not asked for") << QString() << "none";
        QTest::newRow("empty") << ""
                               << "none";
        QTest::newRow("none") << "none"
                              << "none";
        QTest::newRow("auto") << "auto"
                              << "none";
        QTest::newRow("not there yet") << "modemmanager"
                                       << "failed";
        QTest::newRow("unknown") << "Simulated"
                                 << "failed";
    }

    void withoutModem() {
        QFETCH(QString, device);
        QFETCH(QString, backend);
        QString output;
        QCOMPARE(runProbe(device, {}, &output), 0);
        QCOMPARE(output.section('|', 0, 0), backend);
        QCOMPARE(output.section('|', 1).isEmpty(), backend == "none");
    }

    void endsWithEventsOnTheirWay() {
        QCOMPARE(runProbe("simulated", {"from main"}), 0);
        QCOMPARE(runProbe("simulated", {"within"}), 7);
    }

    void nullOutputsFail() {
        unsigned char isMultiMode = 0;
        unsigned int cardMode = 0;
        for (long status : {VRKS_DevSrv_GetDevStatus(nullptr), VRKS_DevSrv_GetCustomizeName(nullptr),
                            VRKS_DevSrv_GetProductType(nullptr), VRKS_DevSrv_GetImsiInfo(nullptr),
                            VRKS_DevSrv_GetMultiModeCardStatus(nullptr, nullptr, nullptr, &cardMode),
                            VRKS_DevSrv_GetMultiModeCardStatus(&isMultiMode, nullptr, nullptr, nullptr),
                            VRKS_NetSrv_GetSysInfoEx(nullptr), VRKS_NetConnectSrv_DSGetProfile(nullptr),
                            VRKS_GetUserDataDirectory(nullptr)})
            QVERIFY(status != 0);
    }

    void changesWhileRunning() {
        char imsi[VRKS_IMSI_SIZE] = "kept";
        int status = 9;
        QCOMPARE(vrks_simulated_set("IMSI", nullptr), 0L);
        QVERIFY(VRKS_DevSrv_GetImsiInfo(imsi) != 0);
        QCOMPARE(imsi, "kept");
        QCOMPARE(vrks_simulated_set("IMSI", "20201"), 0L);
        QCOMPARE(VRKS_DevSrv_GetImsiInfo(imsi), 0L);
        QCOMPARE(imsi, "20201");

        QVERIFY(vrks_simulated_set("STATUS", "none") != 0);
        QVERIFY(vrks_simulated_set("CARD_MODE", "-1") != 0);
        QVERIFY(vrks_simulated_set("NO_SUCH", "1") != 0);
        QVERIFY(vrks_simulated_set(nullptr, "1") != 0);
        QCOMPARE(VRKS_DevSrv_GetDevStatus(&status), 0L);
        QCOMPARE(status, VRKS_DEV_STATUS_READY);
        QCOMPARE(vrks_simulated_set("STATUS", nullptr), 0L);
        QVERIFY(VRKS_DevSrv_GetDevStatus(&status) != 0);
    }

    void eventsArriveInOrderOnOneThread() {
        QCOMPARE(VRKS_DevSrv_RegisterDevInitEventCallback(first), 0L);
        QCOMPARE(VRKS_DevSrv_RegisterDevInitEventCallback(second), 0L);
        for (int event : {6014, 6016, 6014}) QCOMPARE(vrks_simulated_raise_event(event), 0L);
        QCOMPARE(vrks_simulated_wait_events(), 0L);
        QCOMPARE(recorded(), QString("a6014 b6014 a6016 b6016 a6014 b6014"));
        for (const Delivery& delivery : deliveries) {
            QVERIFY(delivery.thread != std::this_thread::get_id());
            QVERIFY(delivery.thread == deliveries.front().thread);
        }
    }

    void registersOnce() {
        QVERIFY(VRKS_DevSrv_RegisterDevInitEventCallback(nullptr) != 0);
        QVERIFY(VRKS_DevSrv_UnRegisterDevInitEventCallback(nullptr) != 0);
        QVERIFY(VRKS_DevSrv_UnRegisterDevInitEventCallback(first) != 0);
        QCOMPARE(VRKS_DevSrv_RegisterDevInitEventCallback(first), 0L);
        QVERIFY(VRKS_DevSrv_RegisterDevInitEventCallback(first) != 0);
        vrks_simulated_raise_event(1);
        vrks_simulated_wait_events();
        QCOMPARE(recorded(), QString("a1"));
        QCOMPARE(VRKS_DevSrv_UnRegisterDevInitEventCallback(first), 0L);
        vrks_simulated_raise_event(2);
        vrks_simulated_wait_events();
        QCOMPARE(recorded(), QString("a1"));
    }

    void unregisteringWaitsForARunningCallback() {
        VRKS_DevSrv_RegisterDevInitEventCallback(blocking);
        vrks_simulated_raise_event(1);
        vrks_simulated_raise_event(2);  // waits behind it, and must not be delivered any more
        QVERIFY(unregisteringWaits(blocking));
        QCOMPARE(vrks_simulated_wait_events(), 0L);
        QVERIFY(!entered.tryAcquire());
    }

    // The callback is still running after it removed itself, so another thread must still wait for it; the
    // callback after it, which it removed as well, gets not even this event.
    void callbackRemovesItself() {
        VRKS_DevSrv_RegisterDevInitEventCallback(removingItself);
        VRKS_DevSrv_RegisterDevInitEventCallback(second);
        vrks_simulated_raise_event(1);
        vrks_simulated_raise_event(2);
        QVERIFY(unregisteringWaits(removingItself));
        QCOMPARE(resultWithin.load(), 0L);
        QCOMPARE(vrks_simulated_wait_events(), 0L);
        QCOMPARE(recorded(), QString("r1"));
    }

    void callbackRaisesEvents() {
        VRKS_DevSrv_RegisterDevInitEventCallback(waitingWithin);
        vrks_simulated_raise_event(1);
        QTRY_COMPARE(recorded(), QString("w1 w2 w3"));
        QVERIFY(resultWithin != 0 && resultWithin != -2);
    }

    void manyThreadsAtOnce() {
        std::vector<std::thread> threads;
        for (VRKS_DevInitEventCallback callback : {first, second}) {
            threads.emplace_back([callback] {
                for (int i = 0; i < 300; ++i) {
                    VRKS_DevSrv_RegisterDevInitEventCallback(callback);
                    vrks_simulated_raise_event(i);
                    VRKS_DevSrv_UnRegisterDevInitEventCallback(callback);
                }
            });
            threads.emplace_back([] {
                char imsi[VRKS_IMSI_SIZE];
                for (int i = 0; i < 300; ++i) {
                    vrks_simulated_set("IMSI", i % 2 ? "26201" : "310260123456789");
                    VRKS_DevSrv_GetImsiInfo(imsi);
                    vrks_simulated_wait_events();
                }
            });
        }
        for (std::thread& thread : threads) thread.join();
        QCOMPARE(vrks_simulated_wait_events(), 0L);
    }

    void dataDirectory_data() {
        QTest::addColumn<QByteArray>("dataDir");  // null: not set; '@' stands for the test's folder
        QTest::addColumn<QByteArray>("dataHome");
        QTest::addColumn<QByteArray>("home");
        QTest::addColumn<QString>("expected");  // null: the call fails
        const QByteArray unset;
        QTest::newRow("own variable") << QByteArray("@/a/b") << QByteArray("@/x") << QByteArray("@/h") << "@/a/b/";
        QTest::newRow("ends with a slash") << QByteArray("@/a/") << unset << unset << "@/a/";
        QTest::newRow("blanks, beyond ASCII") << QByteArray("@/my data/\u00e9\u4e2d\U0001f4f6") << unset << unset
                                              << QString::fromUtf8("@/my data/\u00e9\u4e2d\U0001f4f6/");
        QTest::newRow("relative") << QByteArray("rel") << unset << unset << "@/rel/";
        QTest::newRow("XDG data home") << QByteArray("") << QByteArray("@/x") << QByteArray("@/h") << "@/x/orbisdial/";
        QTest::newRow("home") << unset << QByteArray("") << QByteArray("@/h") << "@/h/.local/share/orbisdial/";
        QTest::newRow("no home") << unset << unset << unset << QString();
        QTest::newRow("file in the way") << QByteArray("@/file") << unset << unset << QString();
        QTest::newRow("file on the way") << QByteArray("@/file/sub") << unset << unset << QString();
        QTest::newRow("dangling link") << QByteArray("@/dangling") << unset << unset << QString();
        QTest::newRow("name too long") << "@/" + QByteArray(256, 'n') << unset << unset << QString();
        for (const char* bad : {"@/\xff", "@/\xc3", "@/\xed\xa0\x80", "@/\xed\xa0\x80\xed\xb0\x80", "@/\xc0\xaf"})
            QTest::addRow("not UTF-8: %s", QByteArray(bad).toHex().constData())
                << QByteArray(bad) << unset << unset << QString();
    }

    void dataDirectory() {
        QFETCH(QString, expected);
        QTemporaryDir root;
        const QString base = QFileInfo(root.path()).canonicalFilePath();
        QVERIFY(QFile(root.filePath("file")).open(QIODevice::WriteOnly));
        QVERIFY(QFile::link(root.filePath("nowhere"), root.filePath("dangling")));
        const QStringList before = namesIn(base);
        setVariable("ORBISDIAL_DATA_DIR", "dataDir", base);
        setVariable("XDG_DATA_HOME", "dataHome", base);
        setVariable("HOME", "home", base);
        const QString oldFolder = QDir::currentPath();
        QDir::setCurrent(base);
        QCOMPARE(::chmod(QFile::encodeName(base).constData(), 0755), 0);
        const mode_t oldMask = ::umask(0777);
        const std::optional<QString> folder = ::dataDirectory();
        ::umask(oldMask);
        QDir::setCurrent(oldFolder);
        QCOMPARE(modeOf(base), mode_t(0755));

        if (expected.isNull()) {
            QVERIFY(!folder);
            QCOMPARE(namesIn(base), before);
            return;
        }
        QVERIFY(folder);
        QCOMPARE(*folder, expected.replace('@', base));
        for (QString made = QFileInfo(*folder).path(); made != base; made = QFileInfo(made).path())
            QCOMPARE(modeOf(made), mode_t(0700));
    }

private:
    // Sets an environment variable as the row's column says.
    static void setVariable(const char* name, const char* column, const QString& base) {
        QByteArray value = *static_cast<QByteArray*>(QTest::qData(column, qMetaTypeId<QByteArray>()));
        value.isNull() ? qunsetenv(name) : qputenv(name, value.replace('@', QFile::encodeName(base)));
    }
};

QTEST_GUILESS_MAIN(TestDeviceSdk)
#include "tst_devicesdk.moc"
