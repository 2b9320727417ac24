// SPDX-License-Identifier: MIT
// Reading everything again, as a device's event makes the page do, with many presets and a large library.

#include "BenchFolder.h"
#include "Measure.h"
#include "Reference.h"

namespace {

enum Changed { Nothing, Library, LibraryAndConfiguration };

void reload(benchmark::State& state, Changed changed) {
    const int size = int(state.range(0));
    const BenchFolder folder;
    const QList<DialupProfile> library = BenchFolder::profiles(size, "Operator");
    folder.shipLibrary(library);
    folder.shipConfiguration(size, library);
    NetConnectSettingUILogic* logic = BenchFolder::restart();
    const QByteArray content = Reference::write(library);
    const QByteArray configuration = BenchFolder::configuration(size, library);
    const auto prepare = [&] {
        if (changed >= Library) folder.shipLibrary(library);
        if (changed == LibraryAndConfiguration) folder.shipConfiguration(size, library);
        Measure::settle();
    };
    const auto reference = [&] {
        benchmark::DoNotOptimize(Reference::read(content));
        if (changed == LibraryAndConfiguration) benchmark::DoNotOptimize(Reference::readItems(configuration));
    };
    Measure::compare(state, {[&] { logic->Init(); }, prepare}, {reference, Measure::settle});
}

void reloadUnchanged(benchmark::State& state) { reload(state, Nothing); }
void reloadLibrary(benchmark::State& state) { reload(state, Library); }
void reloadBoth(benchmark::State& state) { reload(state, LibraryAndConfiguration); }

BENCHMARK(reloadUnchanged)->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(1000)->Arg(10000)->Iterations(41);
BENCHMARK(reloadLibrary)->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(1000)->Arg(10000)->Iterations(31);
BENCHMARK(reloadBoth)->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(1000)->Arg(10000)->Iterations(31);

}  // namespace
