// SPDX-License-Identifier: MIT
// The template for new profiles, in the system profile file.

#include <QFile>
#include <QMap>
#include <QPair>

#include "NetConnectXMLParse.h"
#include "ProfileDocumentWriter.h"
#include "Trace.h"
#include "XmlText.h"

namespace {

// Fields of the record that the system file's template never holds, though "device" is taken when it is there.
bool isInTemplate(const char* attribute, bool forWriting) {
    const QLatin1String name(attribute);
    if (QLatin1String("langid") == name || QLatin1String("encrypttype") == name) return false;
    return !forWriting || QLatin1String("device") != name;
}

void fillFromTemplate(const QXmlStreamAttributes& attributes, DialupProfile* profile) {
    for (int i = 0; i < DialupProfileFieldCount; ++i) {
        const DialupProfileField& field = DialupProfileFields[i];
        if (isInTemplate(field.attribute, false))
            profile->*field.member = attributes.value(QLatin1String(field.attribute)).toString();
    }
}

QByteArray templateDocument(const QHash<QString, NetConnectXML>& templates) {
    ProfileDocumentWriter writer;
    writer.emptyElement("Default");
    writer.attribute("Default", QLatin1String("kestra"));
    writer.attribute("type", QLatin1String("DialUp"));
    writer.startGroup();
    writer.emptyElement("Template");
    for (int i = 0; i < DialupProfileFieldCount; ++i) {
        const char* const attribute = DialupProfileFields[i].attribute;
        if (isInTemplate(attribute, true))
            writer.attribute(attribute, XmlText::clean(templates.value(QLatin1String(attribute)).value));
    }
    return writer.finish();
}

// A start element: its name, and its attributes but the empty ones.
typedef QPair<QString, QMap<QString, QString> > Element;

// What a document says, however it is written; nothing when it is damaged.
QList<Element> elementsOf(const QByteArray& content) {
    QList<Element> elements;
    QXmlStreamReader reader(content);
    const QString refusal = XmlText::refusal(content);
    if (!refusal.isEmpty()) reader.raiseError(refusal);
    while (!reader.atEnd()) {
        reader.readNext();
        XmlText::refuseDeclarations(reader);
        if (!reader.isStartElement()) continue;
        Element element(reader.name().toString(), QMap<QString, QString>());
        const QXmlStreamAttributes attributes = reader.attributes();
        for (int i = 0; i < attributes.size(); ++i)
            if (!attributes.at(i).value().isEmpty())
                element.second.insert(attributes.at(i).name().toString(), attributes.at(i).value().toString());
        elements.append(element);
    }
    return reader.hasError() ? QList<Element>() : elements;
}

}  // namespace

int NetConnectXMLParse::GetProfileTemplateFromSysXML(DialupProfile* profile) {
    const TraceScope trace(__FILE__, "GetProfileTemplateFromSysXML");
    if (!profile) return NetConnectStatus::FileMissing;
    const QString path = shippedPath(NetConnectFileNames::System);
    QByteArray content;
    const int status = readFile(path, &content);
    if (status != 0) return status;

    QXmlStreamReader reader(content);
    const QString refusal = XmlText::refusal(content);
    if (!refusal.isEmpty()) reader.raiseError(refusal);
    while (!reader.atEnd()) {
        reader.readNext();
        XmlText::refuseDeclarations(reader);
        if (reader.hasError()) break;
        if (!reader.isStartElement() || reader.name() != QLatin1String("Template")) continue;
        fillFromTemplate(reader.attributes(), profile);
        break;
    }
    if (reader.hasError()) {
        traceReadError("GetProfileTemplateFromSysXML");
        return reportReadError(reader, path);
    }
    clearProblem(path);
    return 0;
}

int NetConnectXMLParse::ModifyProfileTemplateToSysXML(QHash<QString, NetConnectXML>* templates) {
    const TraceScope trace(__FILE__, "ModifyProfileTemplateToSysXML");
    if (!templates || templates->isEmpty()) return NetConnectStatus::FileMissing;
    const QString path = shippedPath(NetConnectFileNames::System);
    const QByteArray content = templateDocument(*templates);

    // The file lies where many users may read but few may write: leave one alone that is right already.
    QFile present(path);
    const bool isReadable = !content.isEmpty() && present.open(QIODevice::ReadOnly);
    if (isReadable && elementsOf(present.readAll()) == elementsOf(content)) return 0;
    return writeFile(path, content, FileReplacement::Shipped, FileReplacement::OverOld);
}
