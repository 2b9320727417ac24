// SPDX-License-Identifier: MIT
// The device's thread floods the plug-in with events while the GUI thread uses, ends and remakes it. Under
// ThreadSanitizer this shows races; anywhere it shows deadlocks (by ctest's limit) and events that come too late.
#include <QSemaphore>
#include <atomic>
#include <thread>

#include "LogicFixture.h"
#include "NetConnectUIService.h"

namespace {

constexpr int Events = 100000;
constexpr int EventsPerRound = 1000;
constexpr int EventsInFlight = 100;  // at most; the SDK's queue has no limit of its own
constexpr int RoundsPerReload = 10;  // each event that the GUI thread takes reloads; in the other rounds they are lost

// Relaxed, as everything that both threads touch here: a stronger order would hide races from the sanitizer.
constexpr auto Relaxed = std::memory_order_relaxed;

std::atomic<int> finished{0};
std::atomic<int> changed{0};
std::atomic<int> others{0};

int countEvent(int event, void*) {
    auto& count = event == VRKS_EVENT_DEV_DEVICE_INIT_FINISH ? finished
                  : event == VRKS_EVENT_DEV_CARD_CHANGED     ? changed
                                                             : others;
    count.fetch_add(1, Relaxed);
    return 0;
}

std::atomic<bool> mayBeCalled{false};  // from before the logic registers until unregistering has returned
std::atomic<int> calls{0};
std::atomic<int> lateCalls{0};
QtMessageHandler testHandler = nullptr;

// The callback's own trace tells that it runs, whether or not there is a logic that could emit a signal.
void countCalls(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type != QtDebugMsg) return testHandler(type, context, text);
    if (!text.endsWith("OnDevInitEvent:  Entered")) return;
    (mayBeCalled.load(Relaxed) ? calls : lateCalls).fetch_add(1, Relaxed);
}

// Raises all events, never more than two rounds of them in one of the GUI thread's.
class Flood {
public:
    Flood() : m_Thread(&Flood::run, this) {}
    ~Flood() {
        m_Rounds.release(Events / EventsPerRound);
        m_Thread.join();
    }

    bool isDone() const { return m_IsDone.load(Relaxed); }
    void nextRound() {
        if (m_Rounds.available() == 0) m_Rounds.release();
    }

private:
    void run() {
        for (int i = 0; i < Events; ++i) {
            if (i % EventsPerRound == 0) m_Rounds.acquire();
            vrks_simulated_raise_event(i % 2 ? VRKS_EVENT_DEV_CARD_CHANGED : VRKS_EVENT_DEV_DEVICE_INIT_FINISH);
            if (i % EventsInFlight == 0) vrks_simulated_wait_events();
        }
        vrks_simulated_wait_events();
        m_IsDone.store(true, Relaxed);
    }

    QSemaphore m_Rounds;
    std::atomic<bool> m_IsDone{false};
    std::thread m_Thread;
};

}  // namespace

class tst_threads : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        qputenv("TZ", "UTC");  // or each of the many traces asks for the system's time zone file
        m_pFixture.reset(new LogicFixture);
        m_pFixture->shipConfig(LogicFixture::section("Function", {"IMSIAPN=true"}) +
                               LogicFixture::section("ProfileList", {"Preset=default"}));
        m_pFixture->shipLibrary(LogicFixture::profile("Preset"));
        testHandler = qInstallMessageHandler(countCalls);
        QCOMPARE(VRKS_DevSrv_RegisterDevInitEventCallback(countEvent), 0);
    }
    void cleanupTestCase() {
        CNetConnectUIService::Destroy();
        VRKS_DevSrv_UnRegisterDevInitEventCallback(countEvent);
        qInstallMessageHandler(testHandler);
        m_pFixture.reset();
    }

    void floodWhileTheServiceIsUsedAndRemade() {
        {
            Flood flood;
            for (int round = 0; !flood.isDone(); ++round) {
                flood.nextRound();
                start();
                use(round, round % RoundsPerReload == 0);
                if (QTest::currentTestFailed()) return;
                end(round % 2);
            }
        }
        QCOMPARE(finished.load(), Events / 2);
        QCOMPARE(changed.load(), Events / 2);
        QCOMPARE(others.load(), 0);
        QCOMPARE(lateCalls.load(), 0);
        QVERIFY2(calls > Events / 10, qPrintable(QString::number(calls)));
    }

private:
    static NetConnectSettingUILogic* logic() { return NetConnectSettingUILogic::GetInstance(); }
    static CNetConnectUIService* service() { return CNetConnectUIService::instance(); }
    static QStringList names() {
        QList<QString> result;
        service()->GetAllDialUpProfile(&result);
        return result;
    }

    static void start() {
        mayBeCalled.store(true, Relaxed);
        QVERIFY(service()->Init());
    }

    // Each operation's outcome is as if no event came.
    static void use(int round, bool takeEvents) {
        const QString name = QString("Added %1").arg(round), renamed = QString("Renamed %1").arg(round);
        QCOMPARE(service()->SaveDialUpProfile(LogicFixture::named(name, "secret")), 0);
        QCOMPARE(service()->SetDefaultDialUpProfileName(name), 0);
        if (takeEvents) QCoreApplication::processEvents();
        QCOMPARE(logic()->ReplaceDialUpProfile(name, LogicFixture::named(renamed, "other")), 0);
        service()->Notify(NotifySystemModeChanged, 0, 0);
        QString defaultName;
        QCOMPARE(service()->GetDefaultDialUpProfileName(&defaultName), 0);
        QCOMPARE(defaultName, renamed);
        QCOMPARE(names(), QStringList({"Preset", renamed}));
        logic()->Init();
        QCOMPARE(logic()->DelDialUpProfile(renamed), 0);
        if (takeEvents) QCoreApplication::processEvents();
        QCOMPARE(names(), QStringList("Preset"));
    }

    // As the host does, or with events in flight.
    static void end(bool unregisterFirst) {
        if (unregisterFirst) {
            service()->unSDKRegisterEvent();
            mayBeCalled.store(false, Relaxed);
            names();
        }
        CNetConnectUIService::Destroy();
        mayBeCalled.store(false, Relaxed);
    }

    std::unique_ptr<LogicFixture> m_pFixture;
};

QTEST_MAIN(tst_threads)
#include "tst_threads.moc"
