#include "NetConnectConfigDocument.h"

#include "XmlText.h"

NetConnectConfigElement NetConnectConfigElement::of(const QXmlStreamReader& reader) {
    const struct {
        QLatin1String element;
        Kind kind;
        QLatin1String nameAttribute;
    } kinds[] = {
        {QLatin1String("item"), Item, QLatin1String("name")},
        {QLatin1String("IMSIProfileList"), IMSISection, QLatin1String("imsi")},
        {QLatin1String("ProfileList"), ProfileListSection, QLatin1String("name")},
        {QLatin1String("Function"), FunctionSection, QLatin1String("name")},
        {QLatin1String("ProfileTemplate"), TemplateSection, QLatin1String("name")},
        {QLatin1String("MultiModeDefaultProfile"), ModeDefaultSection, QLatin1String("name")},
    };
    NetConnectConfigElement element;
    for (size_t i = 0; i < sizeof(kinds) / sizeof(kinds[0]); ++i) {
        if (reader.name() != kinds[i].element) continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        element.kind = kinds[i].kind;
        element.name = attributes.value(kinds[i].nameAttribute).toString();
        element.value = attributes.value(QLatin1String("value")).toString();
        element.type = attributes.value(QLatin1String("type")).toString();
        break;
    }
    return element;
}

QString UserPrompt::*NetConnectConfigDocument::promptField(const QStringRef& name) {
    const struct {
        QLatin1String name;
        QString UserPrompt::*field;
    } fields[] = {
        {QLatin1String("PromptPwd"), &UserPrompt::promptPwd},
        {QLatin1String("UserCheck"), &UserPrompt::userCheck},
        {QLatin1String("CheckNamePwd"), &UserPrompt::checkNamePwd},
        {QLatin1String("DisableNamePwd"), &UserPrompt::disableNamePwd},
    };
    for (size_t i = 0; i < sizeof(fields) / sizeof(fields[0]); ++i)
        if (name == fields[i].name) return fields[i].field;
    return 0;
}

void NetConnectConfigDocument::read(QXmlStreamReader& reader) {
    QString group;
    QString module;
    while (!reader.atEnd()) {
        reader.readNext();
        XmlText::refuseDeclarations(reader);
        if (reader.hasError()) return;
        if (reader.isEndElement() && reader.name() == QLatin1String("module")) module.clear();
        if (!reader.isStartElement()) continue;

        const QXmlStreamAttributes attributes = reader.attributes();
        const QStringRef name = attributes.value(QLatin1String("name"));
        if (QString UserPrompt::*const field = promptField(name))
            promptItems.append(PromptItem(field, attributes.value(QLatin1String("value")).toString()));
        if (reader.name() == QLatin1String("group")) group = name.toString();
        if (reader.name() == QLatin1String("module")) module = name.toString();
        append(group, module, NetConnectConfigElement::of(reader));
    }
}

void NetConnectConfigDocument::append(const QString& group, const QString& module,
                                      const NetConnectConfigElement& element) {
    if (element.kind == NetConnectConfigElement::Other) return;
    if (stretches.isEmpty() || stretches.last().group != group || stretches.last().module != module) {
        const Stretch stretch = {group, module, QVector<NetConnectConfigElement>()};
        stretches.append(stretch);
    }
    stretches.last().elements.append(element);
}
