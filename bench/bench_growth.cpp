// SPDX-License-Identifier: MIT
// How the time of each operation and of each command grows with the number of profiles. bench/run divides.

#include "BenchFolder.h"
#include "Measure.h"
#include "NetConnectStoreAction.h"

namespace {

const char Edited[] = "Edited";

int count(const benchmark::State& state) { return int(state.range(0)); }

DialupProfile editedProfile() {
    DialupProfile profile = BenchFolder::profiles(1).first();
    profile.name = Edited;
    return profile;
}

// The logic of a process that has just started, on a file of as many profiles and the one to be edited.
class Store : public BenchFolder {
public:
    explicit Store(int profiles, bool hasEdited = true) : m_Profiles(BenchFolder::profiles(profiles)) {
        if (hasEdited) m_Profiles.insert(profiles / 2, editedProfile());
    }
    void start() {
        writeUser(m_Profiles);
        logic = restart();
        list();
    }
    void list() const {
        QList<QString> names;
        Measure::require(logic->GetAllDialUpProfile(&names) == 0, "listing");
    }
    const QList<DialupProfile>& stored() const { return m_Profiles; }

    NetConnectSettingUILogic* logic = nullptr;

private:
    QList<DialupProfile> m_Profiles;
};

void operation(benchmark::State& state, bool hasEdited, const std::function<int(Store&)>& run) {
    Store store(count(state), hasEdited);
    const auto ours = [&] {
        Measure::require(run(store) == 0, "the operation");
        store.list();
    };
    Measure::time(state, {ours, [&] { store.start(); }});
}

void growLoad(benchmark::State& state) {
    const Store store(count(state));
    store.writeUser(store.stored());
    const auto ours = [&] {
        QList<DialupProfile> profiles;
        QString defaultName;
        const int status = NetConnectXMLParse::GetInstance()->GetAllProfileFromUserDataXML(&profiles, &defaultName,
                                                                                           store.userFile(), nullptr);
        Measure::require(status == 0, "loading");
    };
    Measure::time(state, {ours});
}

void growListChanged(benchmark::State& state) {
    operation(state, true, [](Store& store) {
        store.writeUser(store.stored().mid(1));
        return 0;
    });
}

void growAdd(benchmark::State& state) {
    operation(state, false, [](Store& store) { return store.logic->AddDialUpProfile(editedProfile()); });
}

void growDelete(benchmark::State& state) {
    operation(state, true, [](Store& store) {
        NetConnectStoreAction action;
        store.logic->DelDialUpProfile(Edited);
        return action.commit();
    });
}

void growReplace(benchmark::State& state) {
    operation(state, true, [](Store& store) {
        DialupProfile profile = editedProfile();
        profile.name += " renamed";
        return store.logic->ReplaceDialUpProfile(Edited, profile);
    });
}

void growReload(benchmark::State& state) {
    operation(state, true, [](Store& store) {
        store.logic->Init();  // its status tells of the SIM card
        return 0;
    });
}

// --- commands, with the shipped presets ---

void command(benchmark::State& state, const QStringList& arguments, bool hasEdited = true) {
    const Store store(count(state), hasEdited);
    store.shipPresets();
    const QString transfer = store.path("transfer.prof");  // as long as the user's file
    QStringList line = arguments;
    line.replaceInStrings("TRANSFER", transfer);
    const auto prepare = [&] {
        store.writeUser(store.stored());
        TestFolder::write(transfer, TestFolder::read(store.userFile()));
        Measure::settle();
    };
    Measure::time(state, {Measure::program(QStringList{ORBISCTL} + line).run, prepare});
}

void growListCommand(benchmark::State& state) { command(state, {"list"}); }
void growShowCommand(benchmark::State& state) { command(state, {"show", Edited}); }
void growAddCommand(benchmark::State& state) { command(state, {"add", Edited}, false); }
void growSetCommand(benchmark::State& state) { command(state, {"set", Edited, "user=other"}); }
void growDeleteCommand(benchmark::State& state) { command(state, {"delete", Edited}); }
void growDefaultCommand(benchmark::State& state) { command(state, {"default", Edited}); }
void growExportCommand(benchmark::State& state) { command(state, {"export", "TRANSFER", Edited}); }
void growImportCommand(benchmark::State& state) { command(state, {"import", "TRANSFER", "--replace"}); }

// The short ones are the uneven ones.
template <int Profiles, int Times>
void decade(benchmark::internal::Benchmark* benchmark) {
    benchmark->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(Profiles)->Iterations(Times);
}
#define ORBISDIAL_GROWING(function)                \
    BENCHMARK(function)->Apply(decade<1000, 21>);  \
    BENCHMARK(function)->Apply(decade<10000, 11>); \
    BENCHMARK(function)->Apply(decade<100000, 3>)
ORBISDIAL_GROWING(growLoad);
ORBISDIAL_GROWING(growListChanged);
ORBISDIAL_GROWING(growAdd);
ORBISDIAL_GROWING(growDelete);
ORBISDIAL_GROWING(growReplace);
ORBISDIAL_GROWING(growReload);
ORBISDIAL_GROWING(growListCommand);
ORBISDIAL_GROWING(growShowCommand);
ORBISDIAL_GROWING(growAddCommand);
ORBISDIAL_GROWING(growSetCommand);
ORBISDIAL_GROWING(growDeleteCommand);
ORBISDIAL_GROWING(growDefaultCommand);
ORBISDIAL_GROWING(growExportCommand);
ORBISDIAL_GROWING(growImportCommand);

}  // namespace
