#include "Output.h"

#include <QJsonDocument>
#include <cstdio>

#include "CommandError.h"

Output::Output(bool json) : m_bJson(json) { m_Stdout.open(stdout, QIODevice::WriteOnly); }

void Output::result(const QJsonObject& object, const QStringList& lines) {
    if (m_bJson) return text(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)) + '\n');
    QString all;
    for (const QString& line : lines) all += printable(line) + '\n';
    text(all);
}

void Output::text(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    if (m_Stdout.write(bytes) != bytes.size() || !m_Stdout.flush())
        throw CommandError::failed("the output can't be written: " + m_Stdout.errorString());
}

QString printable(QString text) {
    for (QChar& c : text) {
        const QChar::Category category = c.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph)
            c = QChar::ReplacementCharacter;
    }
    return text;
}

void printDiagnostic(const QString& text) {
    const QByteArray line = "orbisctl: " + printable(text.trimmed()).toUtf8() + '\n';
    std::fwrite(line.constData(), 1, size_t(line.size()), stderr);
}

void printWarning(const QString& text) { printDiagnostic("warning: " + text); }
