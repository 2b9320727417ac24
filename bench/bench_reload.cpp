// Reading everything again, as a device's event makes the page do, with many presets and a large library.

#include "BenchFolder.h"
#include "Measure.h"
#include "Reference.h"

namespace {

void reload(benchmark::State& state, bool isChanged) {
    const int size = int(state.range(0));
    const BenchFolder folder;
    const QList<DialupProfile> library = BenchFolder::profiles(size, "Operator");
    folder.shipLibrary(library);
    folder.shipConfiguration(size, library);
    NetConnectSettingUILogic* logic = BenchFolder::restart();
    const QByteArray content = Reference::write(library);
    const auto prepare = [&] {
        if (isChanged) {
            folder.shipLibrary(library);
            folder.shipConfiguration(size, library);
        }
        Measure::settle();
    };
    const auto reference = [&] { benchmark::DoNotOptimize(Reference::read(content)); };
    Measure::compare(state, {[&] { logic->Init(); }, prepare}, {reference, Measure::settle});
}

void reloadUnchanged(benchmark::State& state) { reload(state, false); }
void reloadChanged(benchmark::State& state) { reload(state, true); }

BENCHMARK(reloadUnchanged)->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(1000)->Arg(10000)->Iterations(41);
BENCHMARK(reloadChanged)->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(1000)->Arg(10000)->Iterations(31);

}  // namespace
