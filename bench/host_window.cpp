// SPDX-License-Identifier: MIT
// The program's window until its first paint, beside whatever modems there are; with the argument "profiles" until the
// paint that shows the default profile, with "presets" until that of the dialog of the world's presets, with "tray"
// until the icon stands in the tray and there is no window.

#include <QComboBox>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QTimer>

#include "Change.h"
#include "FirstPaint.h"
#include "Host.h"

static int untilTray() {
    Tray tray;
    QTimer::singleShot(0, &FirstPaint::end);
    return QApplication::exec();
}

static int untilProfiles(MainWindow* window) {
    auto* const chooser = window->findChild<QComboBox*>("Host_ProfileChooser");
    return FirstPaint::of(window, chooser->lineEdit(), [chooser] { return !chooser->currentText().isEmpty(); });
}

static int untilPresets(MainWindow* window) {
    window->openPresets();
    auto* const list = window->findChild<QWidget*>("Presets_List");
    return list ? FirstPaint::of(window, list, [] { return true; }) : EXIT_FAILURE;
}

int main(int argc, char** argv) {
    QLoggingCategory::setFilterRules("default.debug=false\ndefault.warning=false");
    qputenv("ORBISDIAL_DEVICE_WAIT_MS", "0");
    QApplication application(argc, argv);
    const QString until = application.arguments().value(1);
    Change::SetLanguage("en");
    Host host;
    if (until == "tray") return untilTray();
    if (until == "profiles") return untilProfiles(host.window());
    return until == "presets" ? untilPresets(host.window()) : FirstPaint::of(host.window());
}
