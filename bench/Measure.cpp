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
#include <vector>

namespace {

const double Milliseconds = 1e3;

double seconds(const std::function<void()>& action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Without QProcess, whose own work would count as much as so short a run. Zero when it can't be started.
pid_t startProgram(const std::vector<QByteArray>& command) {
    std::vector<char*> arguments;
    for (const QByteArray& argument : command) arguments.push_back(const_cast<char*>(argument.constData()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t output;
    ::posix_spawn_file_actions_init(&output);
    ::posix_spawn_file_actions_addopen(&output, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    ::posix_spawn_file_actions_addopen(&output, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    if (::posix_spawnp(&child, arguments.front(), &output, nullptr, arguments.data(), environ) != 0) child = 0;
    ::posix_spawn_file_actions_destroy(&output);
    return child;
}

int runProgram(const std::vector<QByteArray>& command) {
    const pid_t child = startProgram(command);
    int status = -1;
    if (child > 0) ::waitpid(child, &status, 0);
    return status;
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
    }
    size_t first = 0;
    for (auto _ : state) {
        for (const size_t i : {first, 1 - first}) {
            sides[i]->prepare();
            times[i].push_back(seconds(sides[i]->run));
        }
        first = 1 - first;
        state.SetIterationTime(times[0].back());
    }
    state.counters["ratio"] = median(times[0]) / median(times[1]);
    state.counters["ours_ms"] = median(times[0]) * Milliseconds;
    state.counters["reference_ms"] = median(times[1]) * Milliseconds;
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
    for (auto _ : state) {
        ours.prepare();
        times.push_back(seconds(ours.run));
        state.SetIterationTime(times.back());
    }
    state.counters["ours_ms"] = median(times) * Milliseconds;
}

void comparePrograms(benchmark::State& state, const QStringList& ours, const QStringList& reference) {
    compare(state, program(ours), program(reference));
}

void settle() { QThread::msleep(110); }

void require(bool done, const char* what) {
    if (done) return;
    std::fprintf(stderr, "failed: %s\n", what);
    std::exit(EXIT_FAILURE);
}

}  // namespace Measure
