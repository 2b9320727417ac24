// SPDX-License-Identifier: MIT
// Data connections with real daemons: how soon one is up, and how soon a script knows of it. Runs beside the real
// ModemManager and NetworkManager (tests/realmodem/stack).

#include <condition_variable>
#include <mutex>

#include "BenchFolder.h"
#include "Connections.h"
#include "Measure.h"
#include "Stack.h"

namespace {

constexpr int PatienceMs = 15000;

// Wakes whoever waits for a state of the connection as soon as the SDK tells of it.
class ConnectionEvents {
public:
    ConnectionEvents() { VRKS_DevSrv_RegisterEventCallback(onEvent, this); }
    ~ConnectionEvents() { VRKS_DevSrv_UnRegisterEventCallback(onEvent, this); }

    void awaitState(int state) {
        std::unique_lock lock(m_Mutex);
        const bool isReached = m_Changed.wait_for(lock, std::chrono::milliseconds(PatienceMs),
                                                  [=] { return connection().state == state; });
        Measure::require(isReached, "a state of the connection");
    }

private:
    static void onEvent(int, void* self) {
        auto* events = static_cast<ConnectionEvents*>(self);
        const std::lock_guard lock(events->m_Mutex);
        events->m_Changed.notify_all();
    }

    std::mutex m_Mutex;
    std::condition_variable m_Changed;
};

void nmcli(const QStringList& arguments) {
    Measure::require(QProcess::execute("nmcli", QStringList("-t") + arguments) == 0, "nmcli");
}

QByteArray deviceState() {
    QProcess process;
    process.start("nmcli", {"-t", "-f", "GENERAL.STATE", "device", "show", "gsm-port"});
    process.waitForFinished();
    return process.readAllStandardOutput();
}

// A modem that can dial, and the profile that NetworkManager's own command dials with: the same as ours.
void prepareOnce() {
    static const bool isPrepared = [] {
        qunsetenv("ORBISDIAL_DEVICE");  // as everybody has it
        qputenv("ORBISDIAL_DEVICE_WAIT_MS", QByteArray::number(PatienceMs));
        if (!Stack().plug("gsm", {"GSM"})) return false;
        nmcli({"connection", "add", "type", "gsm", "con-name", "Theirs", "ifname", "*", "apn", Request().apn,
               "connection.autoconnect", "no"});
        return QTest::qWaitFor([] { return deviceStatus() == VRKS_DEV_STATUS_READY; }, PatienceMs);
    }();
    Measure::require(isPrepared, "a modem that is ready");
}

// Nobody is connected, and the modem can dial again.
void hangUpAll(ConnectionEvents* events) {
    if (hangUp()) events->awaitState(VRKS_CONNECTION_DOWN);
    if (*connection().usedBy) nmcli({"connection", "down", "Theirs"});
    const auto isIdle = [] { return !*connection().usedBy && deviceState().contains(":30 "); };  // disconnected
    Measure::require(QTest::qWaitFor(isIdle, PatienceMs), "the end of a connection");
}

void dialUp(ConnectionEvents* events) {
    Measure::require(dial(), "dialling");
    events->awaitState(VRKS_CONNECTION_UP);
}

// By how many milliseconds later than by NetworkManager's own command, which returns when it is connected.
void connecting(benchmark::State& state) {
    prepareOnce();
    ConnectionEvents events;
    const auto prepare = [&] { hangUpAll(&events); };
    Measure::compare(state, {[&] { dialUp(&events); }, prepare},
                     {[] {
                          nmcli({"connection", "up", "Theirs"});
                      },
                      prepare});
    state.counters["ratio"] = state.counters["ours_ms"] - state.counters["reference_ms"];
    hangUpAll(&events);
}
BENCHMARK(connecting)->UseManualTime()->Iterations(9);

// While connected, against the daemons' own commands, one after the other.
void status(benchmark::State& state) {
    prepareOnce();
    const BenchFolder folder;
    ConnectionEvents events;
    hangUpAll(&events);
    dialUp(&events);
    const Measure::Side network = Measure::program({"nmcli", "-t", "general"});
    const Measure::Side modem = Measure::program({"mmcli", "-m", "any"});
    Measure::compare(state, Measure::program({ORBISCTL, "status"}), {[&] {
                         network.run();
                         modem.run();
                     }});
    hangUpAll(&events);
}
BENCHMARK(status)->UseManualTime()->Iterations(61);

}  // namespace
