// SPDX-License-Identifier: MIT
// How a benchmark program runs, unless it has a start of its own.

#include <QCoreApplication>
#include <QLoggingCategory>
#include <cstdlib>

#include "Measure.h"

// The applications write no traces either, unless they are asked for.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("ORBISDIAL_DEVICE", "simulated");
    QLoggingCategory::setFilterRules("default.debug=false\ndefault.warning=false");
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
