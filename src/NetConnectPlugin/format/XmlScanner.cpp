// SPDX-License-Identifier: MIT
#include "XmlScanner.h"

#include "XmlText.h"

namespace {

enum CharacterKind { NameStart = 1, NamePart = 2, ValuePart = 4, CommentPart = 8, Blank = 16 };

// What each byte may be part of. Bytes above ASCII are none of these: they are looked at one sequence at a time.
struct CharacterKinds {
    CharacterKinds() {
        memset(kinds, 0, sizeof(kinds));
        for (int c = 0x20; c < 0x80; ++c) kinds[c] = ValuePart | CommentPart;
        kinds[int('"')] = kinds[int('<')] = kinds[int('&')] = CommentPart;
        kinds[int('-')] = ValuePart;
        for (int c = '0'; c <= '9'; ++c) kinds[c] |= NamePart;
        for (int c = 'A'; c <= 'Z'; ++c) kinds[c] |= NameStart | NamePart;
        for (int c = 'a'; c <= 'z'; ++c) kinds[c] |= NameStart | NamePart;
        for (const char* c = " \t\n\r"; *c; ++c) kinds[int(*c)] |= Blank | CommentPart;
    }
    unsigned char kinds[256];
};
const CharacterKinds Characters;

bool is(char c, int kind) { return Characters.kinds[static_cast<unsigned char>(c)] & kind; }

const struct {
    const char* text;
    char character;
} References[] = {{"&lt;", '<'},  {"&gt;", '>'},   {"&amp;", '&'}, {"&quot;", '"'},
                  {"&#9;", '\t'}, {"&#10;", '\n'}, {"&#13;", '\r'}};
const int ReferenceCount = int(sizeof(References) / sizeof(References[0]));

// The reference that stands here; -1 for one that the writer does not make.
int referenceAt(const char* at) {
    for (int i = 0; i < ReferenceCount; ++i)
        if (strncmp(at, References[i].text, strlen(References[i].text)) == 0) return i;
    return -1;
}

quint64 markOf(const XmlPiece& name) {
    const int sum = name.begin[0] + 5 * name.begin[name.size - 1] + 11 * name.size;
    return quint64(1) << (sum & 63);
}

// How many of the next bytes are the same at both places.
int alikeSize(const char* one, const char* other, int most) {
    const int stride = int(sizeof(quint64));
    int size = 0;
    while (most - size >= stride && memcmp(one + size, other + size, sizeof(quint64)) == 0) size += stride;
    while (size < most && one[size] == other[size]) ++size;
    return size;
}

bool isTail(char c) { return (c & 0xc0) == 0x80; }

// The length of the UTF-8 sequence that stands here (RFC 3629); 0 for none, and for what no XML may hold or a byte
// order mark, which is told apart by its place.
int sequenceAt(const char* at) {
    const unsigned char first = static_cast<unsigned char>(at[0]);
    const unsigned char second = first ? static_cast<unsigned char>(at[1]) : 0;
    if (first < 0xc2 || first > 0xf4 || !isTail(at[1])) return 0;
    if (first < 0xe0) return 2;
    if (!isTail(at[2])) return 0;
    if (first < 0xf0) {
        const unsigned char third = static_cast<unsigned char>(at[2]);
        if ((first == 0xe0 && second < 0xa0) || (first == 0xed && second > 0x9f)) return 0;
        const bool isMark = second == 0xbb && third == 0xbf;
        const bool isForbidden = second == 0xbf && third >= 0xbe;
        return first == 0xef && (isMark || isForbidden) ? 0 : 3;
    }
    if ((first == 0xf0 && second < 0x90) || (first == 0xf4 && second > 0x8f)) return 0;
    return isTail(at[3]) ? 4 : 0;
}

QString squeezed(QString text) {
    text.squeeze();
    return text;
}

}  // namespace

