// SPDX-License-Identifier: MIT
// Loading, listing, fetching and changing of the user's profiles.

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <cstdio>
#include <vector>

#include "BenchFolder.h"
#include "Measure.h"
#include "NetConnectStoreAction.h"
#include "Reference.h"

static int fileFlushes = 0;
static int renames = 0;
static double folderFlushTime = 0;  // milliseconds

// Stand before the C library's own, to tell what one edit costs the disk.
extern "C" int fsync(int fd) {
    struct stat info;
    const bool isFile = ::fstat(fd, &info) == 0 && S_ISREG(info.st_mode);
    QElapsedTimer timer;
    timer.start();
    const int status = int(::syscall(SYS_fsync, fd));
    if (isFile)
        ++fileFlushes;
    else
        folderFlushTime = double(timer.nsecsElapsed()) / 1e6;
    return status;
}
extern "C" int renameat(int fromFolder, const char* from, int toFolder, const char* to) noexcept {
    ++renames;
    return int(::syscall(SYS_renameat2, fromFolder, from, toFolder, to, 0));
}

namespace {

int count(const benchmark::State& state) { return int(state.range(0)); }

QByteArray bytes(int profiles) { return Reference::write(BenchFolder::profiles(profiles)); }

QList<QString> list(NetConnectSettingUILogic* logic) {
    QList<QString> names;
    Measure::require(logic->GetAllDialUpProfile(&names) == 0, "listing");
    return names;
}

// A file is read that the reader can't have kept.
void load(benchmark::State& state) {
    const BenchFolder folder;
    folder.writeUser(BenchFolder::profiles(count(state)));
    const QByteArray content = bytes(count(state));
    const auto ours = [&] {
        QList<DialupProfile> profiles;
        QString defaultName;
        const int status = NetConnectXMLParse::GetInstance()->GetAllProfileFromUserDataXML(&profiles, &defaultName,
                                                                                           folder.userFile(), nullptr);
        Measure::require(status == 0 && profiles.size() == count(state), "loading");
    };
    Measure::compare(state, {ours}, {[&] { benchmark::DoNotOptimize(Reference::read(content)); }});
}

void listUnchanged(benchmark::State& state) {
    const BenchFolder folder;
    folder.writeUser(BenchFolder::profiles(count(state)));
    NetConnectSettingUILogic* logic = BenchFolder::restart();
    const QByteArray content = bytes(count(state));
    const auto ours = [&] { Measure::require(list(logic).size() == count(state), "listing"); };
    Measure::compare(state, {ours}, {[&] { benchmark::DoNotOptimize(Reference::read(content)); }});
}

void listChanged(benchmark::State& state) {
    const BenchFolder folder;
    QList<DialupProfile> profiles = BenchFolder::profiles(count(state));
    folder.writeUser(profiles);
    NetConnectSettingUILogic* logic = BenchFolder::restart();
    const QByteArray content = bytes(count(state));
    const auto change = [&] {
        profiles.move(0, profiles.size() - 1);
        folder.writeUser(profiles);
        Measure::settle();
    };
    const auto reference = [&] {
        QList<QString> names;
        names.reserve(count(state));
        for (const DialupProfile& profile : Reference::read(content)) names.append(profile.name);
        Reference::sort(&names);
    };
    Measure::compare(state, {[&] { list(logic); }, change}, {reference, Measure::settle});
}

// The same hundred fetches among many profiles and among a hundred.
void fetch(benchmark::State& state) {
    const int fetches = 100;
    const BenchFolder folder;
    const QList<DialupProfile> profiles = BenchFolder::profiles(count(state));
    const QList<DialupProfile> few = profiles.mid(0, fetches);
    const auto fetchAll = [&few] {
        DialupProfile profile;
        for (const DialupProfile& wanted : few) {
            NetConnectSettingUILogic::GetInstance()->GetDialUpProfile(wanted.name, &profile);
            Measure::require(profile.apn == wanted.apn, "fetching");
        }
    };
    const auto start = [&](const QList<DialupProfile>& stored) {
        return [&folder, &stored, fetchAll] {
            folder.writeUser(stored);
            BenchFolder::restart();
            fetchAll();
        };
    };
    Measure::compare(state, {fetchAll, start(profiles)}, {fetchAll, start(few)});
}

// --- changes ---

// What the page does to the store for one click; the listing that fills its box follows every one.
struct Edit {
    NetConnectSettingUILogic* logic;
    DialupProfile profile;

