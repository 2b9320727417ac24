// SPDX-License-Identifier: MIT
// The device SDK and the window with real modems: how soon they know them and hear of a change, and what they cost
// while nothing happens. Runs beside the real ModemManager (tests/realmodem/stack).

#include <QApplication>
#include <QLabel>
#include <QLoggingCategory>
#include <QProcess>
#include <QThread>
#include <atomic>
#include <chrono>

#include "BenchFolder.h"
#include "BusListener.h"
#include "Change.h"
#include "Host.h"
#include "Measure.h"
#include "Stack.h"
#include "vrks.h"

namespace {

using Clock = BusListener::Clock;

constexpr int Patience = 20000;   // milliseconds
constexpr int SettleSeconds = 3;  // after a start, until nothing of it is left to do
constexpr int IdleSeconds = 10;   // looked at
constexpr double SecondsOfMinute = 60;
const char Modem[] = "bench";

Stack& stack() {
    static Stack stack;
    return stack;
}

// With a modem in it.
void plugModem() {
    static const bool isPlugged = stack().plug(Modem, {"GSM"});
    Measure::require(isPlugged, "plugging the modem in");
}

double milliseconds(Clock::duration duration) { return std::chrono::duration<double, std::milli>(duration).count(); }

// --- the first picture ---

QStringList withEnvironment(const QStringList& environment, const QStringList& program) {
    return QStringList("/usr/bin/env") + environment + program;
}

const QStringList Real = {"ORBISDIAL_DEVICE=modemmanager"};
const QStringList NoBus = {"ORBISDIAL_DEVICE=auto", "DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nonexistent"};
const QStringList NoModem = {"ORBISDIAL_DEVICE=none"};

// Of a whole process, against the same one without a modem.
void firstPicture(benchmark::State& state, const QStringList& environment) {
    plugModem();
    Measure::comparePrograms(state, withEnvironment(environment, {PROBE, "once"}),
                             withEnvironment(NoModem, {PROBE, "once"}));
}
BENCHMARK_CAPTURE(firstPicture, bus, Real)->UseManualTime()->Iterations(41);
BENCHMARK_CAPTURE(firstPicture, without, NoBus)->UseManualTime()->Iterations(41);

// Of the first call alone.
void firstCall(benchmark::State& state, const QStringList& environment) {
    plugModem();
    std::vector<double> times;
    for (auto _ : state) {
        QProcess probe;
        probe.start("/usr/bin/env", environment + QStringList{PROBE, "time"});
        Measure::require(probe.waitForFinished(), "the first call");
        times.push_back(probe.readAllStandardOutput().split('\n').value(0).toDouble() / 1000);
        state.SetIterationTime(times.back() / 1000);
    }
    state.counters["ratio"] = Measure::median(times);
}
BENCHMARK_CAPTURE(firstCall, bus, Real)->UseManualTime()->Iterations(21);
BENCHMARK_CAPTURE(firstCall, without, NoBus)->UseManualTime()->Iterations(21);

// --- the window's first paint ---

void windowPaint(benchmark::State& state, bool isFrozen) {
    plugModem();
    const BenchFolder folder;
    folder.shipPresets();
    qunsetenv("ORBISDIAL_LIBRARY_PATH");  // with all its plug-ins
    if (isFrozen) Measure::require(stack().freeze("ModemManager"), "freezing the daemon");
    Measure::comparePaints(state, withEnvironment(Real, {HOST_WINDOW}), withEnvironment(NoModem, {HOST_WINDOW}));
    if (isFrozen) Measure::require(stack().thaw("ModemManager"), "thawing the daemon");
}
BENCHMARK_CAPTURE(windowPaint, up, false)->UseManualTime()->Iterations(41);
BENCHMARK_CAPTURE(windowPaint, frozen, true)->UseManualTime()->Iterations(41);

// --- a change ---

QByteArray technology() {
    VRKS_ModemInfo info{};
    info.size = sizeof info;
    VRKS_DevSrv_GetModemInfo(&info);
    return info.technology;
}

// When the SDK first told of the technology that is waited for.
struct Telling {
    std::atomic<const char*> awaited{""};
    std::atomic<Clock::rep> at{0};

