#include "XmlText.h"

#include <string.h>

namespace XmlText {

static bool isAllowed(ushort c) {
    if (c < 0x20) return c == '\t' || c == '\n' || c == '\r';
    return c < 0xfffe;
}

// How many characters of the text, from a place on, belong together and may be written; 0 for one to drop.
static int allowedLength(const QString& text, int at) {
    const QChar c = text.at(at);
    if (c.isHighSurrogate()) return at + 1 < text.size() && text.at(at + 1).isLowSurrogate() ? 2 : 0;
    return !c.isLowSurrogate() && isAllowed(c.unicode()) ? 1 : 0;
}

// Most texts hold neither control characters nor surrogates nor the last code points.
static bool isPlain(const QString& text) {
    const QChar* const end = text.constData() + text.size();
    for (const QChar* c = text.constData(); c != end; ++c)
        if (c->unicode() < 0x20 || c->unicode() >= 0xd800) return false;
    return true;
}

QString clean(const QString& text) {
    if (isPlain(text)) return text;
    int at = 0;
    for (int length = 1; at < text.size() && length > 0; at += length) {
        length = allowedLength(text, at);
        if (length == 0) break;
    }
    if (at >= text.size()) return text;

    QString result = text.left(at);
    while (at < text.size()) {
        const int length = allowedLength(text, at);
        result += text.mid(at, length);
        at += qMax(length, 1);
    }
    return result;
}

// Counts the equals signs outside quotes between two places: the attributes of a tag.
static int countAttributes(const char* from, const char* end) {
    int count = 0;
    char quote = 0;
    for (; from != end; ++from) {
        if (quote != 0)
            quote = *from == quote ? 0 : quote;
        else if (*from == '"' || *from == '\'')
            quote = *from;
        else if (*from == '>')
            return count;
        else if (*from == '=')
            ++count;
    }
    return count;
}

QString refusal(const QByteArray& document) {
    const int mostAttributes = 1000;
    const int shortestAttribute = 5;  // a="" and a blank; two bytes a character only make it longer
    const char* const end = document.constData() + document.size();
    const char* tag = static_cast<const char*>(memchr(document.constData(), '<', size_t(document.size())));
    while (tag) {
        const char* next = static_cast<const char*>(memchr(tag + 1, '<', size_t(end - tag - 1)));
        const char* const stop = next ? next : end;
        if (stop - tag > mostAttributes * shortestAttribute && countAttributes(tag, stop) > mostAttributes)
            return QString::fromLatin1("an element has more than %1 attributes").arg(mostAttributes);
        tag = next;
    }
    return QString();
}

void refuseDeclarations(QXmlStreamReader& reader) {
    if (reader.tokenType() != QXmlStreamReader::DTD) return;
    const QString type = reader.text().toString();
    if (type.contains(QLatin1String("<!ENTITY")) || type.contains(QLatin1String("<!ATTLIST")))
        reader.raiseError(QLatin1String("the document type declares entities or attributes"));
}

}  // namespace XmlText
