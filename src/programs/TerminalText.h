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

// As compact JSON, in which those characters stand as escapes, so that its values are the very same.
QString json(const QJsonValue& value);

}  // namespace TerminalText

#endif
