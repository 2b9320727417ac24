// SPDX-License-Identifier: MIT
#include "Options.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <cstdlib>

#include "Change.h"
#include "Languages.h"
#include "Message.h"
#include "StandardOutput.h"

namespace {

enum ExitStatus { Done = 0, Failed = 1, WrongUsage = 2 };

const QStringList Kinds{"auto", "modemmanager", "simulated", "none"};

// The parser keeps the words of the moment's language.
void describe(QCommandLineParser* parser) {
    parser->setApplicationDescription(message("Connection manager for mobile-broadband modems."));
    parser->addHelpOption();
    parser->addVersionOption();
    parser->addPositionalArgument("file", message("A profile file to import; the window asks first."), "[FILE]");
    parser->addOptions({
        {"lang", message("Speak this language, e.g. \"de\" or \"zh_CN\"."), "CODE"},
        {"device", message("Use this modem: %1.", {Kinds.join(", ")}), "KIND"},
        {"screenshot", message("Write a picture of the window as a PNG file, and end."), "FILE"},
        {"page", message("Open the settings at this page: its title or its plug-in's name."), "NAME"},
        {"tray", message("Start in the desktop's tray, without a window, where there is one.")},
        {"trace", message("Write traces to standard error.")},
    });
}

[[noreturn]] void refuse(const QString& problem) {
    StandardOutput::writeDiagnostic("orbisdial", problem);
    std::exit(WrongUsage);
}

// Whoever asked for a text that can't be written has not been answered.
[[noreturn]] void answer(const QString& text) {
    const QString problem = StandardOutput::writeText(text);
    if (!problem.isNull()) StandardOutput::writeDiagnostic("orbisdial", problem);
    std::exit(problem.isNull() ? Done : Failed);
}

void useLanguage(const QString& code) {
    if (!code.isEmpty() && Change::SetLanguage(code)) return;
    Languages::useStored();
    if (!code.isEmpty())
        refuse(message("no language \"%1\"; there are: %2", {code, Change::GetLanguages().join(", ")}));
}

QString helpText() {
    QCommandLineParser parser;
    describe(&parser);
    return parser.helpText();
}

QString importedFile(const QCommandLineParser& parser) {
    const QStringList files = parser.positionalArguments();
    if (files.size() > 1) refuse(message("unexpected argument: %1", {files[1]}));
    if (files.isEmpty()) return QString();
    if (parser.isSet("screenshot")) refuse(message("a picture is taken without a file to import"));
    return QFileInfo(files.first()).absoluteFilePath();
}

QString deviceKind(const QCommandLineParser& parser) {
    const QString kind = parser.value("device");
    if (parser.isSet("device") && !Kinds.contains(kind))
        refuse(message("unknown device %1; use one of %2", {'"' + kind + '"', Kinds.join(", ")}));
    return kind;
}

}  // namespace

Options Options::fromArguments(const QCoreApplication& application) {
    QCommandLineParser parser;
    describe(&parser);
    const bool isClear = parser.parse(application.arguments());
    useLanguage(parser.value("lang"));
    if (!isClear) refuse(parser.errorText());
    if (parser.isSet("help")) answer(helpText());
    if (parser.isSet("version")) answer(QString("orbisdial %1\n").arg(QCoreApplication::applicationVersion()));
    return {deviceKind(parser),   parser.value("screenshot"), parser.value("page"),
            importedFile(parser), parser.isSet("tray"),       parser.isSet("trace")};
}
