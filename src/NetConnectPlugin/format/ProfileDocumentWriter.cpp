// SPDX-License-Identifier: MIT
#include "ProfileDocumentWriter.h"

#include <string.h>

#include "XmlText.h"

namespace {

bool isShared(const DialupProfile& one, const DialupProfile& other, int field) {
    QString DialupProfile::*const member = DialupProfileFields[field].member;
    return (one.*member).isSharedWith(other.*member);
}

// What stands before the value of every field.
QVector<QByteArray> makeFieldStarts() {
    QVector<QByteArray> starts;
    for (int i = 0; i < DialupProfileFieldCount; ++i)
        starts.append(QByteArray(" ") + DialupProfileFields[i].attribute + "=\"");
    return starts;
}

// The characters below 64 that stand for themselves, a bit each; those from 64 to 127 all do.
bool isPlain(ushort c) {
    const quint64 below64 =
        ~quint64(0xffffffff) & ~(quint64(1) << '"' | quint64(1) << '&' | quint64(1) << '<' | quint64(1) << '>');
    return c < 0x80 && (c >= 0x40 || (below64 >> c & 1));
}

// The length of a UTF-8 sequence's first byte decides its marks (RFC 3629).
char* writeUtf8(uint c, char* to) {
    if (c >= 0x10000) {
        *to++ = char(0xf0 | c >> 18);
        *to++ = char(0x80 | (c >> 12 & 0x3f));
    } else if (c >= 0x800) {
        *to++ = char(0xe0 | c >> 12);
    } else {
        *to++ = char(0xc0 | c >> 6);
    }
    if (c >= 0x800) *to++ = char(0x80 | (c >> 6 & 0x3f));
    *to++ = char(0x80 | (c & 0x3f));
    return to;
}

// What a character of an attribute's value is written as that does not stand for itself; null where nothing can.
const char* escaped(ushort c) {
    switch (c) {
        case '<':
            return "&lt;";
        case '>':
            return "&gt;";
        case '&':
            return "&amp;";
        case '"':
            return "&quot;";
        case '\t':
            return "&#9;";
        case '\n':
            return "&#10;";
        case '\r':
            return "&#13;";
        default:
            return nullptr;
    }
}

// A character that does not stand for itself, or a pair of surrogates.
char* writeSpecial(const QChar** from, const QChar* end, char* to, bool* isClean, bool* hasError) {
    const QChar c = *(*from)++;
    if (c.isHighSurrogate() && *from != end && (*from)->isLowSurrogate())
        return writeUtf8(QChar::surrogateToUcs4(c, *(*from)++), to);
    if (c.isHighSurrogate() || c.isLowSurrogate()) {  // as Qt converts halves
        *isClean = false;
        *to++ = '?';
        return to;
    }
    if (c.unicode() >= 0x7f && c.unicode() < 0xfffe) return writeUtf8(c.unicode(), to);
    const char* const text = escaped(c.unicode());
    if (!text) {
        *isClean = false;
        *hasError = true;
    }
    for (const char* at = text; at && *at; ++at) *to++ = *at;
    return to;
}

const int SmallestRoom = 4096;
const int LongestCharacter = 6;  // bytes that a UTF-16 code unit becomes: &quot;

}  // namespace

