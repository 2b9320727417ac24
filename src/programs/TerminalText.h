// SPDX-License-Identifier: MIT
// Text that reaches a terminal.
#ifndef ORBISDIAL_PROGRAMS_TERMINALTEXT_H
#define ORBISDIAL_PROGRAMS_TERMINALTEXT_H

#include <QJsonValue>
#include <QString>

namespace TerminalText {

// The text with U+FFFD for whatever a terminal would obey or not show: control and formatting characters (line ends
// and changes of direction among them), characters without width that are no marks on others, halves of pairs.
QString printable(const QString& text);

// How many columns of a terminal the text takes, where characters of East Asia take two and marks on others none.
int columns(const QString& text);

// The text with blanks behind it, so that it takes so many.
QString padded(const QString& text, int count);

// As compact JSON, in which those characters stand as escapes, so that its values are the very same.
QString json(const QJsonValue& value);

}  // namespace TerminalText

#endif
