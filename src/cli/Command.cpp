// SPDX-License-Identifier: MIT
#include "Command.h"

#include <QSet>
#include <algorithm>

#include "CommandError.h"
#include "Commands.h"
#include "Message.h"
#include "Platform.h"

namespace {

constexpr CommandOption Secrets{"secrets", QT_TRANSLATE_NOOP("Programs", "Show the password too."), nullptr};
constexpr CommandOption Like{
    "like", QT_TRANSLATE_NOOP("Programs", "Start from this profile instead of the template for new ones."), "PROFILE"};
constexpr CommandOption Clear{"clear", QT_TRANSLATE_NOOP("Programs", "Take the choice back."), nullptr};
constexpr CommandOption Replace{
    "replace", QT_TRANSLATE_NOOP("Programs", "Replace profiles whose names exist; without it they are skipped."),
    nullptr};
constexpr CommandOption All{"all", QT_TRANSLATE_NOOP("Programs", "All profiles of one's own."), nullptr};
constexpr CommandOption Force{
    "force", QT_TRANSLATE_NOOP("Programs", "Replace a file even if it holds something else than profiles."), nullptr};
constexpr CommandOption Last{"last", QT_TRANSLATE_NOOP("Programs", "Spend the last attempt, too."), nullptr};
constexpr CommandOption Timeout{"timeout", QT_TRANSLATE_NOOP("Programs", "Wait no longer than so many seconds."),
                                "SECONDS"};
constexpr CommandOption Hold{"hold", QT_TRANSLATE_NOOP("Programs", "Stay, and hang up on Ctrl-C."), nullptr};
constexpr CommandOption Watch{"watch", QT_TRANSLATE_NOOP("Programs", "Stay, and show each change."), nullptr};
constexpr CommandOption Months{"months", QT_TRANSLATE_NOOP("Programs", "Show each month that is kept."), nullptr};
constexpr CommandOption Limit{
    "limit", QT_TRANSLATE_NOOP("Programs", "Warn at 80 and 100 percent of so much a month, such as 500MB or 1.5GB."),
    "SIZE"};
constexpr CommandOption ClearLimit{"clear", QT_TRANSLATE_NOOP("Programs", "Take the limit away."), nullptr};
constexpr CommandOption Roaming{"roaming", QT_TRANSLATE_NOOP("Programs", "While roaming, too."), nullptr};
constexpr CommandOption Check{
    "check", QT_TRANSLATE_NOOP("Programs", "Tell what is wrong with the shipped files, or with these."), nullptr};
constexpr CommandOption Operator{"operator", QT_TRANSLATE_NOOP("Programs", "What the SIM cards call their operator."),
                                 "NAME"};

constexpr int Any = Command::AnyNumber;

template <class... Options>
constexpr CommandOptions with(const Options&... options) {
    return {&options...};
}

constexpr CommandOptions NoOptions{};

const std::vector<Command> Commands = {
    {"list", "", 0, 0, NoOptions, QT_TRANSLATE_NOOP("Programs", "List all profiles; * marks the default."),
     listProfiles},
    {"show", "NAME...", 1, Any, with(Secrets), QT_TRANSLATE_NOOP("Programs", "Show the fields of profiles."),
     showProfiles},
    {"add", "NAME [FIELD=VALUE...]", 1, Any, with(Like),
     QT_TRANSLATE_NOOP("Programs", "Add a profile. password=- reads the password from standard input."), addProfile,
     settableFieldsHelp},
    {"set", "NAME FIELD=VALUE...", 2, Any, NoOptions,
     QT_TRANSLATE_NOOP("Programs", "Change fields of a profile; name=NEW renames it."), setFields, settableFieldsHelp},
    {"delete", "NAME...", 1, Any, NoOptions, QT_TRANSLATE_NOOP("Programs", "Delete profiles: all of them, or none."),
     deleteProfiles},
    {"default", "[NAME]", 0, 1, with(Clear), QT_TRANSLATE_NOOP("Programs", "Show the default profile, or choose it."),
     defaultProfile},
    {"import", "FILE [NAME...]", 1, Any, with(Replace),
     QT_TRANSLATE_NOOP("Programs", "Import all profiles of a file, or the named ones."), importProfiles},
    {"export", "FILE [NAME...]", 1, Any, with(All, Force),
     QT_TRANSLATE_NOOP("Programs", "Export profiles into a file; others that it holds stay."), exportProfiles},
    {"backup", "FILE", 1, 1, with(Force),
     QT_TRANSLATE_NOOP("Programs", "Save all profiles of one's own, and the chosen default, in a file."), backUp},
    {"restore", "FILE", 1, 1, NoOptions,
     QT_TRANSLATE_NOOP("Programs", "Take profiles and default from a backup; those of other names stay."), restore},
    {"explain", "IMSI...", 1, Any, with(Operator),
     QT_TRANSLATE_NOOP("Programs", "Tell which presets SIM cards select; - reads IMSIs from standard input."),
     explainIMSIs},
    {"config", "[KEY] | --check [FILE...]", 0, Any, with(Check),
     QT_TRANSLATE_NOOP("Programs", "Show a value of the function configuration, or all."), showConfiguration},
    {"device", "", 0, 0, NoOptions,
     QT_TRANSLATE_NOOP("Programs", "Show what the modem and its SIM card report, and the connection."), showDevice},
    {"modems", "", 0, 0, NoOptions, QT_TRANSLATE_NOOP("Programs", "List the modems; * marks the one in use."),
     listModems},
    {"modem", "[ID]", 0, 1, with(Clear),
     QT_TRANSLATE_NOOP("Programs", "Show the modem in use, or choose one by its key, IMEI or port."), chooseModem},
    {"pin", "", 0, 0, with(Last, Timeout),
     QT_TRANSLATE_NOOP("Programs", "Unlock the SIM card; the PIN is asked for, or read from standard input."),
     enterPin},
    {"puk", "", 0, 0, with(Last, Timeout),
     QT_TRANSLATE_NOOP("Programs", "Unlock the SIM card with its PUK and set a new PIN, a line each."), enterPuk},
    {"connect", "[NAME]", 0, 1, with(Hold, Timeout),
     QT_TRANSLATE_NOOP("Programs", "Connect with a profile, or with the default."), connectProfile},
    {"disconnect", "", 0, 0, with(Timeout), QT_TRANSLATE_NOOP("Programs", "End the connection, or give it up."),
     disconnect},
    {"status", "", 0, 0, with(Watch), QT_TRANSLATE_NOOP("Programs", "Show the connection."), showStatus},
    {"usage", "", 0, 0, with(Months, Limit, ClearLimit),
     QT_TRANSLATE_NOOP("Programs", "Show what the SIM card moved this month, or set its limit."), showUsage},
    {"autoconnect", "NAME [on|off]", 1, 2, with(Roaming),
     QT_TRANSLATE_NOOP("Programs", "Whether the window connects with a profile by itself."), setAutoConnect},
    {"ussd", "CODE", 1, 1, with(Timeout),
     QT_TRANSLATE_NOOP("Programs", "Send a command such as *100# to the network and show its answer."), sendUssd},
    {"balance", "", 0, 0, with(Timeout), QT_TRANSLATE_NOOP("Programs", "Ask the network for a prepaid card's balance."),
     askBalance},
};

QString candidateNames(const QList<const Command*>& candidates) {
    QStringList names;
    for (const Command* command : candidates) names.append(command->name);
    return names.join(", ");
}

const Command* findCommand(const QString& name) {
    QList<const Command*> candidates;
    for (const Command& command : Commands) {
        if (name == command.name) return &command;
        if (!name.isEmpty() && QString(command.name).startsWith(name)) candidates.append(&command);
    }
    if (candidates.size() == 1) return candidates.first();
    if (candidates.size() > 1)
        throw CommandError::usage(
            message("%1 may be more than one command: %2", {quoted(name), candidateNames(candidates)}));
    throw CommandError::usage(message("unknown command %1; see orbisctl --help", {quoted(name)}));
}

void parse(QCommandLineParser* parser, const QStringList& commandLine) {
    if (parser->parse(commandLine)) return;
    const auto looksShort = [](const QString& word) { return word.size() > 1 && word[0] == '-' && word[1] != '-'; };
    const bool mayBeName = std::any_of(commandLine.begin(), commandLine.end(), looksShort);
    const QString text = parser->errorText();
    throw CommandError::usage(mayBeName ? message("%1 Put -- before a name that begins with a hyphen.", {text}) : text);
}

// The command's name may follow options, so all options of all commands are looked at to find it.
const Command* commandOf(const QStringList& commandLine) {
    QCommandLineParser parser;
    parser.addOptions(allOptions());
    parse(&parser, commandLine);
    if (!parser.positionalArguments().isEmpty()) return findCommand(parser.positionalArguments().first());
    if (parser.isSet("help") || parser.isSet("version")) return nullptr;
    throw CommandError::usage(message("no command is given; see orbisctl --help"));
}

// "help COMMAND" is another way to say "COMMAND --help".
QStringList withHelpAsOption(QStringList commandLine) {
    if (commandLine.value(1) != "help") return commandLine;
    commandLine.removeAt(1);
    return commandLine << "--help";
}

QString overview() {
    const auto line = [](const char* name, const char* help) {
        return QString("  %1 %2").arg(name, -11).arg(message(help));
    };
    QStringList lines{message("Command-line client of the OrbisDial connection manager."), QString(),
                      message("Commands:")};
    for (const Command& command : Commands) lines.append(line(command.name, command.help));
    lines.append(line("help", HelpOfHelp));
    return lines.join('\n');
}

}  // namespace

