// SPDX-License-Identifier: MIT
// The device SDK: what each environment makes of it, its events, and the user data directory.
#include <sys/stat.h>
#include <unistd.h>

#include <QSemaphore>
#include <QTemporaryDir>
#include <QtEndian>
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <thread>
#include <vector>

#include "Program.h"
#include "Rows.h"
#include "TestFolder.h"
#include "vrks.h"
#include "vrks_simulated.h"

using Answers = QMap<QString, QString>;

namespace {

std::mutex deliveriesMutex;
QStringList deliveries;  // which callback, the event
std::set<std::thread::id> deliveryThreads;

void record(char callback, int event) {
    const std::lock_guard lock(deliveriesMutex);
    deliveries.append(callback + QString::number(event));
    deliveryThreads.insert(std::this_thread::get_id());
}

QString recorded() {
    const std::lock_guard lock(deliveriesMutex);
    return deliveries.join(' ');
}

template <char Name>
int noting(int event, void*) {
    record(Name, event);
    return 0;
}

const VRKS_DevInitEventCallback first = noting<'a'>;
const VRKS_DevInitEventCallback second = noting<'b'>;

std::function<void(int event)> action;

int acting(int event, void*) {
    record('x', event);
    action(event);
    return 0;
}

QSemaphore entered;
QSemaphore mayLeave;

void block() {
    entered.release();
    mayLeave.acquire();
}

// True when unregistering takes until the blocked callback is let go.
bool unregisteringWaits() {
    if (!entered.tryAcquire(1, 10000)) return false;
    QSemaphore removed;
    std::thread remover([&] {
        VRKS_DevSrv_UnRegisterDevInitEventCallback(acting);
        removed.release();
    });
    const bool tooEarly = removed.tryAcquire(1, 100);
    mayLeave.release();
    remover.join();
    return !tooEarly;
}

std::optional<QString> dataDirectory() {
    unsigned short* text = nullptr;
    if (VRKS_GetUserDataDirectory(&text) != 0) return text ? std::optional<QString>("failed and wrote") : std::nullopt;
    const std::unique_ptr<unsigned short[]> owner(text);
    return QString(reinterpret_cast<const QChar*>(text));
}

QStringList namesIn(const QString& folder) {
    return QDir(folder).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System);
}

// Runs the probe with the device asked for, none when it is null.
Outcome runProbe(const QByteArray& device, const QStringList& arguments) {
    device.isNull() ? qunsetenv("ORBISDIAL_DEVICE") : qputenv("ORBISDIAL_DEVICE", device);
    const Outcome outcome = runProgram(VRKS_PROBE, arguments);
    qputenv("ORBISDIAL_DEVICE", "simulated");
    return outcome;
}

const QString Fails = "-";

QString numberOf(long (*query)(int*)) {
    int number = 0;
    return query(&number) == 0 ? QString::number(number) : Fails;
}

// What a query writes; null when it fails, or writes more than it may.
template <class Place>
QByteArray recordOf(long (*query)(Place*), int size) {
    QByteArray record(size + 1, 'G');
    return query(record.data()) == 0 && record.endsWith('G') ? record.left(size) : QByteArray();
}

QString textIn(const QByteArray& record) {
    return record.isNull() ? Fails : QString::fromUtf8(record.split('\0').first());
}

QString numberIn(const QByteArray& record, int offset) {
    return record.isNull() ? Fails : QString::number(qFromUnaligned<qint32>(record.constData() + offset));
}

const Answers Defaults = {{"STATUS", "3"},       {"PRODUCT_TYPE", "0"}, {"CUSTOMIZE_NAME", ""},
                          {"CARD_MODE", "0"},    {"MULTI_MODE", "0"},   {"IMSI", "310260123456789"},
                          {"SYS_MODE", "0"},     {"SYS_SUBMODE", "0"},  {"DS_USER", Fails},
                          {"DS_PASSWORD", Fails}};

