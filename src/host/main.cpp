// SPDX-License-Identifier: MIT
// orbisdial: the reference host. Exit status: 0 done, 1 something can't be written, there is no display or memory is
// out, 2 wrong usage.
#include <malloc.h>

#include <QApplication>
#include <QLoggingCategory>
#include <QPixmap>
#include <QTimer>
#include <cstdlib>
#include <memory>

#include "EndSignals.h"
#include "Host.h"
#include "HostStyle.h"
#include "Message.h"
#include "Options.h"
#include "ProgramStart.h"
#include "ReadablePalette.h"
#include "SettingsPages.h"
#include "SingleInstance.h"
#include "StandardOutput.h"

namespace {

enum ExitStatus { Done = 0, Failed = 1, WrongUsage = 2 };

// Longer than what a start leaves to the event loop: the layout, and the lists that a modem's first event brings.
constexpr int SettleMs = 400;

// What it took to read thousands of profiles goes back to the system at once. Left alone, glibc keeps twice as much as
// the largest block that it ever gave out.
void giveMemoryBack() {
#ifdef M_TRIM_THRESHOLD
    const int keptBytes = 128 * 1024;  // what glibc begins with
    ::mallopt(M_TRIM_THRESHOLD, keptBytes);
#endif
}

void say(const QString& problem) { StandardOutput::writeDiagnostic("orbisdial", problem); }

bool usePage(Host* host, const QString& name) {
    if (name.isEmpty()) return true;
    SettingsPages* const pages = host->window()->pages();
    if (pages->showPage(name)) return true;
    say(message("no page \"%1\"; there are: %2", {name, pages->pageNames().join(", ")}));
    return false;
}

void takeScreenshot(QWidget* window, const QString& file) {
    const bool written = window->grab().save(file, "PNG");
    if (!written) say(message("can't write the picture %1", {file}));
    QCoreApplication::exit(written ? Done : Failed);
}

// Without a desktop there is no font to keep to, and Qt's own is larger than any desktop's.
void useDesktopFontSize() {
    if (QGuiApplication::platformName() != QLatin1String("offscreen")) return;
    QFont font = QApplication::font();
    font.setPointSize(10);
    QApplication::setFont(font);
}

void takeScreenshotLater(Host* host, const Options& options) {
    host->start();
    MainWindow* const window = host->window();
    window->resize(window->sizeHint());  // left to itself, Qt makes it narrower on a small screen
    window->show();
    QTimer::singleShot(SettleMs, window, [window, &options] {
        takeScreenshot(options.page.isEmpty() ? window : window->pages()->window(), options.screenshot);
    });
}

void showWindow(Host* host, const Options& options) {
    MainWindow* const window = host->window();
    QObject::connect(window, &MainWindow::closed, qApp, &QCoreApplication::quit);
    QGuiApplication::setQuitOnLastWindowClosed(false);  // in the tray it has none
    window->restore();
    const bool startsInTray = options.tray && QSystemTrayIcon::isSystemTrayAvailable();
    if (startsInTray) return host->useTray();
    QObject::connect(host, &Host::started, host, &Host::useTray);
    window->show();
}

// Queued, since a message on the screen must not keep the other start waiting.
void followOtherStarts(const SingleInstance& instance, MainWindow* window) {
    QObject::connect(&instance, &SingleInstance::raised, window, &MainWindow::present);
    QObject::connect(&instance, &SingleInstance::importWanted, window, &MainWindow::offerImport, Qt::QueuedConnection);
}

int run(const Options& options) {
    const bool isPicture = !options.screenshot.isEmpty();
    const EndSignals endSignals;  // for longer than the host, whose end a signal must not cut short
    const auto instance = isPicture ? nullptr : std::make_unique<SingleInstance>(options.file);
    if (instance && !instance->isFirst()) return Done;
    Host host;
    if (!usePage(&host, options.page)) return WrongUsage;
    if (instance) followOtherStarts(*instance, host.window());
    isPicture ? takeScreenshotLater(&host, options) : showWindow(&host, options);
    if (!options.page.isEmpty()) host.window()->openSettings();
    if (!options.file.isEmpty()) QTimer::singleShot(0, &host, [&] { host.window()->offerImport(options.file); });
    return QCoreApplication::exec();
}

QtMessageHandler usualHandler = nullptr;

// Qt aborts without a display. What needs none is done all the same: help, the version, and what is wrong in the
// command line.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    static QString problem;  // the first warning tells the reason
    if (type == QtDebugMsg || type == QtInfoMsg) return usualHandler(type, context, text);
    if (problem.isEmpty()) problem = text.simplified();
    if (type != QtFatalMsg) return;
    qInstallMessageHandler(nullptr);
    Options::fromArguments(*QCoreApplication::instance());
    say(message("no window can be opened: %1", {problem}));
    std::exit(Failed);
}

}  // namespace

int main(int argc, char* argv[]) {
    ProgramStart::prepare("orbisdial", Failed);
    giveMemoryBack();
    QCoreApplication::setApplicationName(QStringLiteral("orbisdial"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ORBISDIAL_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("orbisdial"));
    usualHandler = qInstallMessageHandler(endWithoutDisplay);
    QApplication application(argc, argv);
    qInstallMessageHandler(nullptr);

    const Options options = Options::fromArguments(application);
    useDesktopFontSize();
    QApplication::setStyle(new HostStyle);
    const ReadablePalette palette;
    if (!options.trace) QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false\ndefault.warning=false"));
    // The window is filled by the modem's events; it never waits for one.
    if (!qEnvironmentVariableIsSet("ORBISDIAL_DEVICE_WAIT_MS")) qputenv("ORBISDIAL_DEVICE_WAIT_MS", "0");
    if (!options.device.isEmpty()) qputenv("ORBISDIAL_DEVICE", options.device.toUtf8());
    return run(options);
}
