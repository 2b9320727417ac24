// SPDX-License-Identifier: MIT
// Where commands write: results as text, fields or JSON on stdout, one-line diagnostics on stderr. All of it is UTF-8.
#ifndef ORBISDIAL_CLI_OUTPUT_H
#define ORBISDIAL_CLI_OUTPUT_H

#include <QJsonObject>
#include <QString>
#include <QStringList>

class Output {
public:
    enum Form { Text, Json, Fields };

    // With Fields: those that are wanted, or all where none are given.
    explicit Output(Form form, const QStringList& fields = {}) : m_Form(form), m_Fields(fields) {}

    bool isForPeople() const { return m_Form == Text; }

    // Writes one result in the form that was asked for: the object as one line, or its fields, or the lines. It is
    // handed on at once, so that a reader at the other end of a pipe need not wait for the last. Throws a CommandError
    // when it can't be written.
    void result(const QJsonObject& object, const QStringList& lines);

    // Writes text as it is; throws like result().
    static void text(const QString& text);

private:
    QString fieldLines(const QJsonObject& object) const;
    QString fieldLine(const QJsonObject& object) const;

    const Form m_Form;
    const QStringList m_Fields;
};

// Writes "orbisctl: " and the text, as one line, to stderr.
void printDiagnostic(const QString& text);
void printWarning(const QString& text);

#endif
