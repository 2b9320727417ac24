// orbisctl: the connection profiles on the command line.

#include <QCoreApplication>
#include <new>

#include "Command.h"
#include "CommandError.h"
#include "Output.h"
#include "Platform.h"
#include "ProgramStart.h"

static void run(const Invocation& invocation) {
    if (invocation.isSet("help")) return Output::text(invocation.helpText());
    if (invocation.isSet("version")) return Output::text("orbisctl " ORBISDIAL_VERSION "\n");
    Platform::applyOptions(invocation);
    Output output(invocation.isSet("json"));
    invocation.command()->run(invocation, output);
}

int main(int argc, char** argv) {
    ProgramStart::prepare("orbisctl", CommandError::Failed);
    try {
        Platform::prepare(argc, argv);
        const QCoreApplication application(argc, argv);
        run(Invocation(application.arguments()));
    } catch (const CommandError& error) {
        printDiagnostic(error.text);
        return error.status;
    } catch (const std::bad_alloc&) {
        ProgramStart::reportOutOfMemory();
        return CommandError::Failed;
    }
    return CommandError::Done;
}