const std::vector<Command>& allCommands() { return Commands; }

QList<QCommandLineOption> globalOptions() {
    return {
        {"json", message("Write results as JSON, one object a line.")},
        {{"t", "terse"}, message("Write results as fields between tabs, for scripts.")},
        {{"f", "fields"},
         message("Write these fields only, in this order; their names are those of --json."),
         "FIELDS"},
        {"data-dir", message("Keep the user's profiles in this folder."), "DIR"},
        {"device", message("Use this modem: %1.", {Platform::deviceKinds().join(", ")}), "KIND"},
        {"trace", message("Write traces to standard error.")},
        {{"h", "help"}, message(HelpOfHelp)},
        {{"v", "version"}, message("Show the version.")},
    };
}

QList<QCommandLineOption> optionsOf(const Command& command) {
    QList<QCommandLineOption> options = globalOptions();
    for (const CommandOption* option : command.options)
        if (option) options.append({option->name, message(option->help), option->value});
    return options;
}

QList<QCommandLineOption> allOptions() {
    QList<QCommandLineOption> options = globalOptions();
    QSet<QString> added;
    for (const Command& command : Commands) {
        for (const CommandOption* option : command.options) {
            if (!option || added.contains(option->name)) continue;
            added.insert(option->name);
            options.append({option->name, message(option->help), option->value});
        }
    }
    return options;
}

