#include "Output.h"

#include "CommandError.h"
#include "StandardOutput.h"
#include "TerminalText.h"

void Output::result(const QJsonObject& object, const QStringList& lines) {
    if (m_bJson) return text(TerminalText::json(object) + '\n');
    QString all;
    for (const QString& line : lines) all += TerminalText::printable(line) + '\n';
    text(all);
}

void Output::text(const QString& text) {
    const QString problem = StandardOutput::writeText(text);
    if (!problem.isNull()) throw CommandError::failed(problem);
}

void printDiagnostic(const QString& text) { StandardOutput::writeDiagnostic("orbisctl", text); }

void printWarning(const QString& text) { printDiagnostic("warning: " + text); }
