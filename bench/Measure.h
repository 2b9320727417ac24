// SPDX-License-Identifier: MIT
// Times two sides in turn and reports their ratio.
#ifndef ORBISDIAL_MEASURE_H
#define ORBISDIAL_MEASURE_H

#include <benchmark/benchmark.h>
#include <sys/types.h>

#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

namespace Measure {

// What is timed, and what must be done before and after it, untimed. Where one side must wait for a file to settle the
// other waits as well, since a processor's caches cool down meanwhile.
struct Side {
    std::function<void()> run;
    std::function<void()> prepare = [] {};
    std::function<void()> finish = [] {};
    std::function<void()> count = [] {};  // the last run counts
};

// Runs both sides once in each iteration, in changing order, so that a busy machine slows them alike; again where the
// host of a virtual machine took its processors away meanwhile. Counters: "ratio" of the medians, "ours_ms" and
// "reference_ms", and in "disturbed" the share of iterations for which no undisturbed one could be had.
void compare(benchmark::State& state, const Side& ours, const Side& reference);

// Times one side alone: "ours_ms".
void time(benchmark::State& state, const Side& ours);

// Starts a program and answers its process.
pid_t start(const QStringList& command);

// A program that runs to its end.
Side program(const QStringList& command);

// The same as compare(), each side being a program that runs to its end.
void comparePrograms(benchmark::State& state, const QStringList& ours, const QStringList& reference);

// The same, each side being a program that says on its standard output that it has painted, and then ends: how long the
// system takes to clear up after it, up to 20 ms where it watched a folder, delays nobody's picture.
void comparePaints(benchmark::State& state, const QStringList& ours, const QStringList& reference);

double median(std::vector<double> values);

// Waits until a file that has just been written counts as settled: only then does an unchanged stamp tell that it is
// unchanged.
void settle();

// Makes a failed step end the benchmark run: a figure of something that failed would be worse than none.
void require(bool done, const char* what);

}  // namespace Measure

#endif
