#include "Options.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void refuse(const QString& problem) {
    std::fprintf(stderr, "orbisdial: %s\n", qPrintable(problem));
    std::exit(2);
}

}  // namespace

Options Options::fromArguments(const QCoreApplication& application) {
    const QCommandLineOption language("lang", "Speak this language, e.g. \"de\" or \"zh_CN\".", "code");
    const QCommandLineOption device("device", "Use this modem: auto, modemmanager, simulated or none.", "kind");
    const QCommandLineOption screenshot("screenshot", "Write a picture of the window as a PNG file, and end.", "file");
    const QCommandLineOption page("page", "Open the settings at this page: its title or its plug-in's name.", "name");
    const QCommandLineOption tray("tray", "Start in the desktop's tray, without a window, where there is one.");
    const QCommandLineOption trace("trace", "Write traces to the standard error output.");

    QCommandLineParser parser;
    parser.setApplicationDescription("Connection manager for mobile-broadband modems.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({language, device, screenshot, page, tray, trace});
    if (!parser.parse(application.arguments())) refuse(parser.errorText());
    if (parser.isSet("help")) parser.showHelp();
    if (parser.isSet("version")) parser.showVersion();
    const QStringList others = parser.positionalArguments();
    if (!others.isEmpty()) refuse("unexpected argument: " + others.first());
    return {parser.value(language), parser.value(device), parser.value(screenshot),
            parser.value(page),     parser.isSet(tray),   parser.isSet(trace)};
}
