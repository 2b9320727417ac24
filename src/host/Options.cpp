// SPDX-License-Identifier: MIT
#include "Options.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <cstdio>
#include <cstdlib>

#include "StandardOutput.h"

namespace {

[[noreturn]] void refuse(const QString& problem) {
    std::fprintf(stderr, "orbisdial: %s\n", qPrintable(problem));
    std::exit(2);
}

// Whoever asked for a text that can't be written has not been answered.
[[noreturn]] void answer(const QString& text) {
    const QString problem = StandardOutput::writeText(text);
    if (!problem.isNull()) StandardOutput::writeDiagnostic("orbisdial", problem);
    std::exit(problem.isNull() ? 0 : 1);
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
    parser.addPositionalArgument("file", "A profile file to import; the window asks first.", "[FILE]");
    parser.addOptions({language, device, screenshot, page, tray, trace});
    if (!parser.parse(application.arguments())) refuse(parser.errorText());
    if (parser.isSet("help")) answer(parser.helpText());
    if (parser.isSet("version")) answer(QString("orbisdial %1\n").arg(QCoreApplication::applicationVersion()));
    static const QStringList kinds{"auto", "modemmanager", "simulated", "none"};
    if (parser.isSet(device) && !kinds.contains(parser.value(device)))
        refuse(QString("unknown modem \"%1\"; use one of %2").arg(parser.value(device), kinds.join(", ")));
    const QStringList others = parser.positionalArguments();
    if (others.size() > 1) refuse("unexpected argument: " + others[1]);
    if (!others.isEmpty() && parser.isSet(screenshot)) refuse("a picture is taken without a file to import");
    const QString file = others.isEmpty() ? QString() : QFileInfo(others.first()).absoluteFilePath();
    return {parser.value(language), parser.value(device), parser.value(screenshot), parser.value(page), file,
            parser.isSet(tray),     parser.isSet(trace)};
}
