// SPDX-License-Identifier: MIT
#include "NetConnectConfigDocument.h"

#include "XmlScanner.h"
#include "XmlText.h"

namespace {

template <class Element>
NetConnectConfigElement::Kind kindOf(const Element& element) {
    static const struct {
        const char* name;
        NetConnectConfigElement::Kind kind;
    } kinds[] = {{"item", NetConnectConfigElement::Item},
                 {"IMSIProfileList", NetConnectConfigElement::IMSISection},
                 {"ProfileList", NetConnectConfigElement::ProfileListSection},
                 {"Function", NetConnectConfigElement::FunctionSection},
                 {"ProfileTemplate", NetConnectConfigElement::TemplateSection},
                 {"MultiModeDefaultProfile", NetConnectConfigElement::ModeDefaultSection}};
    for (size_t i = 0; i < sizeof(kinds) / sizeof(kinds[0]); ++i)
        if (element.isNamed(kinds[i].name)) return kinds[i].kind;
    return NetConnectConfigElement::Other;
}

// Its attribute "name" was read already.
template <class Element>
void fill(NetConnectConfigElement* element, const Element& source, NetConnectConfigElement::Kind kind,
          const QString& name) {
    element->kind = kind;
    element->name = kind == NetConnectConfigElement::IMSISection ? source.value("imsi") : name;
    element->value = source.commonValue("value");
    element->type = source.commonValue("type");
}

// The element that a scanner stands on. Of the few values that come again and again, neighbours share their memory.
class ScannedElement {
public:
    explicit ScannedElement(const XmlScanner& scanner) : m_Scanner(scanner), m_Empty(QLatin1String("")) {}
    bool isNamed(const char* name) const { return m_Scanner.isNamed(name); }
    template <int Size>
    QString value(const char (&attribute)[Size]) const {
        return m_Scanner.value(attribute);
    }
    template <int Size>
    QString commonValue(const char (&attribute)[Size]) const {
        const XmlPiece* const piece = m_Scanner.find(attribute);
        if (!piece) return QString();
        if (piece->size == 0) return m_Empty;
        if (!(*piece == m_Common)) {
            m_Common = *piece;
            m_Text = piece->toString();
        }
        return m_Text;
    }

private:
    const XmlScanner& m_Scanner;
    const QString m_Empty;
    mutable XmlPiece m_Common;
    mutable QString m_Text;
};

}  // namespace

NetConnectConfigElement NetConnectConfigElement::of(const QXmlStreamReader& reader) {
    const XmlReaderElement source(reader);
    NetConnectConfigElement element;
    const Kind kind = kindOf(source);
    if (kind != Other) fill(&element, source, kind, source.value("name"));
    return element;
}

QString UserPrompt::*NetConnectConfigDocument::promptField(const TextPart& name) {
    static const struct {
        QLatin1String name;
        QString UserPrompt::*field;
    } fields[] = {
        {QLatin1String("PromptPwd"), &UserPrompt::promptPwd},
        {QLatin1String("UserCheck"), &UserPrompt::userCheck},
        {QLatin1String("CheckNamePwd"), &UserPrompt::checkNamePwd},
        {QLatin1String("DisableNamePwd"), &UserPrompt::disableNamePwd},
    };
    for (size_t i = 0; i < sizeof(fields) / sizeof(fields[0]); ++i)
        if (name.size() == sizeOf(fields[i].name) && name == fields[i].name) return fields[i].field;
    return nullptr;
}

bool NetConnectConfigDocument::scan(const QByteArray& content) {
    NetConnectConfigDocument scanned;
    Place place;
    XmlScanner scanner(content);
    const ScannedElement element(scanner);
    for (XmlScanner::Token token = scanner.next(); token != XmlScanner::End; token = scanner.next()) {
        if (token == XmlScanner::Unknown) return false;
        if (token == XmlScanner::StartElement)
            scanned.start(element, &place);
        else if (scanner.isNamed("module"))
            place.leaveModule();
    }
    *this = scanned;
    return true;
}

void NetConnectConfigDocument::read(QXmlStreamReader& reader) {
    Place place;
    while (!reader.atEnd()) {
        reader.readNext();
        XmlText::refuseDeclarations(reader);
        if (reader.hasError()) return;
        if (reader.isStartElement())
            start(XmlReaderElement(reader), &place);
        else if (reader.isEndElement() && reader.name() == QLatin1String("module"))
            place.leaveModule();
    }
}

template <class Element>
void NetConnectConfigDocument::start(const Element& element, Place* place) {
    const QString name = element.value("name");
    if (QString UserPrompt::*const field = promptField(wholeOf(name)))
        promptItems.append(PromptItem(field, element.value("value")));
    if (element.isNamed("group")) place->enter(&place->group, name);
    if (element.isNamed("module")) place->enter(&place->module, name);
    const NetConnectConfigElement::Kind kind = kindOf(element);
    if (kind != NetConnectConfigElement::Other) fill(append(place), element, kind, name);
}

NetConnectConfigElement* NetConnectConfigDocument::append(Place* place) {
    if (!place->hasStretch) {
        const Stretch stretch = {place->group, place->module, QVector<NetConnectConfigElement>()};
        stretches.append(stretch);
        place->hasStretch = true;
    }
    QVector<NetConnectConfigElement>& elements = stretches.last().elements;
    elements.resize(elements.size() + 1);
    return &elements.last();
}
