// The template for new profiles, in the system profile file.

#include <QFile>

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

}  // namespace

int NetConnectXMLParse::GetProfileTemplateFromSysXML(DialupProfile* profile) {
    const TraceScope trace(__FILE__, "GetProfileTemplateFromSysXML");
    const QString path = shippedPath("SysProfile.prof");
    QByteArray content;
    const int status = readFile(path, &content);
    if (status != 0) return status;

    QXmlStreamReader reader(content);
    const QString refusal = XmlText::refusal(content);
    if (!refusal.isEmpty()) reader.raiseError(refusal);
    while (!reader.atEnd()) {
        reader.readNext();
        XmlText::refuseDeclarations(reader);
        if (reader.hasError()) return readError(reader, path, "GetProfileTemplateFromSysXML");
        if (!reader.isStartElement() || reader.name() != QLatin1String("Template")) continue;
        fillFromTemplate(reader.attributes(), profile);
        break;
    }
    if (reader.hasError()) return readError(reader, path, "GetProfileTemplateFromSysXML");
    clearProblem(path);
    return 0;
}

int NetConnectXMLParse::ModifyProfileTemplateToSysXML(QHash<QString, NetConnectXML>* templates) {
    const TraceScope trace(__FILE__, "ModifyProfileTemplateToSysXML");
    if (!templates || templates->isEmpty()) return 23;
    const QString path = shippedPath("SysProfile.prof");
    const QByteArray content = templateDocument(*templates);

    // The file lies where many users may read but few may write: leave one alone that is right already.
    QFile present(path);
    if (!content.isEmpty() && present.open(QIODevice::ReadOnly) && present.readAll() == content) return 0;
    return writeFile(path, content, FileReplacement::Shipped, FileReplacement::OverOld);
}
