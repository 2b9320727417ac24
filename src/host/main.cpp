// orbisdial: the reference host. Exit status: 0 done, 1 the picture can't be written or memory is out, 2 wrong
// usage.
#include <vrks_simulated.h>

#include <QApplication>
#include <QLoggingCategory>
#include <QPixmap>
#include <QTimer>
#include <cstdio>

#include "Change.h"
#include "EndSignals.h"
#include "Host.h"
#include "Languages.h"
#include "Options.h"
#include "ProgramStart.h"
#include "SettingsPages.h"

namespace {

enum ExitStatus { Done = 0, Failed = 1, WrongUsage = 2 };

// Longer than what a start leaves to the event loop: the layout, and the lists that a modem's first event brings.
constexpr int SettleMs = 400;

bool useLanguage(const QString& code) {
    if (code.isEmpty()) {
        Languages::useStored();
        return true;
    }
    if (Change::SetLanguage(code)) return true;
    std::fprintf(stderr, "orbisdial: no language \"%s\"; there are: %s\n", qPrintable(code),
                 qPrintable(Change::GetLanguages().join(", ")));
    return false;
}

bool usePage(SettingsPages* pages, const QString& name) {
    if (name.isEmpty() || pages->showPage(name)) return true;
    std::fprintf(stderr, "orbisdial: no page \"%s\"; there are: %s\n", qPrintable(name),
                 qPrintable(pages->pageNames().join(", ")));
    return false;
}

// The window says so too.
void reportModemProblem() {
    const char* problem = nullptr;
    vrks_backend_name(&problem);
    if (problem) std::fprintf(stderr, "orbisdial: %s\n", problem);
}

void takeScreenshot(QWidget* window, const QString& file) {
    const bool written = window->grab().save(file, "PNG");
    if (!written) std::fprintf(stderr, "orbisdial: can't write the picture %s\n", qPrintable(file));
    QCoreApplication::exit(written ? Done : Failed);
}

// Without a desktop there is no font to keep to, and Qt's own is larger than any desktop's.
void useDesktopFontSize() {
    if (QGuiApplication::platformName() != QLatin1String("offscreen")) return;
    QFont font = QApplication::font();
    font.setPointSize(10);
    QApplication::setFont(font);
}

int run(const Options& options) {
    const EndSignals endSignals;  // for longer than the host, whose end a signal must not cut short
    Host host;
    if (!usePage(host.window()->pages(), options.page)) return WrongUsage;
    host.window()->resize(host.window()->sizeHint());  // left to itself, Qt makes it narrower on a small screen
    host.window()->show();
    if (!options.screenshot.isEmpty()) {
        QTimer::singleShot(SettleMs, [&] { takeScreenshot(host.window(), options.screenshot); });
    }
    return QCoreApplication::exec();
}

}  // namespace

int main(int argc, char* argv[]) {
    ProgramStart::prepare("orbisdial", Failed);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("orbisdial"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ORBISDIAL_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("orbisdial"));

    const Options options = Options::fromArguments(application);
    useDesktopFontSize();
    if (!options.trace) QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false\ndefault.warning=false"));
    if (!options.device.isEmpty()) qputenv("ORBISDIAL_DEVICE", options.device.toUtf8());
    reportModemProblem();
    return useLanguage(options.language) ? run(options) : WrongUsage;
}
