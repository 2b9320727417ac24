// SPDX-License-Identifier: MIT
// The settings page with the shipped presets, from the start of its process to its first paint, and to the first one
// with its list.

#include "BenchFolder.h"
#include "Measure.h"

namespace {

void paint(benchmark::State& state, const QStringList& arguments) {
    const BenchFolder folder;
    folder.shipPresets();
    QDir().rmdir(folder.path("library/lang"));
    QFile::link(LANGUAGE_DIR, folder.path("library/lang"));
    folder.writeUser(BenchFolder::profiles(int(state.range(0))));
    Measure::settle();
    Measure::comparePaints(state, QStringList{PLUGIN_PAGE, PLUGIN_FILE} + arguments, {BARE_PAGE});
}

void firstPaint(benchmark::State& state) { paint(state, {}); }
void filledPage(benchmark::State& state) { paint(state, {"filled"}); }

BENCHMARK(firstPaint)->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(20)->Arg(1000)->Arg(10000)->Iterations(41);
BENCHMARK(filledPage)->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(20)->Arg(1000)->Arg(10000)->Iterations(21);

}  // namespace
