// SPDX-License-Identifier: MIT
// The program's window until its first paint, beside whatever modems there are.

#include <QLoggingCategory>

#include "Change.h"
#include "FirstPaint.h"
#include "Host.h"

int main(int argc, char** argv) {
    QLoggingCategory::setFilterRules("default.debug=false\ndefault.warning=false");
    qputenv("ORBISDIAL_DEVICE_WAIT_MS", "0");
    QApplication application(argc, argv);
    Change::SetLanguage("en");
    Host host;
    return FirstPaint::of(host.window());
}