    static void onEvent(int, void* data) {
        auto* const self = static_cast<Telling*>(data);
        if (self->at == 0 && technology() == self->awaited) self->at = Clock::now().time_since_epoch().count();
    }
};

// From a property's change on the bus, as a bare listener hears of it, to the SDK's event or to the window's text.
void change(benchmark::State& state, bool isOfWindow) {
    plugModem();
    const BenchFolder folder;
    qunsetenv("ORBISDIAL_LIBRARY_PATH");
    Host host;
    host.window()->show();
    auto* const label = host.window()->findChild<QLabel*>("Host_ConnectionDetail");
    Telling telling;
    VRKS_DevSrv_RegisterEventCallback(&Telling::onEvent, &telling);
    BusListener listener;
    const char* const technologies[][2] = {{"UMTS", "2"}, {"GSM", "0"}};
    std::vector<double> times;
    for (auto _ : state) {
        QTest::qWait(100);  // what the last change brought with it
        const auto& [name, code] = technologies[technology() == "UMTS"];
        telling.awaited = name;
        telling.at = 0;
        listener.clear();
        const QString place = QStringLiteral("1,\"0A01\",\"0000B001\",") + code;
        const bool isSent =
            stack().reply(Modem, "AT+CREG?", "+CREG: 2," + place) && stack().send(Modem, "+CREG: " + place);
        Measure::require(isSent, "the handover");
        const QDeadlineTimer deadline(Patience);
        const auto isMissed = [&] { return listener.heard() == Clock::time_point() && !deadline.hasExpired(); };
        while (!deadline.hasExpired() && !label->text().contains(QLatin1String(name)))
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        const Clock::time_point shown = Clock::now();
        while (isMissed()) QThread::yieldCurrentThread();  // a busy machine may run its thread last
        Measure::require(!deadline.hasExpired(), "showing the handover");
        const Clock::time_point told = isOfWindow ? shown : Clock::time_point(Clock::duration(telling.at));
        times.push_back(milliseconds(told - listener.heard()));
        state.SetIterationTime(times.back() / 1000);
    }
    VRKS_DevSrv_UnRegisterEventCallback(&Telling::onEvent, &telling);
    state.counters["ratio"] = Measure::median(times);
}
BENCHMARK_CAPTURE(change, event, false)->UseManualTime()->Iterations(11);
BENCHMARK_CAPTURE(change, window, true)->UseManualTime()->Iterations(11);

// --- idle ---

// A program that stays, on a data folder of its own.
class Idle : public QProcess {
public:
    explicit Idle(const QStringList& command) {
        start(command.first(), command.mid(1));
        Measure::require(waitForStarted(), qPrintable(command.join(' ')));
        QThread::sleep(SettleSeconds);
    }
    ~Idle() override {
        kill();
        waitForFinished();
    }

    // How often its threads have run so far.
    double wakeups() const {
        double sum = 0;
        const QDir threads(QStringLiteral("/proc/%1/task").arg(processId()));
        for (const QString& thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            for (const QByteArray& line : TestFolder::read(threads.filePath(thread + "/status")).split('\n'))
                if (line.contains("ctxt_switches:")) sum += line.split('\t').last().toDouble();
        return sum;
    }

    double residentPages() const {
        return TestFolder::read(QStringLiteral("/proc/%1/statm").arg(processId())).split(' ').value(1).toDouble();
    }
};

const QStringList Program = withEnvironment(Real, {ORBISDIAL_PROGRAM});

void idleWakeups(benchmark::State& state) {
    plugModem();
    const BenchFolder folder;
    qunsetenv("ORBISDIAL_LIBRARY_PATH");
    const Idle program(Program);
    double wakeups = 0;
    for (auto _ : state) {
        const double before = program.wakeups();
        QThread::sleep(IdleSeconds);
        wakeups = program.wakeups() - before;
        state.SetIterationTime(IdleSeconds);
    }
    state.counters["ratio"] = wakeups * SecondsOfMinute / IdleSeconds;
}
BENCHMARK(idleWakeups)->UseManualTime()->Iterations(1);

void idleMemory(benchmark::State& state) {
    plugModem();
    const BenchFolder folder;
    qunsetenv("ORBISDIAL_LIBRARY_PATH");
    const Idle program(Program), reference({BARE_PAGE, "stay"});
    for (auto _ : state) state.SetIterationTime(1);
    state.counters["ratio"] = program.residentPages() / reference.residentPages();
}
BENCHMARK(idleMemory)->UseManualTime()->Iterations(1);

}  // namespace

// With a window, and with real modems.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("ORBISDIAL_DEVICE", "modemmanager");
    QLoggingCategory::setFilterRules("default.debug=false\ndefault.warning=false");
    const QApplication application(argc, argv);
    Change::SetLanguage("en");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