// What the simulated modem answers, by setting.
Answers askEverything() {
    unsigned char isMultiMode = 0;
    unsigned int cardMode = 0;
    const bool hasMode = VRKS_DevSrv_GetMultiModeCardStatus(&isMultiMode, nullptr, nullptr, &cardMode) == 0;
    const QByteArray system = recordOf(VRKS_NetSrv_GetSysInfoEx, VRKS_SYSINFO_SIZE);
    const QByteArray profile = recordOf(VRKS_NetConnectSrv_DSGetProfile, VRKS_DSPROFILE_SIZE);
    return {{"STATUS", numberOf(VRKS_DevSrv_GetDevStatus)},
            {"PRODUCT_TYPE", numberOf(VRKS_DevSrv_GetProductType)},
            {"CUSTOMIZE_NAME", textIn(recordOf(VRKS_DevSrv_GetCustomizeName, VRKS_CUSTOMIZE_NAME_SIZE))},
            {"IMSI", textIn(recordOf(VRKS_DevSrv_GetImsiInfo, VRKS_IMSI_SIZE))},
            {"MULTI_MODE", hasMode ? QString::number(isMultiMode) : Fails},
            {"CARD_MODE", hasMode ? QString::number(cardMode) : Fails},
            {"SYS_MODE", numberIn(system, 4)},
            {"SYS_SUBMODE", numberIn(system, 20)},
            {"DS_USER", textIn(profile.left(256))},
            {"DS_PASSWORD", textIn(profile.mid(256))}};
}

}  // namespace

