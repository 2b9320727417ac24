// SPDX-License-Identifier: MIT
// The commands of orbisctl, and how one is read from the command line.
#ifndef ORBISDIAL_CLI_COMMAND_H
#define ORBISDIAL_CLI_COMMAND_H

#include <QCommandLineParser>
#include <QStringList>
#include <array>
#include <vector>

class Invocation;
class Output;

// An option that a command has for itself. Without a value name it is a switch.
struct CommandOption {
    const char* name;
    const char* help;  // a message in English, as a command's
    const char* value;
};

using CommandOptions = std::array<const CommandOption*, 3>;  // null where there are fewer

constexpr char HelpOfHelp[] = QT_TRANSLATE_NOOP("Programs", "Show this help, or that of a command.");

struct Command {
    static constexpr int AnyNumber = -1;

    const char* name;
    const char* arguments;  // as the help shows them
    int fewest;             // arguments
    int most;               // AnyNumber: no limit
    CommandOptions options;
    const char* help;
    void (*run)(const Invocation& invocation, Output& output);  // throws CommandError
    QString (*details)() = nullptr;                             // the end of its help
};

// All of them, in the order of the help.
const std::vector<Command>& allCommands();

// Those that every command has; these and its own; those of all commands.
QList<QCommandLineOption> globalOptions();
QList<QCommandLineOption> optionsOf(const Command& command);
QList<QCommandLineOption> allOptions();

// One reading of the command line.
class Invocation {
public:
    // Takes the program's name and what follows. Throws a CommandError for a command line that makes no sense.
    explicit Invocation(const QStringList& words);

    // Null when only help or the version is wanted.
    const Command* command() const { return m_pCommand; }

    // What follows the command's name.
    const QStringList& arguments() const { return m_Arguments; }

    bool isSet(const QString& option) const { return m_Parser.isSet(option); }
    QString value(const QString& option) const { return m_Parser.value(option); }

    // The value of --timeout in milliseconds; these seconds where it is not given. -1 is for ever. Throws a
    // CommandError for what is no number of seconds.
    qint64 patience(int seconds = -1) const;

    // Of the command, or of the whole program.
    QString helpText() const;

private:
    void describe();
    void checkArguments() const;

    const Command* m_pCommand = nullptr;
    QStringList m_Arguments;
    QCommandLineParser m_Parser;
};

#endif
