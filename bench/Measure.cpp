// SPDX-License-Identifier: MIT
#include "Measure.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>
#include <QThread>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

namespace {

const double Milliseconds = 1e3;

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

double seconds(const std::function<void()>& action) {
    const Clock::time_point start = Clock::now();
    action();
    return secondsSince(start);
}

// What the host of a virtual machine has taken from it so far and lent to others, in seconds (proc(5)); 0 elsewhere.
double stolenSeconds() {
    std::ifstream statistics("/proc/stat");
    std::string processors;
    double ticks[8] = {};  // user, nice, system, idle, waiting, two kinds of interrupts, stolen
    statistics >> processors;
    for (double& count : ticks) statistics >> count;
    return statistics ? ticks[7] / double(::sysconf(_SC_CLK_TCK)) : 0;
}

// Measures again what others had too much of, as long as there is time for that.
class Repetition {
public:
    void undisturbed(const std::function<void()>& measurement) {
        for (;;) {
            const double stolen = stolenSeconds();
            const Clock::time_point start = Clock::now();
            measurement();
            const double lasted = secondsSince(start);
            if (stolenSeconds() - stolen <= MostStolen * lasted) return;
            if (lasted > m_Left) {
                ++m_Disturbed;
                return;
            }
            m_Left -= lasted;
        }
    }

    // The share of disturbed ones among those that count.
    double disturbed(benchmark::IterationCount counting) const { return double(m_Disturbed) / double(counting); }

private:
    static constexpr double MostStolen = 0.03;  // of the time; far less than a tick in a short measurement
    double m_Left = 10;                         // seconds, for each benchmark
    int m_Disturbed = 0;
};

// Without QProcess, whose own work would count as much as so short a run. Its standard output goes to a descriptor, or
// nowhere. Zero when it can't be started.
pid_t startProgram(const std::vector<QByteArray>& command, int standardOutput = -1) {
    std::vector<char*> arguments;
    for (const QByteArray& argument : command) arguments.push_back(const_cast<char*>(argument.constData()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t output;
    ::posix_spawn_file_actions_init(&output);
    if (standardOutput >= 0)
        ::posix_spawn_file_actions_adddup2(&output, standardOutput, STDOUT_FILENO);
    else
        ::posix_spawn_file_actions_addopen(&output, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    ::posix_spawn_file_actions_addopen(&output, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    if (::posix_spawnp(&child, arguments.front(), &output, nullptr, arguments.data(), environ) != 0) child = 0;
    ::posix_spawn_file_actions_destroy(&output);
    return child;
}

int statusOf(pid_t child) {
    int status = -1;
    if (child > 0) ::waitpid(child, &status, 0);
    return status;
}

int runProgram(const std::vector<QByteArray>& command) { return statusOf(startProgram(command)); }

// Started, and waited for until it has said something. Zero when it ends without a word.
pid_t runUntilFirstWord(const std::vector<QByteArray>& command) {
    int ends[2];
    Measure::require(::pipe2(ends, O_CLOEXEC) == 0, "opening a pipe");
    const pid_t child = startProgram(command, ends[1]);
    ::close(ends[1]);
    char word = 0;
    const bool isSaid = ::read(ends[0], &word, 1) == 1;
    ::close(ends[0]);
    return isSaid ? child : 0;
}

std::vector<QByteArray> encoded(const QStringList& command) {
    std::vector<QByteArray> arguments;
    for (const QString& argument : command) arguments.push_back(QFile::encodeName(argument));
    return arguments;
}

}  // namespace

namespace Measure {

double median(std::vector<double> values) {
    const auto middle = values.begin() + long(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void compare(benchmark::State& state, const Side& ours, const Side& reference) {
    const Side* const sides[] = {&ours, &reference};
    std::vector<double> times[2];
    for (const Side* side : sides) {  // warms caches and the allocator
        side->prepare();
        side->run();
        side->finish();
    }
    size_t first = 0;
    Repetition repetition;
    for (auto _ : state) {
        double pair[2] = {};
        repetition.undisturbed([&] {
            for (const size_t i : {first, 1 - first}) {
                sides[i]->prepare();
                pair[i] = seconds(sides[i]->run);
                sides[i]->finish();
            }
        });
        for (const size_t i : {0, 1}) {
            times[i].push_back(pair[i]);
            sides[i]->count();
        }
        first = 1 - first;
        state.SetIterationTime(pair[0]);
    }
    state.counters["disturbed"] = repetition.disturbed(state.iterations());
    state.counters["ratio"] = median(times[0]) / median(times[1]);
    state.counters["ours_ms"] = median(times[0]) * Milliseconds;
    state.counters["reference_ms"] = median(times[1]) * Milliseconds;
}

static Side paint(const QStringList& command) {
    const std::vector<QByteArray> arguments = encoded(command);
    const auto child = std::make_shared<pid_t>(0);
    Side side{[arguments, child] { *child = runUntilFirstWord(arguments); }};
    side.finish = [arguments, child] { require(statusOf(*child) == 0, arguments.front().constData()); };
    return side;
}

Side program(const QStringList& command) {
    const std::vector<QByteArray> arguments = encoded(command);
    return {[arguments] { require(runProgram(arguments) == 0, arguments.front().constData()); }};
}

pid_t start(const QStringList& command) {
    const pid_t child = startProgram(encoded(command));
    require(child > 0, qPrintable(command.first()));
    return child;
}

void time(benchmark::State& state, const Side& ours) {
    std::vector<double> times;
    ours.prepare();
    ours.run();
    ours.finish();
    Repetition repetition;
    for (auto _ : state) {
        double time = 0;
        repetition.undisturbed([&] {
            ours.prepare();
            time = seconds(ours.run);
            ours.finish();
        });
        times.push_back(time);
        state.SetIterationTime(time);
    }
    state.counters["disturbed"] = repetition.disturbed(state.iterations());
    state.counters["ours_ms"] = median(times) * Milliseconds;
}

void comparePrograms(benchmark::State& state, const QStringList& ours, const QStringList& reference) {
    compare(state, program(ours), program(reference));
}

void comparePaints(benchmark::State& state, const QStringList& ours, const QStringList& reference) {
    compare(state, paint(ours), paint(reference));
}

void settle() { QThread::msleep(110); }

void require(bool done, const char* what) {
    if (done) return;
    std::fprintf(stderr, "failed: %s\n", what);
    std::exit(EXIT_FAILURE);
}

}  // namespace Measure