Invocation::Invocation(const QStringList& words) {
    const QStringList commandLine = withHelpAsOption(words);
    m_pCommand = commandOf(commandLine);
    describe();
    parse(&m_Parser, commandLine);
    m_Arguments = m_Parser.positionalArguments().mid(1);
    if (m_pCommand && !isSet("help") && !isSet("version")) checkArguments();
}

void Invocation::describe() {
    m_Parser.addOptions(m_pCommand ? optionsOf(*m_pCommand) : globalOptions());
    if (!m_pCommand) {
        m_Parser.setApplicationDescription(overview());
        m_Parser.addPositionalArgument("COMMAND", message("See orbisctl COMMAND --help."), "COMMAND [ARGUMENT...]");
        return;
    }
    const QString syntax = QString("%1 %2").arg(m_pCommand->name, m_pCommand->arguments).trimmed();
    m_Parser.addPositionalArgument(m_pCommand->name, message(m_pCommand->help), syntax);
}

void Invocation::checkArguments() const {
    const int count = m_Arguments.size();
    if (count >= m_pCommand->fewest && (m_pCommand->most == Command::AnyNumber || count <= m_pCommand->most)) return;
    throw CommandError::usage(
        message("usage: %1", {QString("orbisctl %1 %2").arg(m_pCommand->name, m_pCommand->arguments).trimmed()}));
}

QString Invocation::helpText() const {
    return m_Parser.helpText() + (m_pCommand && m_pCommand->details ? m_pCommand->details() : QString());
}

qint64 Invocation::patience(int seconds) const {
    if (isSet("timeout")) {
        constexpr int longest = 24 * 60 * 60;
        bool isNumber = false;
        seconds = value("timeout").toInt(&isNumber);
        if (!isNumber || seconds < 1 || seconds > longest)
            throw CommandError::usage(message("--timeout takes a number of seconds from 1 to 86400"));
    }
    return seconds < 0 ? -1 : qint64(seconds) * 1000;
}