    void add() const { finish(logic->AddDialUpProfile(profile)); }
    void remove() const {
        NetConnectStoreAction action;
        logic->DelDialUpProfile(profile.name);
        finish(action.commit());
    }
    void replace() const { rename(profile, profile.name + " renamed"); }
    void replaceBack() const {
        DialupProfile renamed = profile;
        renamed.name += " renamed";
        rename(renamed, profile.name);
    }
    void rename(DialupProfile from, const QString& name) const {
        const QString before = from.name;
        from.name = name;
        finish(logic->ReplaceDialUpProfile(before, from));
    }
    void finish(int status) const {
        Measure::require(status == 0, "changing");
        list(logic);
    }
};

using Step = void (Edit::*)() const;

// An edit of its own, long after anything else happened: every iteration starts from the same settled file, in a
// process that has just read it. Warm is one of a series: what it changes has just been changed back.
enum Moment { Cold, Warm };

void change(benchmark::State& state, Moment moment, Step edit, Step undo) {
    const bool isStored = edit != &Edit::add;
    const BenchFolder folder;
    QList<DialupProfile> profiles = BenchFolder::profiles(count(state));
    const DialupProfile edited = BenchFolder::profiles(1, "Edited").first();
    if (isStored) profiles.insert(profiles.size() / 2, edited);
    Edit page{nullptr, edited};
    int flushed = 0;
    int renamed = 0;
    std::vector<double> folderFlushTimes;
    const auto prepare = [&] {
        if (moment == Warm && page.logic) return (page.*undo)();
        folder.writeUser(profiles);
        page.logic = BenchFolder::restart();
        list(page.logic);
    };
    const auto settle = [&] {
        if (moment == Cold) Measure::settle();
    };
    const auto ours = [&] {
        fileFlushes = renames = 0;
        (page.*edit)();
        flushed = fileFlushes;
        renamed = renames;
    };
    // In a folder of its own, so that neither side finds its folder changed by the other.
    QDir().mkpath(folder.path("reference"));
    const auto reference = [&] { Reference::save(folder.path("reference/UserProfile.prof"), profiles); };
    const auto keepFlushTime = [&] { folderFlushTimes.push_back(folderFlushTime); };
    Measure::compare(state, {ours, prepare, [] {}, keepFlushTime}, {reference, settle});
    state.counters["fsyncs"] = flushed;
    state.counters["renames"] = renamed;
    state.counters["folder_ms"] = Measure::median(folderFlushTimes);
}

void addProfile(benchmark::State& state) { change(state, Cold, &Edit::add, nullptr); }
void deleteProfile(benchmark::State& state) { change(state, Cold, &Edit::remove, nullptr); }
void replaceProfile(benchmark::State& state) { change(state, Cold, &Edit::replace, nullptr); }
void addWarm(benchmark::State& state) { change(state, Warm, &Edit::add, &Edit::remove); }
void deleteWarm(benchmark::State& state) { change(state, Warm, &Edit::remove, &Edit::add); }
void replaceWarm(benchmark::State& state) { change(state, Warm, &Edit::replace, &Edit::replaceBack); }

BENCHMARK(load)->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(100)->Arg(1000)->Iterations(201);
BENCHMARK(load)->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(10000)->Iterations(41);
BENCHMARK(listUnchanged)->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(10000)->Iterations(41);
BENCHMARK(listChanged)->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(10000)->Iterations(31);
BENCHMARK(fetch)->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(1000)->Arg(10000)->Iterations(61);

// The disk makes the short ones uneven.
void sizes(benchmark::internal::Benchmark* edit) {
    edit->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(10)->Arg(1000)->Arg(10000)->Iterations(41);
}
BENCHMARK(addProfile)->Apply(sizes);
BENCHMARK(addWarm)->Apply(sizes);
BENCHMARK(deleteProfile)->Apply(sizes);
BENCHMARK(deleteWarm)->Apply(sizes);
BENCHMARK(replaceProfile)->Apply(sizes);
BENCHMARK(replaceWarm)->Apply(sizes);

}  // namespace
