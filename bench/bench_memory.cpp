// SPDX-License-Identifier: MIT
// What a loaded profile costs in memory. A program of its own, so that no memory freed before is used again.

#include <malloc.h>
#include <unistd.h>

#include <QFile>

#include "BenchFolder.h"
#include "Measure.h"

namespace {

// Bytes of this process that are in memory now.
double residentBytes() {
    ::malloc_trim(0);
    QFile file("/proc/self/statm");
    Measure::require(file.open(QIODevice::ReadOnly), "reading the process's size");
    return file.readAll().split(' ').at(1).toDouble() * double(::sysconf(_SC_PAGESIZE));
}

void memory(benchmark::State& state) {
    const int profiles = int(state.range(0));
    const BenchFolder folder;
    BenchFolder::restart();  // everything but the profiles is loaded before
    const double before = residentBytes();
    for (auto _ : state) {
        folder.writeUser(BenchFolder::profiles(profiles));
        Measure::settle();
        QList<QString> names;
        NetConnectSettingUILogic* logic = NetConnectSettingUILogic::GetInstance();
        Measure::require(logic->GetAllDialUpProfile(&names) == 0 && names.size() == profiles, "listing");
        Measure::require(logic->HasUserProfile(names.first()), "finding");
        names.clear();
        state.SetIterationTime(1);
    }
    state.counters["ratio"] = (residentBytes() - before) / profiles;
}
BENCHMARK(memory)->UseManualTime()->Arg(10000)->Iterations(1);

}  // namespace
