// SPDX-License-Identifier: MIT
// Import of many profiles among many.

#include "BenchFolder.h"
#include "Measure.h"
#include "Reference.h"

namespace {

class ReplaceAll : public NetConnectClashPolicy {
public:
    bool replace(const QString&) override { return true; }
};

// A thousand profiles, every other of which the user has already.
QList<DialupProfile> incomingProfiles(const QList<DialupProfile>& stored, int count) {
    return BenchFolder::profiles(count / 2, "Incoming") + stored.mid(stored.size() / 2, count - count / 2);
}

void importProfiles(benchmark::State& state) {
    const BenchFolder folder;
    const QList<DialupProfile> stored = BenchFolder::profiles(int(state.range(0)));
    const QList<DialupProfile> incoming = incomingProfiles(stored, int(state.range(1)));
    const QList<DialupProfile> result = stored + incoming.mid(0, incoming.size() / 2);
    const QByteArray content = Reference::write(incoming);
    const QString file = folder.path("import.prof");
    TestFolder::write(file, content);
    NetConnectSettingUILogic* logic = nullptr;

    const auto prepare = [&] {
        folder.writeUser(stored);
        logic = BenchFolder::restart();
        QList<QString> names;
        logic->GetAllDialUpProfile(&names);
    };
    const auto ours = [&] {
        QList<QString> names;
        ReplaceAll policy;
        const bool done = logic->GetDialUpProfileFromFile(&names, file) == 0 &&
                          logic->ImportChosenProfiles(QStringList(names), &policy) == 0;
        Measure::require(done, "importing");
    };
    const auto reference = [&] {
        benchmark::DoNotOptimize(Reference::read(content));
        Reference::save(folder.path("data/reference.prof"), result);
    };
    Measure::compare(state, {ours, prepare}, {reference, Measure::settle});
}
BENCHMARK(importProfiles)->UseManualTime()->Unit(benchmark::kMillisecond)->Args({10000, 1000})->Iterations(25);

}  // namespace
