// The settings page, from the start of its process to its first paint.

#include "BenchFolder.h"
#include "Measure.h"

namespace {

void firstPaint(benchmark::State& state) {
    const BenchFolder folder;
    QDir().rmdir(folder.path("library/lang"));
    QFile::link(LANGUAGE_DIR, folder.path("library/lang"));
    folder.writeUser(BenchFolder::profiles(int(state.range(0))));
    Measure::settle();
    Measure::comparePrograms(state, {PLUGIN_PAGE, PLUGIN_FILE}, {BARE_PAGE});
}
BENCHMARK(firstPaint)->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(20)->Arg(1000)->Arg(10000)->Iterations(41);

}  // namespace
