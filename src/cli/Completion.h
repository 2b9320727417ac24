// SPDX-License-Identifier: MIT
// What may stand next on a command line, for the shells' completions: "orbisctl complete" is for them alone.
#ifndef ORBISDIAL_CLI_COMPLETION_H
#define ORBISDIAL_CLI_COMPLETION_H

#include <QStringList>

namespace Completion {

// True for the program's name and the word "complete".
bool isWanted(const QStringList& commandLine);

// Takes what follows. "words WORD..." is the command line without the program's name, its last word being the one to
// complete; the answer is a line that says what completes it ("words", "files", "directories" or "nospace", which is
// words that more is written behind), and for each word a line, followed by a tab and what it is about.
// "bash LINE" is the line up to the cursor as it was typed; the words come without the tab, fit what was typed, are
// quoted as it began, and leave out what bash takes for words before. Throws a CommandError for anything else.
void answer(const QStringList& arguments);

}  // namespace Completion

#endif
