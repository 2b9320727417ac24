// The device SDK with real modems: how soon a program knows them. Runs beside the real ModemManager
// (tests/realmodem/stack).

#include "Measure.h"
#include "Stack.h"

namespace {

QStringList probe(const QStringList& environment) {
    return QStringList("/usr/bin/env") + environment + QStringList{PROBE, "once"};
}

// With a modem in it.
void plugModem() {
    static const bool isPlugged = Stack().plug("bench", {"GSM"});
    Measure::require(isPlugged, "plugging the modem in");
}

// Against the same program without a modem.
void firstPicture(benchmark::State& state, const QStringList& environment) {
    plugModem();
    Measure::comparePrograms(state, probe(environment), probe({"ORBISDIAL_DEVICE=none"}));
}
BENCHMARK_CAPTURE(firstPicture, bus, {"ORBISDIAL_DEVICE=modemmanager"})->UseManualTime()->Iterations(61);
BENCHMARK_CAPTURE(firstPicture, without, {"ORBISDIAL_DEVICE=auto", "DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nonexistent"})
    ->UseManualTime()
    ->Iterations(61);

}  // namespace
