// SPDX-License-Identifier: MIT
// The command line as a process, with the shipped presets.

#include "BenchFolder.h"
#include "Measure.h"

namespace {

void orbisctlList(benchmark::State& state) {
    const BenchFolder folder;
    folder.shipPresets();
    folder.writeUser(BenchFolder::profiles(int(state.range(0))));
    Measure::settle();
    Measure::comparePrograms(state, {ORBISCTL, "list"}, {EMPTY_APPLICATION});
}
BENCHMARK(orbisctlList)->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(20)->Iterations(61);

}  // namespace
