// SPDX-License-Identifier: MIT
#include "Completion.h"

#include <QHash>
#include <algorithm>
#include <optional>

#include "ChosenModem.h"
#include "Command.h"
#include "CommandError.h"
#include "Message.h"
#include "ModemReport.h"
#include "Output.h"
#include "Platform.h"
#include "ProfileFields.h"
#include "ProfileSession.h"
#include "ShellLine.h"

namespace {

struct Word {
    QString text;
    QString help;
};

struct Answer {
    const char* kind = "words";
    QList<Word> words;
};

// What was typed before the word to complete.
struct Typed {
    const Command* command = nullptr;
    QStringList arguments;
    QHash<QString, QString> options;  // by long name; a switch has no value
    QString awaited;                  // the option whose value is next; empty for none
    bool areOptionsOver = false;
};

QString longName(const QCommandLineOption& option) { return option.names().last(); }

std::optional<QCommandLineOption> findOption(const QString& word) {
    const QString name = word.startsWith("--") ? word.mid(2).section('=', 0, 0) : word.mid(1);
    for (const QCommandLineOption& option : allOptions())
        if (option.names().contains(name)) return option;
    return std::nullopt;
}

const Command* findCommand(const QString& name) {
    for (const Command& command : allCommands())
        if (name == command.name) return &command;
    return nullptr;
}

Typed typedOf(const QStringList& words) {
    Typed typed;
    for (int i = 0; i < words.size(); ++i) {
        const QString& word = words.at(i);
        const bool isOption = word.size() > 1 && word.startsWith('-') && !typed.areOptionsOver;
        const std::optional<QCommandLineOption> option = isOption ? findOption(word) : std::nullopt;
        if (isOption && word == "--") {
            typed.areOptionsOver = true;
        } else if (option && !option->valueName().isEmpty() && !word.contains('=')) {
            if (++i == words.size())
                typed.awaited = longName(*option);
            else
                typed.options.insert(longName(*option), words.at(i));
        } else if (option) {
            typed.options.insert(longName(*option), word.section('=', 1));
        } else if (!isOption && !typed.command) {
            typed.command = findCommand(word);
            if (!typed.command) typed.arguments.append(word);  // help, or nonsense
        } else if (!isOption) {
            typed.arguments.append(word);
        }
    }
    return typed;
}

QList<Word> plain(const QStringList& texts) {
    QList<Word> words;
    for (const QString& text : texts) words.append({text, QString()});
    return words;
}

QList<Word> commandWords() {
    QList<Word> words;
    for (const Command& command : allCommands()) words.append(Word{command.name, message(command.help)});
    words.append(Word{"help", message(HelpOfHelp)});
    return words;
}

QList<Word> optionWords(const Command* command) {
    QList<Word> words;
    for (const QCommandLineOption& option : command ? optionsOf(*command) : globalOptions())
        words.append({"--" + longName(option), option.description()});
    return words;
}

// One that looks like an option can be given only where there are no more options.
QList<Word> profileWords(bool areOptionsOver) {
    const ProfileSession session(ProfileSession::Reading);
    const QString defaultName = session.defaultName();
    QList<Word> words;
    for (const QString& name : session.names()) {
        if (name.startsWith('-') && !areOptionsOver) continue;
        const bool isOwn = session->HasUserProfile(name);
        if (name == defaultName)
            words.append({name, isOwn ? message("user, default") : message("preset, default")});
        else
            words.append({name, isOwn ? message("user") : message("preset")});
    }
    return words;
}

QList<Word> modemWords() {
    QList<Word> words;
    for (const VRKS_ModemInfo& info : ModemReport::all())
        words.append({QString::fromUtf8(info.id), QString::fromUtf8(info.model)});
    return words;
}

QList<Word> keyWords() {
    const ProfileSession session(ProfileSession::Reading);
    return plain(session->FunctionConfigKeys());
}

// FIELD= or, behind the sign, its value.
Answer assignmentAnswer(const Typed& typed, const QString& current) {
    const QString field = current.section('=', 0, 0);
    if (current.contains('='))
        return {"words", isFlagField(field) ? plain({field + "=true", field + "=false"}) : QList<Word>()};
    QStringList fields = settableFieldNames();
    if (QString(typed.command->name) == "add") fields.removeAll("name");
    QList<Word> words;
    for (const QString& name : fields) words.append({name + '=', QString()});
    return {"nospace", words};
}

// The word of the command's help that stands for the argument to complete: NAME, FILE, on|off...
QString argumentKind(const Typed& typed) {
    const QStringList forms = QString(typed.command->arguments).split(" | ");
    const QString form = typed.options.contains("check") ? forms.last() : forms.first();
    QStringList kinds;
    for (const QString& word : form.split(' ', Qt::SkipEmptyParts))
        if (!word.startsWith("--")) kinds.append(word);
    const int place = typed.arguments.size();
    const bool goesOn = !kinds.isEmpty() && kinds.last().contains("...");
    QString kind = place < kinds.size() ? kinds.at(place) : goesOn ? kinds.last() : QString();
    return kind.remove('[').remove(']').remove("...");
}

Answer valueAnswer(const QString& kind, const Typed& typed, const QString& current) {
    const bool isNew = typed.command && QString(typed.command->name) == "add" && typed.arguments.isEmpty();
    if (kind == "FILE") return {"files", {}};
    if (kind == "DIR") return {"directories", {}};
    if (kind == "KIND") return {"words", plain(Platform::deviceKinds())};
    if (kind == "PROFILE" || (kind == "NAME" && !isNew)) return {"words", profileWords(typed.areOptionsOver)};
    if (kind == "ID") return {"words", modemWords()};
    if (kind == "KEY") return {"words", keyWords()};
    if (kind == "FIELD=VALUE") return assignmentAnswer(typed, current);
    if (kind == "on|off") return {"words", plain({"on", "off"})};
    return {};
}

// NAME is a profile's as an argument alone; behind --operator it is anything.
QString valueKind(const QCommandLineOption& option) {
    return option.valueName() == "NAME" ? QString() : option.valueName();
}

Answer answerTo(const Typed& typed, const QString& current) {
    if (!typed.awaited.isEmpty()) return valueAnswer(valueKind(*findOption("--" + typed.awaited)), typed, current);
    if (current.startsWith("--") && current.contains('=') && !typed.areOptionsOver) {
        const std::optional<QCommandLineOption> option = findOption(current);
        Answer answer = option ? valueAnswer(valueKind(*option), typed, current) : Answer();
        for (Word& word : answer.words) word.text.prepend(current.section('=', 0, 0) + '=');
        return answer;
    }
    if (current.startsWith('-') && !typed.areOptionsOver) return {"words", optionWords(typed.command)};
    if (typed.command) return valueAnswer(argumentKind(typed), typed, current);
    return {"words",
            typed.arguments.isEmpty() || typed.arguments == QStringList("help") ? commandWords() : QList<Word>()};
}

// The options that decide whose profiles and which modems there are.
void apply(const Typed& typed) {
    if (typed.options.contains("data-dir")) Platform::useDataFolder(typed.options.value("data-dir"));
    if (typed.options.contains("device")) Platform::useDevice(typed.options.value("device"));
    ChosenModem::use();
}

// What can't be found out completes nothing, and a prompt is no place for messages.
Answer answerOrNone(const QStringList& words) {
    try {
        const Typed typed = typedOf(words.mid(0, words.size() - 1));
        apply(typed);
        return answerTo(typed, words.value(words.size() - 1));
    } catch (const CommandError&) {
        return {};
    }
}

bool isPrintable(const QString& text) {
    return std::none_of(text.begin(), text.end(), [](QChar c) { return c.category() == QChar::Other_Control; });
}

void answerWords(const QStringList& words) {
    const Answer answer = answerOrNone(words);
    QString text = QString(answer.kind) + '\n';
    for (const Word& word : answer.words)
        if (isPrintable(word.text)) text += word.text + '\t' + word.help + '\n';
    Output::text(text);
}

void answerBash(const QString& line) {
    const ShellLine typed(line);
    const Answer answer = answerOrNone(typed.words().mid(1));
    QString text = QString(answer.kind) + '\n';
    for (const Word& word : answer.words)
        if (isPrintable(word.text) && word.text.startsWith(typed.words().last())) text += typed.reply(word.text) + '\n';
    Output::text(text);
}

}  // namespace

bool Completion::isWanted(const QStringList& commandLine) { return commandLine.value(1) == "complete"; }

void Completion::answer(const QStringList& arguments) {
    if (arguments.value(0) == "words") return answerWords(arguments.mid(1));
    if (arguments.value(0) == "bash" && arguments.size() == 2) return answerBash(arguments.at(1));
    throw CommandError::usage(message("complete is for the shells' completions"));
}
