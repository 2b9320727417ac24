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
        for (const char* c = " \t\n\r"; *c; ++c) kinds[uchar(*c)] |= Blank | CommentPart;
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

// Skips so many bytes at both places if they are the same.
template <int Size>
bool skipAlike(const char** one, const char** other, const char* end) {
    if (end - *one < Size || memcmp(*one, *other, Size) != 0) return false;
    *one += Size;
    *other += Size;
    return true;
}

// How many of the next bytes are the same at both places.
int alikeSize(const char* one, const char* other, int most) {
    const char* const begin = one;
    const char* const end = one + most;
    while (skipAlike<16>(&one, &other, end)) {
    }
    skipAlike<8>(&one, &other, end);
    skipAlike<4>(&one, &other, end);
    skipAlike<2>(&one, &other, end);
    skipAlike<1>(&one, &other, end);
    return int(one - begin);
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

QString XmlPiece::decoded() const {
    const char* const end = begin + size;
    const char* const reference = static_cast<const char*>(memchr(begin, '&', size_t(size)));
    if (!reference) return squeezed(QString::fromUtf8(begin, size));
    QByteArray text;
    text.reserve(size);
    const char* from = begin;
    for (const char* at = reference; at; at = static_cast<const char*>(memchr(from, '&', size_t(end - from)))) {
        const int number = referenceAt(at);
        text.append(from, int(at - from));
        text += References[number].character;
        from = at + strlen(References[number].text);
    }
    text.append(from, int(end - from));
    return squeezed(QString::fromUtf8(text.constData(), text.size()));
}

// FNV-1a, which keeps texts apart that differ in a number.
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
      m_NextTag(0),
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

// Nothing, or a line break and the indentation after it, mostly.
inline void XmlScanner::skipBlanks() {
    if (!is(*m_At, Blank)) return;
    ++m_At;
    static const char indentation[] = "        ";
    for (const char* blanks = indentation; skipAlike<8>(&m_At, &blanks, m_End); blanks = indentation) {
    }
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
    if (!scanElementName()) return Unknown;
    m_Name = m_Open[m_Depth++] = m_Tag->name;
    beginAttributes();
    while (*m_At == ' ') {
        const int alike = skipFormer();
        if (*m_At == ' ' && !scanAttribute(alike)) return Unknown;
    }
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

// The name keeps the piece of the last element of that name, if there is one: then its attributes are known, too.
inline bool XmlScanner::scanElementName() {
    for (int i = 0; i < TagCount; ++i) {
        m_Tag = &m_Tags[i];
        if (*m_At != *m_Tag->name.begin || !isHere(m_Tag->name) || is(m_At[m_Tag->name.size], NamePart)) continue;
        m_At += m_Tag->name.size;
        m_FormerCount = m_Tag->count;
        return true;
    }
    m_FormerCount = -1;
    m_Tag = &m_Tags[m_NextTag++ % TagCount];
    return scanName(&m_Tag->name);
}

inline void XmlScanner::beginAttributes() {
    m_Former = m_Tag->begin;
    m_FormerEnd = m_Tag->end;
    m_Tag->begin = m_At;
    m_AttributeCount = 0;
    m_AreNamesFormer = true;
    m_Changed = 0;
}

// Goes over the attributes that read alike in the last element of the name. Answers how many bytes of the next one do.
inline int XmlScanner::skipFormer() {
    if (!m_AreNamesFormer || m_AttributeCount >= m_FormerCount) return 0;
    const int rest = int(m_FormerEnd - m_Former);
    const int alike = alikeSize(m_At, m_Former, qMin(rest, int(m_End - m_At)));
    const int* const sizes = m_Tag->sizes;
    int size = alike == rest ? rest : 0;
    int place = alike == rest ? m_FormerCount : m_AttributeCount;
    while (place < m_FormerCount && size + sizes[place] <= alike) size += sizes[place++];
    m_AttributeCount = place;
    m_Former += size;
    m_At += size;
    return alike - size;
}

inline bool XmlScanner::scanAttribute(int alike) {
    if (m_AttributeCount == MostAttributes) return false;
    if (m_AttributeCount >= m_FormerCount) leaveFormer();
    const char* const begin = m_At;
    XmlPiece* const value = &m_Tag->values[m_AttributeCount];
    if (!scanAttributeStart(&m_Tag->names[m_AttributeCount], alike)) return false;
    if (!scanValue(value, value->isPlain ? qMax(alike - int(m_At - begin), 0) : 0)) return false;
    int* const size = &m_Tag->sizes[m_AttributeCount];
    if (m_AreNamesFormer) m_Former += *size;
    *size = int(m_At - begin);
    m_Changed |= quint32(1) << m_AttributeCount;
    ++m_AttributeCount;
    return true;
}

// The blank, the name, and what stands between it and the value.
inline bool XmlScanner::scanAttributeStart(XmlPiece* name, int alike) {
    const int around = 3;  // bytes
    if (alike >= name->size + around) {
        m_At += name->size + around;
        return true;
    }
    ++m_At;
    if (isHere(*name) && m_At[name->size] == '=') {
        m_At += name->size;
    } else {
        leaveFormer();
        if (!scanName(name)) return false;
    }
    if (m_At[0] != '=' || m_At[1] != '"') return false;
    m_At += 2;
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

// So many bytes are known to be those that a plain value began with.
inline bool XmlScanner::scanValue(XmlPiece* value, int known) {
    value->begin = m_At;
    value->isPlain = true;
    m_At += known;
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
