// SPDX-License-Identifier: MIT
// An XML input file, in memory from construction on. Whatever is wrong with it ends in a PresetError that names the
// place.
#ifndef ORBISDIAL_XMLINPUT_H
#define ORBISDIAL_XMLINPUT_H

#include <QFile>
#include <QString>
#include <QXmlStreamReader>

#include "PresetError.h"
#include "XmlText.h"

class XmlInput {
public:
    explicit XmlInput(const QString& path) : m_Path(path) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) throw PresetError(path + ": " + file.errorString());
        const QByteArray content = file.readAll();
        const QString refusal = XmlText::refusal(content);
        if (!refusal.isEmpty()) throw PresetError(path + ": " + refusal);
        xml.addData(content);
    }

    QXmlStreamReader xml;

    QString attribute(const char* name) const { return xml.attributes().value(QLatin1String(name)).toString(); }
    QString text() { return xml.readElementText(QXmlStreamReader::SkipChildElements).trimmed(); }

    // The place reached, as "file:line:column", lines counted from one and columns from zero.
    QString position() const {
        return QString("%1:%2:%3").arg(m_Path, QString::number(xml.lineNumber()), QString::number(xml.columnNumber()));
    }

    [[noreturn]] void fail(const QString& reason) const { throw PresetError(position() + ": " + reason); }

    // Goes to the root element, which must have this name.
    void enterRoot(const char* name) {
        xml.readNextStartElement();
        checkForError();
        if (xml.name() != QLatin1String(name)) fail(QString("the root element is not \"%1\"").arg(name));
    }

    // Hands over each child of the current element, which the handler must read to its end.
    template <typename Handler>
    void forEachChild(Handler handle) {
        while (xml.readNextStartElement()) handle(xml.name().toString());
    }

    // Reads what follows the root, so that a damaged end does not go unnoticed.
    void finish() {
        while (!xml.atEnd()) xml.readNext();
        checkForError();
    }

    void checkForError() const {
        if (xml.hasError()) fail(xml.errorString());
    }

private:
    QString m_Path;
};

#endif
