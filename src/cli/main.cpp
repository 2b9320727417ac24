// orbisctl: the connection profiles on the command line.

#include <QCoreApplication>

#include "Command.h"
#include "CommandError.h"
#include "Output.h"
#include "Platform.h"

static void run(const Invocation& invocation) {
    Output output(invocation.isSet("json"));
    if (invocation.isSet("help")) return output.text(invocation.helpText());
    if (invocation.isSet("version")) return output.text("orbisctl " ORBISDIAL_VERSION "\n");
    Platform::applyOptions(invocation);
    invocation.command()->run(invocation, output);
}

int main(int argc, char** argv) {
    try {
        Platform::prepare(argc, argv);
        const QCoreApplication application(argc, argv);
        run(Invocation(application.arguments()));
    } catch (const CommandError& error) {
        printDiagnostic(error.text);
        return error.status;
    }
    return CommandError::Done;
}
