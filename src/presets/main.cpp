// orbis-presets: makes the shipped profile library and the configuration with the presets of the world's operators.
//
// Exit status: 0 done, 1 failed with one line on stderr, 2 wrong usage.
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

#include "OperatorDatabase.h"
#include "PresetCatalogue.h"
#include "PresetError.h"
#include "PresetFiles.h"

namespace {

enum ExitStatus { Done = 0, Failed = 1, WrongUsage = 2 };

struct Options {
    QString database;
    QString configTemplate;
    QString libraryTemplate;
    QString outputDir;
};

void say(const QString& line) { QTextStream(stderr) << "orbis-presets: " << line << '\n'; }

// Found from where the program lies, so that it may be installed anywhere.
QString installedTemplate(const QString& fileName) {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/" ORBISDIAL_TEMPLATE_DIR "/" + fileName);
}

void describeOptions(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        "Makes ProfileLib.prof and NetConnectConfig.xml: the presets of the operator database, merged with a "
        "hand-written profile library and configuration.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({
        {"database", "The operator database.", "FILE", ORBISDIAL_OPERATOR_DATABASE},
        {"template", "The configuration that takes the preset sections where it has <PresetSections/>.", "FILE",
         installedTemplate("NetConnectConfig.template.xml")},
        {"library-template", "The profiles that come before the presets.", "FILE",
         installedTemplate("ProfileLib.template.prof")},
        {"output-dir", "The folder for the two files, which must exist.", "DIR"},
    });
}

// What is wrong with the command line, or empty text.
QString usageProblem(const QCommandLineParser& parser) {
    if (!parser.positionalArguments().isEmpty())
        return QString("unexpected argument \"%1\"").arg(parser.positionalArguments().constFirst());
    return parser.isSet("output-dir") ? QString() : QString("--output-dir is missing");
}

QStringList namesOf(const QList<DialupProfile>& profiles) {
    QStringList names;
    for (const DialupProfile& profile : profiles) names.append(profile.name);
    return names;
}

void run(const Options& options) {
    QStringList warnings;
    const QList<Provider> providers = readOperatorDatabase(options.database, &warnings);
    for (const QString& warning : qAsConst(warnings)) say(warning);
    const QList<DialupProfile> handWritten = PresetFiles::readProfiles(options.libraryTemplate);
    const PresetCatalogue catalogue = buildCatalogue(providers, namesOf(handWritten));
    if (catalogue.profiles.isEmpty()) throw PresetError(options.database + ": no provider has a usable access point");
    PresetFiles::write({
        {options.outputDir + "/ProfileLib.prof", PresetFiles::profileFile(handWritten + catalogue.profiles)},
        {options.outputDir + "/NetConnectConfig.xml",
         PresetFiles::configFile(options.configTemplate, catalogue.imsiLists)},
    });
    QTextStream(stdout) << catalogue.profiles.size() << " preset profiles, " << catalogue.imsiLists.size()
                        << " network codes\n";
}

}  // namespace

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName("orbis-presets");
    QCoreApplication::setApplicationVersion(ORBISDIAL_VERSION);
    QCommandLineParser parser;
    describeOptions(parser);
    const QString problem = parser.parse(app.arguments()) ? QString() : parser.errorText();
    if (problem.isEmpty() && parser.isSet("help")) parser.showHelp(Done);
    if (problem.isEmpty() && parser.isSet("version")) parser.showVersion();
    const QString wrong = problem.isEmpty() ? usageProblem(parser) : problem;
    if (!wrong.isEmpty()) {
        say(wrong);
        return WrongUsage;
    }
    try {
        run({parser.value("database"), parser.value("template"), parser.value("library-template"),
             parser.value("output-dir")});
        return Done;
    } catch (const PresetError& error) {
        say(QString::fromStdString(error.what()));
        return Failed;
    }
}
