// SPDX-License-Identifier: MIT
#include "XmlText.h"

#include "ReasonText.h"

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

void refuseDeclarations(QXmlStreamReader& reader) {
    if (reader.tokenType() != QXmlStreamReader::DTD) return;
    const QString type = reader.text().toString();
    if (type.contains(QLatin1String("<!ENTITY")) || type.contains(QLatin1String("<!ATTLIST")))
        reader.raiseError(reasonText("the document type declares entities or attributes"));
}

}  // namespace XmlText
