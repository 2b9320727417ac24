// SPDX-License-Identifier: MIT
// The window, from the start of its process to its first paint, and to the one with its profiles; the dialog of the
// world's presets; the start to the tray.

#include "BenchFolder.h"
#include "Measure.h"

namespace {

// Beside the plug-ins, with the presets that everyone has.
void start(benchmark::State& state, const QStringList& arguments) {
    const BenchFolder folder;
    folder.shipPresets();
    QDir().rmdir(folder.path("library/lang"));
    QFile::link(LANGUAGE_DIR, folder.path("library/lang"));
    QFile::link(PLUGIN_FILE, folder.pluginDir() + "/libNetConnectPlugin.so");
    QDir().mkpath(folder.path("library/plugins/DialupPlugin"));
    QFile::link(DIALUP_FILE, folder.path("library/plugins/DialupPlugin/libDialupPlugin.so"));
    folder.writeUser(BenchFolder::profiles(int(state.range(0))));
    Measure::settle();
    const QStringList withoutModem = {"/usr/bin/env", "ORBISDIAL_DEVICE=none"};
    Measure::comparePaints(state, withoutModem + QStringList{HOST_WINDOW} + arguments,
                           withoutModem + QStringList{BARE_WINDOW});
}

void hostWindow(benchmark::State& state) { start(state, {}); }
void filledWindow(benchmark::State& state) { start(state, {"profiles"}); }
void presetsDialog(benchmark::State& state) { start(state, {"presets"}); }
void startToTray(benchmark::State& state) { start(state, {"tray"}); }

BENCHMARK(hostWindow)->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(20)->Arg(1000)->Iterations(41);
BENCHMARK(filledWindow)->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(20)->Arg(1000)->Iterations(21);
BENCHMARK(presetsDialog)->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(20)->Iterations(21);
BENCHMARK(startToTray)->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(20)->Iterations(21);

}  // namespace
