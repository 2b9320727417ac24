// SPDX-License-Identifier: MIT
#include "DocumentCheck.h"

#include "Spelling.h"
#include "XmlText.h"

namespace {

// Where the reader stands; it counts columns from zero.
XmlPlace placeOf(const QXmlStreamReader& reader) { return {reader.lineNumber(), reader.columnNumber() + 1}; }

// Where what it reads next begins: behind text it has taken in one character of that already.
XmlPlace nextPlaceOf(const QXmlStreamReader& reader) {
    XmlPlace place = placeOf(reader);
    if (reader.isCharacters()) --place.column;
    return place;
}

QStringList wordsOf(const char* words) { return QString::fromLatin1(words).split(' ', Qt::SkipEmptyParts); }

QString tag(const QString& name) { return '<' + name + '>'; }

}  // namespace

void DocumentCheck::check(const QByteArray& content) {
    QXmlStreamReader reader(content);
    const QString refusal = XmlText::refusal(content);
    if (!refusal.isEmpty()) return find({}, refusal, "no program of OrbisDial reads such a file; write it anew");
    while (!reader.atEnd() && !isFull()) {
        const XmlPlace place = nextPlaceOf(reader);
        reader.readNext();
        XmlText::refuseDeclarations(reader);
        if (reader.hasError()) return tellError(reader);
        if (reader.isStartElement())
            startElement({reader.name().toString(), m_Open.empty() ? QString() : m_Open.back().name,
                          reader.attributes(), place});
        else if (reader.isEndElement())
            endElement();
        else if (reader.isCharacters())
            checkText(reader, place);
    }
    m_bWhole = reader.atEnd();
    finish();
}

void DocumentCheck::startElement(const XmlElement& element) {
    const ElementRule* const rule = ruleOf(element);
    const bool isKnown = rule && (m_Open.empty() || m_Open.back().isKnown);
    if (!isKnown && (m_Open.empty() || m_Open.back().isKnown))  // what is inside an unknown one is unknown, too
        find(element.place,
             "unknown element " + tag(element.name) + (m_Open.empty() ? "" : " in " + tag(element.parent)),
             Spelling::advice(element.name, namesIn(element.parent)));
    m_Open.push_back({element.name, element.place, isKnown});
    if (!isKnown) return;
    checkAttributes(element, *rule);
    start(element);
}

void DocumentCheck::checkAttributes(const XmlElement& element, const ElementRule& rule) {
    const QStringList known = wordsOf(rule.attributes);
    for (const QXmlStreamAttribute& attribute : element.attributes) {
        const QString name = attribute.qualifiedName().toString();
        if (!known.contains(name))
            find(element.place, "unknown attribute " + name + " of " + tag(element.name),
                 Spelling::advice(name, known));
    }
}

void DocumentCheck::endElement() {
    const Open ended = m_Open.back();
    m_Open.pop_back();
    if (ended.isKnown) end(ended.name);
}

void DocumentCheck::checkText(const QXmlStreamReader& reader, const XmlPlace& place) {
    if (reader.isWhitespace() || m_Open.empty() || !m_Open.back().isKnown) return;
    find(place, "text in " + tag(m_Open.back().name) + " that nothing reads",
         "put it into an attribute or a comment, or take it out");
}

// The innermost element is mostly the one that has no end.
void DocumentCheck::tellError(const QXmlStreamReader& reader) {
    QStringList open;
    for (const Open& element : m_Open) open.append(tag(element.name) + " of " + lineText(element.place));
    find(placeOf(reader), reader.errorString().simplified(),
         open.isEmpty()
             ? QString("nothing is read from such a file; write it as XML in UTF-8")
             : "nothing behind it is read; mend it, and look whether each of these has its end: " + open.join(", "));
}

QString DocumentCheck::required(const XmlElement& element, const char* attribute) {
    const QString value = element.value(attribute);
    if (value.isEmpty())
        find(element.place, tag(element.name) + (element.has(attribute) ? " has an empty " : " has no ") + attribute,
             QString("write %1=\"...\"").arg(attribute));
    return value;
}

const ElementRule* DocumentCheck::ruleOf(const XmlElement& element) const {
    for (const ElementRule& rule : m_Rules)
        if (element.parent == QLatin1String(rule.parent) && element.name == QLatin1String(rule.name)) return &rule;
    return nullptr;
}

QStringList DocumentCheck::namesIn(const QString& parent) const {
    QStringList names;
    for (const ElementRule& rule : m_Rules)
        if (parent == QLatin1String(rule.parent)) names.append(rule.name);
    return names;
}