QString XmlPiece::toString() const {
    if (isPlain) return QString::fromLatin1(begin, size);
    if (!memchr(begin, '&', size_t(size))) return squeezed(QString::fromUtf8(begin, size));
    QByteArray text;
    text.reserve(size);
    for (const char* at = begin; at != begin + size;) {
        const int reference = *at == '&' ? referenceAt(at) : -1;
        text += reference < 0 ? *at : References[reference].character;
        at += reference < 0 ? 1 : int(strlen(References[reference].text));
    }
    return squeezed(QString::fromUtf8(text.constData(), text.size()));
}

// FNV-1a
uint qHash(const XmlPiece& piece) {
    uint hash = 2166136261u;
    for (int i = 0; i < piece.size; ++i) hash = (hash ^ static_cast<unsigned char>(piece.begin[i])) * 16777619u;
    return hash ^ hash >> 16;
}

XmlScanner::XmlScanner(const QByteArray& document)
    : m_At(document.constData()),
      m_End(m_At + document.size()),
      m_Depth(0),
      m_Elements(0),
      m_IsEmptyElement(false),
      m_Tag(m_Tags),
      m_AttributeCount(0),
      m_Former(nullptr),
      m_FormerEnd(nullptr),
      m_FormerCount(-1),
      m_AreNamesFormer(false),
      m_Changed(0),
      m_AttributeMarks(0) {
    skipIf("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
}

XmlScanner::Token XmlScanner::next() {
    if (m_IsEmptyElement) return endElement();
    for (;;) {
        skipBlanks();
        if (m_At == m_End) return m_Depth == 0 && m_Elements > 0 ? End : Unknown;
        if (*m_At != '<') return Unknown;
        ++m_At;
        if (*m_At != '!') return *m_At == '/' ? scanEndTag() : scanStartTag();
        if (!skipIf("!--") || !skipComment()) return Unknown;
    }
}

bool XmlScanner::skipIf(const char* text) {
    const size_t size = strlen(text);
    if (strncmp(m_At, text, size) != 0) return false;
    m_At += size;
    return true;
}

// Whether a piece that was met before stands here again.
bool XmlScanner::isHere(const XmlPiece& piece) const {
    return piece.size > 0 && m_End - m_At >= piece.size && memcmp(m_At, piece.begin, size_t(piece.size)) == 0;
}

// A line break and the indentation after it, mostly.
void XmlScanner::skipBlanks() {
    if (is(*m_At, Blank)) ++m_At;
    const char indentation[] = "        ";
    const int size = int(sizeof(indentation)) - 1;
    while (m_End - m_At >= size && memcmp(m_At, indentation, size) == 0) m_At += size;
    while (is(*m_At, Blank)) ++m_At;
}

bool XmlScanner::skipComment() {
    for (;;) {
        while (is(*m_At, CommentPart)) ++m_At;
        if (skipIf("--")) return skipIf(">");
        const int length = *m_At == '-' ? 1 : sequenceAt(m_At);
        if (length == 0) return false;
        m_At += length;
    }
}

XmlScanner::Token XmlScanner::scanStartTag() {
    if (m_Depth == MostDepth || (m_Depth == 0 && m_Elements > 0) || ++m_Elements > XmlText::MostElements)
        return Unknown;
    if (!scanName(&m_Name)) return Unknown;
    m_Open[m_Depth++] = m_Name;
    beginAttributes();
    while (*m_At == ' ')
        if (!skipFormer() && !scanAttribute()) return Unknown;
    m_Tag->count = m_AttributeCount;
    m_Tag->end = m_At;
    m_IsEmptyElement = *m_At == '/';
    if (m_IsEmptyElement) ++m_At;
    if (*m_At != '>') return Unknown;
    ++m_At;
    return StartElement;
}

XmlScanner::Token XmlScanner::scanEndTag() {
    ++m_At;
    if (m_Depth == 0 || !isHere(m_Open[m_Depth - 1])) return Unknown;
    m_At += m_Open[m_Depth - 1].size;
    return skipIf(">") ? endElement() : Unknown;
}

XmlScanner::Token XmlScanner::endElement() {
    m_IsEmptyElement = false;
    m_Name = m_Open[--m_Depth];
    m_AttributeCount = 0;
    return EndElement;
}

// Names that begin with "xml" mean something to a reader.
bool XmlScanner::scanName(XmlPiece* name) {
    const int longest = 64;  // bytes
    name->begin = m_At;
    if (!is(*m_At, NameStart)) return false;
    while (is(*m_At, NamePart)) ++m_At;
    name->size = int(m_At - name->begin);
    return name->size <= longest && strncmp(name->begin, "xml", 3) != 0;
}

void XmlScanner::beginAttributes() {
    m_Tag = &m_Tags[m_Name.size % TagCount];
    const bool isKnown = m_Tag->name == m_Name;
    if (!isKnown) m_Tag->name = m_Name;
    m_Former = m_Tag->begin;
    m_FormerEnd = m_Tag->end;
    m_FormerCount = isKnown ? m_Tag->count : -1;
    m_Tag->begin = m_At;
    m_AttributeCount = 0;
    m_AreNamesFormer = true;
    m_Changed = 0;
}

// Goes over the attributes that read alike in the last element of the name; false when there is none here.
bool XmlScanner::skipFormer() {
    if (!m_AreNamesFormer || m_AttributeCount >= m_FormerCount) return false;
    const int alike = alikeSize(m_At, m_Former, int(qMin(m_FormerEnd - m_Former, m_End - m_At)));
    const int* const sizes = m_Tag->sizes;
    int size = 0;
    int place = m_AttributeCount;
    while (place < m_FormerCount && size + sizes[place] <= alike) size += sizes[place++];
    if (size == 0) return false;
    m_AttributeCount = place;
    m_Former += size;
    m_At += size;
    return true;
}

bool XmlScanner::scanAttribute() {
    if (m_AttributeCount == MostAttributes) return false;
    if (m_AttributeCount >= m_FormerCount) leaveFormer();
    const char* const begin = m_At++;
    if (!scanAttributeName(&m_Tag->names[m_AttributeCount]) || m_At[0] != '=' || m_At[1] != '"') return false;
    m_At += 2;
    if (!scanValue(&m_Tag->values[m_AttributeCount])) return false;
    int* const size = &m_Tag->sizes[m_AttributeCount];
    if (m_AreNamesFormer) m_Former += *size;
    *size = int(m_At - begin);
    m_Changed |= quint32(1) << m_AttributeCount;
    ++m_AttributeCount;
    return true;
}

bool XmlScanner::scanAttributeName(XmlPiece* name) {
    if (isHere(*name) && m_At[name->size] == '=') {
        m_At += name->size;
    } else {
        leaveFormer();
        if (!scanName(name)) return false;
    }
    return m_AreNamesFormer || isNewAttribute(*name);
}

// From here on the names are not those of the last element of the name, which are known to differ.
void XmlScanner::leaveFormer() {
    if (!m_AreNamesFormer) return;
    m_AreNamesFormer = false;
    m_AttributeMarks = 0;
    for (int i = 0; i < m_AttributeCount; ++i) m_AttributeMarks |= markOf(m_Tag->names[i]);
}

bool XmlScanner::isNewAttribute(const XmlPiece& name) {
    const quint64 mark = markOf(name);
    if (m_AttributeMarks & mark)
        for (int i = 0; i < m_AttributeCount; ++i)
            if (m_Tag->names[i] == name) return false;
    m_AttributeMarks |= mark;
    return true;
}

bool XmlScanner::scanValue(XmlPiece* value) {
    value->begin = m_At;
    value->isPlain = true;
    for (;;) {
        while (is(*m_At, ValuePart)) ++m_At;
        if (*m_At == '"') break;
        const int reference = *m_At == '&' ? referenceAt(m_At) : -1;
        const int length = reference < 0 ? sequenceAt(m_At) : int(strlen(References[reference].text));
        if (length == 0) return false;
        value->isPlain = false;
        m_At += length;
    }
    value->size = int(m_At - value->begin);
    ++m_At;
    return true;
}
