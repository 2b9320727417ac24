// SPDX-License-Identifier: MIT
// orbisctl: the connection profiles on the command line.

#include <QCoreApplication>
#include <new>

#include "Command.h"
#include "CommandError.h"
#include "Completion.h"
#include "Message.h"
#include "Output.h"
#include "Platform.h"
#include "ProgramStart.h"

static Output outputOf(const Invocation& invocation) {
    const bool wantsFields = invocation.isSet("terse") || invocation.isSet("fields");
    if (!wantsFields) return Output(invocation.isSet("json") ? Output::Json : Output::Text);
    if (invocation.isSet("json")) throw CommandError::usage(message("--json goes with neither --terse nor --fields"));
    return Output(Output::Fields, invocation.value("fields").split(',', Qt::SkipEmptyParts));
}

static void run(const Invocation& invocation) {
    if (invocation.isSet("help")) return Output::text(invocation.helpText());
    if (invocation.isSet("version")) return Output::text("orbisctl " ORBISDIAL_VERSION "\n");
    Output output = outputOf(invocation);
    if (!output.isForPeople()) useEnglish();
    Platform::applyOptions(invocation);
    invocation.command()->run(invocation, output);
}

int main(int argc, char** argv) {
    ProgramStart::prepare("orbisctl", CommandError::Failed);
    try {
        Platform::prepare();
        const QCoreApplication application(argc, argv);
        useLanguageOfLocale();
        Platform::requireUtf8(argc, argv);
        const QStringList commandLine = application.arguments();
        if (Completion::isWanted(commandLine))
            Completion::answer(commandLine.mid(2));
        else
            run(Invocation(commandLine));
    } catch (const CommandError& error) {
        printDiagnostic(error.text);
        return error.status;
    } catch (const std::bad_alloc&) {
        ProgramStart::reportOutOfMemory();
        return CommandError::Failed;
    }
    return CommandError::Done;
}