class tst_devicesdk : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(vrks_simulated_active()); }

    void cleanup() {
        for (VRKS_DevInitEventCallback callback : {first, second, VRKS_DevInitEventCallback(acting)})
            VRKS_DevSrv_UnRegisterDevInitEventCallback(callback);
        QCOMPARE(vrks_simulated_wait_events(), 0L);
        QCOMPARE(vrks_simulated_reset(), 0L);
        const std::lock_guard lock(deliveriesMutex);
        deliveries.clear();
        deliveryThreads.clear();
    }

    void environment_data() {
        const Rows<Answers, Answers> row("variables", "changed");  // against the defaults
        const QString cut(62, 'n');
        const Answers all = {{"IMSI", "262011234567890"}, {"STATUS", "-1"},      {"CUSTOMIZE_NAME", "Größe"},
                             {"PRODUCT_TYPE", "1"},       {"MULTI_MODE", "255"}, {"CARD_MODE", "2"},
                             {"SYS_MODE", "2"},           {"SYS_SUBMODE", "31"}, {"DS_USER", "u"},
                             {"DS_PASSWORD", "p"}};
        row("everything set", all, all);
        row("no card", {{"IMSI", ""}}, {{"IMSI", Fails}});
        row("no number", {{"STATUS", "3x"}, {"PRODUCT_TYPE", ""}}, {{"STATUS", Fails}, {"PRODUCT_TYPE", Fails}});
        row("not a byte", {{"MULTI_MODE", "256"}}, {{"MULTI_MODE", Fails}, {"CARD_MODE", Fails}});
        row("name cut before a character", {{"CUSTOMIZE_NAME", cut + "é"}}, {{"CUSTOMIZE_NAME", cut}});
    }

    void environment() {
        QFETCH(Answers, variables);
        QFETCH(Answers, changed);
        Answers expected = Defaults;
        for (const QString& name : changed.keys()) expected[name] = changed[name];
        const auto variable = [](const QString& name) { return "ORBISDIAL_SIM_" + name.toLatin1(); };
        for (const QString& name : variables.keys()) qputenv(variable(name), variables[name].toUtf8());
        QCOMPARE(vrks_simulated_reset(), 0L);
        for (const QString& name : variables.keys()) qunsetenv(variable(name));
        QCOMPARE(askEverything(), expected);
    }

    void withoutModem_data() {
        const Rows<QByteArray, QByteArray> row("device", "backend");
        row("none", "none", "none");
        row("unknown", "Simulated", "failed");
    }

    void withoutModem() {
        QFETCH(QByteArray, device);
        QFETCH(QByteArray, backend);
        const Outcome outcome = runProbe(device, {});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.out.split('|').first(), backend);
        QCOMPARE(outcome.out.endsWith('|'), backend == "none");
    }

    void modules_data() {
        const Rows<QByteArray, QString, QByteArray, QByteArray> row("device", "module", "standIn", "expected");
        row("asked for", "modemmanager", STANDIN_GOOD, "0", "modemmanager|");
        row("chosen", {}, STANDIN_GOOD, "0", "modemmanager|");
        row("not available", {}, STANDIN_GOOD, "absent", "none|");
        row("asked for all the same", "modemmanager", STANDIN_GOOD, "absent", "modemmanager|");
        row("can't be made", "modemmanager", STANDIN_GOOD, "null", "failed|the device backend can't start");
        row("of another version", "modemmanager", STANDIN_OLD, "0",
            "failed|the device backend \"modemmanager\" can't be loaded: it belongs to another version");
        row("missing", "modemmanager", "", "",
            "failed|the device backend \"modemmanager\" can't be loaded: there is no @/orbisdial/vrks-modemmanager.so");
        row("missing and not asked for", {}, "", "", "none|");
        row("no library", "modemmanager", VRKS_PROBE ".c", "",
            "failed|the device backend \"modemmanager\" can't be loaded: @/orbisdial/vrks-modemmanager.so: ");
    }

    void modules() {
        const QTemporaryDir folder;
        const QString expected = cell<QByteArray>("expected").replace('@', QFile::encodeName(folder.path()));
        qputenv("STANDIN", cell<QByteArray>("standIn"));
        install(folder, cell("module"));
        const QString out = runProbe(cell<QByteArray>("device"), {}).out;
        leave();
        QCOMPARE(expected.endsWith(": ") ? out.left(expected.size()) : out, expected);  // the loader's words follow
    }

    void firstQueryWaits_data() {
        const Rows<QByteArray, QByteArray, int> row("wait", "comesAfter", "status");
        row("long enough", "20000", "200", 3);
        row("not at all", "0", "1000", 9);
        row("no number", "x", "200", 3);  // a second, then
    }

    void firstQueryWaits() {
        const QTemporaryDir folder;
        qputenv("STANDIN", cell<QByteArray>("comesAfter"));
        qputenv("ORBISDIAL_DEVICE_WAIT_MS", cell<QByteArray>("wait"));
        install(folder, STANDIN_GOOD);
        const int status = runProbe("modemmanager", {"status"}).status;
        leave();
        qunsetenv("ORBISDIAL_DEVICE_WAIT_MS");
        QCOMPARE(status, cell<int>("status"));
    }

    // Nothing works there but what needs no modem. What the parent's threads held on their stacks looks lost there.
    void forkedChildHasNoModem() {
        const QByteArray options = qgetenv("ASAN_OPTIONS");
        qputenv("ASAN_OPTIONS", options + ":detect_leaks=0");
        const int status = runProbe("simulated", {"fork"}).status;
        qputenv("ASAN_OPTIONS", options);
        QCOMPARE(status, 0);
    }

    void endsWithEventsOnTheirWay() {
        QCOMPARE(runProbe("simulated", {"from main"}).status, 0);
        QCOMPARE(runProbe("simulated", {"within"}).status, 7);
    }

    void changesWhileRunning() {
        char imsi[VRKS_IMSI_SIZE] = "kept";
        QCOMPARE(vrks_simulated_set("IMSI", nullptr), 0L);
        QVERIFY(VRKS_DevSrv_GetImsiInfo(imsi) != 0);
        QCOMPARE(imsi, "kept");
        QCOMPARE(vrks_simulated_set("IMSI", "20201"), 0L);
        for (const char* name : {"CARD_MODE", "NO_SUCH", static_cast<const char*>(nullptr)})
            QVERIFY(vrks_simulated_set(name, "-1") != 0);
        QVERIFY(vrks_simulated_set("STATUS", "3x") != 0);
        Answers expected = Defaults;
        expected["IMSI"] = "20201";
        QCOMPARE(askEverything(), expected);
    }

    // To each callback once, however often it was registered.
    void eventsArriveInOrderOnOneThread() {
        QVERIFY(VRKS_DevSrv_RegisterDevInitEventCallback(nullptr) != 0);
        QVERIFY(VRKS_DevSrv_UnRegisterDevInitEventCallback(nullptr) != 0);
        QVERIFY(VRKS_DevSrv_UnRegisterDevInitEventCallback(first) != 0);
        for (VRKS_DevInitEventCallback callback : {first, second})
            QCOMPARE(VRKS_DevSrv_RegisterDevInitEventCallback(callback), 0L);
        QVERIFY(VRKS_DevSrv_RegisterDevInitEventCallback(first) != 0);
        for (int event : {6014, 6016, 6014}) QCOMPARE(vrks_simulated_raise_event(event), 0L);
        QCOMPARE(vrks_simulated_wait_events(), 0L);
        QCOMPARE(VRKS_DevSrv_UnRegisterDevInitEventCallback(first), 0L);
        QCOMPARE(vrks_simulated_raise_event(1), 0L);
        QCOMPARE(vrks_simulated_wait_events(), 0L);
        QCOMPARE(recorded(), QString("a6014 b6014 a6016 b6016 a6014 b6014 b1"));
        QVERIFY(deliveryThreads.size() == 1 && deliveryThreads.count(std::this_thread::get_id()) == 0);
    }

    void unregisteringWaitsForARunningCallback() {
        action = [](int) { block(); };
        VRKS_DevSrv_RegisterDevInitEventCallback(acting);
        vrks_simulated_raise_event(1);
        vrks_simulated_raise_event(2);  // waits behind it, and must not be delivered any more
        QVERIFY(unregisteringWaits());
        QCOMPARE(vrks_simulated_wait_events(), 0L);
        QCOMPARE(recorded(), QString("x1"));
    }

    // The callback is still running after it removed itself, so another thread must still wait for it; the
    // callback after it, which it removed as well, gets not even this event.
    void callbackRemovesItself() {
        std::atomic<long> removed{-2};
        action = [&removed](int) {
            removed = VRKS_DevSrv_UnRegisterDevInitEventCallback(acting);
            VRKS_DevSrv_UnRegisterDevInitEventCallback(second);
            block();
        };
        VRKS_DevSrv_RegisterDevInitEventCallback(acting);
        VRKS_DevSrv_RegisterDevInitEventCallback(second);
        vrks_simulated_raise_event(1);
        vrks_simulated_raise_event(2);
        QVERIFY(unregisteringWaits());
        QCOMPARE(removed.load(), 0L);
        QCOMPARE(vrks_simulated_wait_events(), 0L);
        QCOMPARE(recorded(), QString("x1"));
    }

    // Who waits within a callback would wait for ever.
    void callbackRaisesEvents() {
        std::atomic<bool> waited{false};
        action = [&waited](int event) {
            if (vrks_simulated_wait_events() == 0) waited = true;
            if (event < 3) vrks_simulated_raise_event(event + 1);
        };
        VRKS_DevSrv_RegisterDevInitEventCallback(acting);
        vrks_simulated_raise_event(1);
        QTRY_COMPARE(recorded(), QString("x1 x2 x3"));
        QCOMPARE(vrks_simulated_wait_events(), 0L);
        QVERIFY(!waited);
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
        // Null: not set, or the call fails; '@' stands for the test's folder.
        const Rows<QByteArray, QByteArray, QByteArray, QString> row("dataDir", "dataHome", "home", "expected");
        row("own variable", "@/my data/\u00e9\u4e2d\U0001f4f6", "@/x", "@/h", "@/my data/\u00e9\u4e2d\U0001f4f6/");
        row("XDG data home", "", "@/x", "@/h", "@/x/orbisdial/");
        row("home", {}, "", "@/h", "@/h/.local/share/orbisdial/");
        row("no home", {}, {}, {}, {});
        row("file in the way", "@/file", {}, {}, {});
        row("not UTF-8", "@/\xc0\xaf", {}, {}, {});
    }

    void dataDirectory() {
        QFETCH(QString, expected);
        QTemporaryDir root;
        const QString base = QFileInfo(root.path()).canonicalFilePath();
        QVERIFY(QFile(root.filePath("file")).open(QIODevice::WriteOnly));
        const QStringList before = namesIn(base);
        setVariable("ORBISDIAL_DATA_DIR", "dataDir", base);
        setVariable("XDG_DATA_HOME", "dataHome", base);
        setVariable("HOME", "home", base);
        QVERIFY(QFile::setPermissions(base, QFile::Permissions(0x7755)));
        const mode_t oldMask = ::umask(0777);
        const std::optional<QString> folder = ::dataDirectory();
        ::umask(oldMask);
        QCOMPARE(QFile::permissions(base), QFile::Permissions(0x7755));
        if (expected.isNull()) {
            QVERIFY(!folder);
            QCOMPARE(namesIn(base), before);
            return;
        }
        QVERIFY(folder);
        QCOMPARE(*folder, expected.replace('@', base));
        for (QString made = QFileInfo(*folder).path(); made != base; made = QFileInfo(made).path())
            QCOMPARE(QFile::permissions(made), QFile::Permissions(0x7700));
    }

    // Root's programs must leave the folder's owner able to use it.
    void dataDirectoryBelongsToTheFoldersOwner() {
        if (::geteuid() != 0) QSKIP("only root can make folders for others");
        constexpr uid_t User = 12345, Group = 23456;
        const QTemporaryDir root;
        QCOMPARE(::chown(QFile::encodeName(root.path()), User, Group), 0);
        qputenv("ORBISDIAL_DATA_DIR", QFile::encodeName(root.filePath("a/b")));
        QVERIFY(::dataDirectory());
        for (const char* name : {"a", "a/b"}) {
            const QFileInfo made(root.filePath(name));
            QCOMPARE(made.ownerId(), User);
            QCOMPARE(made.groupId(), Group);
            QCOMPARE(made.permissions(), QFile::Permissions(0x7700));
        }
        qunsetenv("ORBISDIAL_DATA_DIR");
    }

private:
    // The SDK's library in a folder of its own, with a module beside it where one is given.
    static void install(const QTemporaryDir& folder, const QString& module) {
        QVERIFY(QDir(folder.path()).mkdir("orbisdial"));
        QVERIFY(QFile::copy(VRKS_LIBRARY, folder.filePath(VRKS_LIBRARY_NAME)));
        const QString file = folder.filePath("orbisdial/vrks-modemmanager.so");
        if (!module.isEmpty() && !QFile::copy(module, file)) TestFolder::write(file, "no library");
        qputenv("LD_LIBRARY_PATH", QFile::encodeName(folder.path()));
    }

    static void leave() {
        qunsetenv("LD_LIBRARY_PATH");
        qunsetenv("STANDIN");
    }

    // Sets an environment variable as the row's column says.
    static void setVariable(const char* name, const char* column, const QString& base) {
        QByteArray value = cell<QByteArray>(column);
        value.isNull() ? qunsetenv(name) : qputenv(name, value.replace('@', QFile::encodeName(base)));
    }
};

QTEST_GUILESS_MAIN(tst_devicesdk)
#include "tst_devicesdk.moc"
