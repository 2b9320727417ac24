// SPDX-License-Identifier: MIT
#include "Output.h"

#include <QJsonArray>

#include "CommandError.h"
#include "Message.h"
#include "StandardOutput.h"
#include "TerminalText.h"

namespace {

// What would end a field or a line is written as C does.
QString escaped(QString text) {
    return text.replace('\\', "\\\\").replace('\t', "\\t").replace('\n', "\\n").replace('\r', "\\r");
}

QString fieldText(const QJsonValue& value) {
    if (value.isString()) return TerminalText::printable(escaped(value.toString()));
    if (value.isNull()) return QString();
    if (!value.isArray()) return TerminalText::json(value);
    QStringList elements;
    for (const auto& element : value.toArray()) elements.append(fieldText(element));
    return elements.join(',');
}

// The elements of what is a list, or the object itself.
QList<QJsonObject> rowsOf(const QJsonObject& object) {
    for (const char* list : {"profiles", "modems", "findings", "months"}) {
        if (!object.contains(QLatin1String(list))) continue;
        QList<QJsonObject> rows;
        for (const auto& element : object[QLatin1String(list)].toArray()) rows.append(element.toObject());
        return rows;
    }
    return {object};
}

// A field of a field has its name behind a dot.
QJsonValue fieldOf(const QJsonObject& object, const QString& name) {
    const int dot = name.indexOf('.');
    const QJsonValue value = object.value(name.left(dot));
    if (value.isUndefined())
        throw CommandError::usage(
            message("there is no field %1; there are: %2", {quoted(name), object.keys().join(' ')}));
    return dot < 0 || value.isNull() ? value : fieldOf(value.toObject(), name.mid(dot + 1));
}

}  // namespace

QString Output::fieldLine(const QJsonObject& object) const {
    QStringList fields;
    for (const QString& name : m_Fields.isEmpty() ? object.keys() : m_Fields)
        fields.append(fieldText(fieldOf(object, name)));
    return fields.join('\t') + '\n';
}

QString Output::fieldLines(const QJsonObject& object) const {
    QString lines;
    for (const QJsonObject& row : rowsOf(object)) lines += fieldLine(row);
    return lines;
}

void Output::result(const QJsonObject& object, const QStringList& lines) {
    if (m_Form == Json) return text(TerminalText::json(object) + '\n');
    if (m_Form == Fields) return text(fieldLines(object));
    QString all;
    for (const QString& line : lines) all += TerminalText::printable(line) + '\n';
    text(all);
}

void Output::text(const QString& text) {
    const QString problem = StandardOutput::writeText(text);
    if (!problem.isNull()) throw CommandError::failed(problem);
}

void printDiagnostic(const QString& text) { StandardOutput::writeDiagnostic("orbisctl", text); }

void printWarning(const QString& text) { printDiagnostic(message("warning: %1", {text})); }
