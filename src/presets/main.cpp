// SPDX-License-Identifier: MIT
// orbis-presets: makes the shipped profile library, the configuration with the presets of the world's operators, and
// the index that tells whose they are.
//
// Exit status: 0 done, 1 failed with one line on stderr, 2 wrong usage.
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <new>
#include <utility>

#include "FilesCheck.h"
#include "OperatorDatabase.h"
#include "PresetCatalogue.h"
#include "PresetError.h"
#include "PresetFiles.h"
#include "ProgramStart.h"
#include "StandardOutput.h"
#include "TerminalText.h"

namespace {

enum ExitStatus { Done = 0, Failed = 1, WrongUsage = 2 };

struct Options {
    QString database;
    QString configTemplate;
    QString libraryTemplate;
    QString outputDir;
    QStringList files;  // to check
};

void say(const QString& line) { StandardOutput::writeDiagnostic("orbis-presets", line); }

void print(const QString& text) {
    const QString problem = StandardOutput::writeText(text);
    if (!problem.isNull()) throw PresetError(problem);
}

// Found from where the program lies, so that it may be installed anywhere.
QString installedTemplate(const QString& fileName) {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/" ORBISDIAL_TEMPLATE_DIR "/" + fileName);
}

void describeOptions(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        "Makes ProfileLib.prof and NetConnectConfig.xml: the presets of the operator database, merged with a "
        "hand-written profile library and configuration; and Operators.xml, which tells whose they are.");
    parser.addPositionalArgument("FILE", "What to check, with --check.", "[FILE...]");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({
        {"database", "The operator database.", "FILE", ORBISDIAL_OPERATOR_DATABASE},
        {"template", "The configuration that takes the preset sections where it has <PresetSections/>.", "FILE",
         installedTemplate("NetConnectConfig.template.xml")},
        {"library-template", "The profiles that come before the presets.", "FILE",
         installedTemplate("ProfileLib.template.prof")},
        {"output-dir", "The folder for the three files, which must exist.", "DIR"},
        {"check", "Tell what is wrong with the two templates, or with these files, and write none."},
    });
}

// What is wrong with the command line, or empty text.
QString usageProblem(const QCommandLineParser& parser) {
    if (parser.isSet("check"))
        return parser.isSet("output-dir") ? QString("--check writes nothing into an --output-dir") : QString();
    if (!parser.positionalArguments().isEmpty())
        return QString("unexpected argument \"%1\"").arg(parser.positionalArguments().constFirst());
    return parser.isSet("output-dir") ? QString() : QString("--output-dir is missing");
}

QStringList namesOf(const QList<DialupProfile>& profiles) {
    QStringList names;
    for (const DialupProfile& profile : profiles) names.append(profile.name);
    return names;
}

QList<Provider> readProviders(const QString& database) {
    QStringList warnings;
    const QList<Provider> providers = readOperatorDatabase(database, &warnings);
    for (const QString& warning : std::as_const(warnings)) say(warning);
    return providers;
}

QStringList readNames(const QString& library) {
    try {
        return namesOf(PresetFiles::readProfiles(library));
    } catch (const PresetError&) {  // which the check tells better
        return {};
    }
}

// Without files, what makePresets() would read. The library that names are looked for in is the one that it would make.
FilesToCheck filesToCheck(const Options& options) {
    const bool areNamed = !options.files.isEmpty();
    const PresetCatalogue catalogue =
        buildCatalogue(readProviders(options.database), readNames(options.libraryTemplate));
    FilesToCheck what;
    what.files = areNamed ? options.files : QStringList{options.configTemplate, options.libraryTemplate};
    what.libraries = QStringList(options.libraryTemplate);
    what.presets = namesOf(catalogue.profiles);
    what.presetSections = areNamed ? PresetSections::Allowed : PresetSections::Required;
    return what;
}

ExitStatus check(const Options& options) {
    const QList<Finding> findings = checkFiles(filesToCheck(options));
    for (const Finding& finding : findings) print(TerminalText::printable(finding.asLine()) + '\n');
    if (findings.isEmpty()) print("nothing to mend\n");
    return findings.isEmpty() ? Done : Failed;
}

void makePresets(const Options& options) {
    const QList<Provider> providers = readProviders(options.database);
    const QList<DialupProfile> handWritten = PresetFiles::readProfiles(options.libraryTemplate);
    const PresetCatalogue catalogue = buildCatalogue(providers, namesOf(handWritten));
    if (catalogue.profiles.isEmpty()) throw PresetError(options.database + ": no provider has a usable access point");
    PresetFiles::write({
        {options.outputDir + "/ProfileLib.prof", PresetFiles::profileFile(handWritten + catalogue.profiles)},
        {options.outputDir + "/NetConnectConfig.xml",
         PresetFiles::configFile(options.configTemplate, catalogue.imsiLists)},
        {options.outputDir + "/Operators.xml", PresetFiles::operatorFile(catalogue.operators)},
    });
    print(QString("%1 preset profiles, %2 network codes\n")
              .arg(catalogue.profiles.size())
              .arg(catalogue.imsiLists.size()));
}

ExitStatus run(const QCommandLineParser& parser) {
    if (parser.isSet("help")) {
        print(parser.helpText());
        return Done;
    }
    if (parser.isSet("version")) {
        print("orbis-presets " ORBISDIAL_VERSION "\n");
        return Done;
    }
    const QString wrong = usageProblem(parser);
    if (!wrong.isEmpty()) {
        say(wrong);
        return WrongUsage;
    }
    const Options options{parser.value("database"), parser.value("template"), parser.value("library-template"),
                          parser.value("output-dir"), parser.positionalArguments()};
    if (parser.isSet("check")) return check(options);
    makePresets(options);
    return Done;
}

}  // namespace

int main(int argc, char* argv[]) {
    ProgramStart::prepare("orbis-presets", Failed);
    try {
        const QCoreApplication application(argc, argv);
        QCommandLineParser parser;
        describeOptions(parser);
        if (parser.parse(QCoreApplication::arguments())) return run(parser);
        say(parser.errorText());
        return WrongUsage;
    } catch (const PresetError& error) {
        say(QString::fromStdString(error.what()));
    } catch (const std::bad_alloc&) {
        ProgramStart::reportOutOfMemory();
    }
    return Failed;
}