ProfileDocumentWriter::ProfileDocumentWriter()
    : m_Size(0), m_Tag(Closed), m_Elements(0), m_HasError(false), m_IsClean(true) {
    static const char Declaration[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";
    append(Declaration, int(sizeof(Declaration)) - 1);
    startElement("vrksdoc");
    attribute("type", QLatin1String("Profile"));
}

void ProfileDocumentWriter::startGroup() {
    startElement("ProfileGroup");
    attribute("type", QLatin1String("Dailup"));  // the format's own spelling
}

void ProfileDocumentWriter::startElement(const char* name) {
    beginTag(name, Started);
    m_Open.append(name);
}

void ProfileDocumentWriter::emptyElement(const char* name) { beginTag(name, Empty); }

void ProfileDocumentWriter::endElement() {
    const char* const name = m_Open.last();
    m_Open.pop_back();
    if (m_Tag == Started) {  // without content it is an empty element after all
        m_Tag = Empty;
        return closeTag();
    }
    closeTag();
    breakLine();
    append("</", 2);
    append(name, int(strlen(name)));
    append(">", 1);
}

void ProfileDocumentWriter::attribute(const char* name, const QString& value) {
    append(" ", 1);
    append(name, int(strlen(name)));
    append("=\"", 2);
    appendValue(value);
}

void ProfileDocumentWriter::writeProfiles(const QList<DialupProfile>& profiles) {
    FieldPlaces places;
    for (int i = 0; i < profiles.size(); ++i) {
        beginTag("Profile", Empty);
        if (i == 0)
            appendFields(profiles.at(i), places);
        else
            appendFieldsAfter(profiles.at(i - 1), profiles.at(i), places);
    }
}

void ProfileDocumentWriter::appendFields(const DialupProfile& profile, FieldPlaces places) {
    for (int field = 0; field < DialupProfileFieldCount; ++field) {
        places[field] = m_Size;
        appendField(profile, field);
    }
    places[DialupProfileFieldCount] = m_Size;
}

// Most fields of profiles share their texts with those of the profile before: their bytes are there already.
void ProfileDocumentWriter::appendFieldsAfter(const DialupProfile& former, const DialupProfile& profile,
                                              FieldPlaces places) {
    int field = 0;
    while (field < DialupProfileFieldCount) {
        const int begin = places[field];
        const int offset = m_Size - begin;
        const int first = field;
        while (field < DialupProfileFieldCount && isShared(former, profile, field)) places[field++] += offset;
        const int end = places[field];
        if (field > first) repeat(begin, end - begin);
        if (field == DialupProfileFieldCount) break;
        places[field] = m_Size;
        appendField(profile, field++);
    }
    places[DialupProfileFieldCount] = m_Size;
}

void ProfileDocumentWriter::appendField(const DialupProfile& profile, int field) {
    static const QVector<QByteArray> starts = makeFieldStarts();
    append(starts.at(field).constData(), starts.at(field).size());
    appendValue(profile.*DialupProfileFields[field].member);
}

QByteArray ProfileDocumentWriter::finish() {
    while (!m_Open.isEmpty()) endElement();
    append("\n", 1);
    m_Text.resize(m_Size);
    m_Text.squeeze();
    return m_HasError || m_Elements > XmlText::MostElements ? QByteArray() : m_Text;
}

void ProfileDocumentWriter::beginTag(const char* name, TagState state) {
    closeTag();
    breakLine();
    append("<", 1);
    append(name, int(strlen(name)));
    m_Tag = state;
    ++m_Elements;
}

void ProfileDocumentWriter::closeTag() {
    if (m_Tag == Started) append(">", 1);
    if (m_Tag == Empty) append("/>", 2);
    m_Tag = Closed;
}

void ProfileDocumentWriter::breakLine() {
    append("\n", 1);
    for (int i = 0; i < m_Open.size(); ++i) append("    ", 4);
}

void ProfileDocumentWriter::append(const char* text, int size) {
    makeRoom(size);
    memcpy(m_Text.data() + m_Size, text, size_t(size));
    m_Size += size;
}

// Appends what stands there already.
void ProfileDocumentWriter::repeat(int begin, int size) {
    makeRoom(size);
    memcpy(m_Text.data() + m_Size, m_Text.constData() + begin, size_t(size));
    m_Size += size;
}

// The value and the quotation mark after it.
void ProfileDocumentWriter::appendValue(const QString& value) {
    makeRoom(value.size() * LongestCharacter + 1);
    char* const start = m_Text.data() + m_Size;
    char* to = start;
    const QChar* const end = value.constData() + value.size();
    for (const QChar* from = value.constData(); from != end;) {
        if (isPlain(from->unicode()))
            *to++ = char((from++)->unicode());
        else
            to = writeSpecial(&from, end, to, &m_IsClean, &m_HasError);
    }
    *to++ = '"';
    m_Size += int(to - start);
}

void ProfileDocumentWriter::makeRoom(int size) {
    if (m_Text.size() - m_Size >= size) return;
    m_Text.resize(qMax(m_Text.size() * 2, m_Size + size + SmallestRoom));
}
