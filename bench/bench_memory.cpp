// SPDX-License-Identifier: MIT
// What a profile costs in memory: once it is loaded, and in the window. A program of its own, so that no memory freed
// before is used again.

#include <malloc.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>
#include <QThread>

#include "BenchFolder.h"
#include "Measure.h"

namespace {

// Bytes of a process that are in memory now.
double residentBytes(const QByteArray& process) {
    QFile file("/proc/" + process + "/statm");
    Measure::require(file.open(QIODevice::ReadOnly), "reading the process's size");
    return file.readAll().split(' ').at(1).toDouble() * double(::sysconf(_SC_PAGESIZE));
}

double residentBytes() {
    ::malloc_trim(0);
    return residentBytes("self");
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

// --- the window ---

void linkFiles(const QString& from, const QString& to) {
    QDir().mkpath(to);
    for (const QString& name : QDir(from).entryList(QDir::Files))
        if (!QFile::exists(to + '/' + name)) QFile::link(from + '/' + name, to + '/' + name);
}

// The program's size when it has nothing more to do.
double windowBytes(const BenchFolder& folder, int profiles) {
    folder.writeUser(BenchFolder::profiles(profiles));
    const pid_t window = Measure::start({ORBISDIAL});
    const QByteArray process = QByteArray::number(window);
    double before = 0;
    double now = 0;
    do {
        before = now;
        QThread::sleep(1);
        now = residentBytes(process);
    } while (now != before);
    ::kill(window, SIGTERM);
    int status = 0;
    Measure::require(::waitpid(window, &status, 0) == window && status == 0, "ending the window");
    return now;
}

// More in a window of many profiles than in one of few.
void windowMemory(benchmark::State& state) {
    const int few = 20;
    const int profiles = int(state.range(0));
    const BenchFolder folder;
    folder.shipPresets();
    for (const char* place : {"lang", "plugins/NetConnectPlugin", "plugins/DialupPlugin"})
        linkFiles(QString(LIBRARY_DIR "/") + place, folder.path("library/") + place);
    for (auto _ : state) {
        const double bytes = windowBytes(folder, profiles) - windowBytes(folder, few);
        state.counters["ratio"] = bytes / (profiles - few);
        state.SetIterationTime(1);
    }
}
BENCHMARK(windowMemory)->UseManualTime()->Arg(10000)->Iterations(1);

}  // namespace
