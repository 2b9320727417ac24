// SPDX-License-Identifier: MIT
// Reads XML in the plain form that our own tools write, several times as fast as Qt's reader, which is there for
// everything else.
#ifndef ORBISDIAL_XMLSCANNER_H
#define ORBISDIAL_XMLSCANNER_H

#include <string.h>

#include <QByteArray>
#include <QString>

// A stretch of a document's bytes: an ASCII name, or a value as it stands in the file. The document must outlive it.
struct XmlPiece {
    XmlPiece() : begin(""), size(0), isPlain(true) {}
    bool operator==(const XmlPiece& other) const {
        return size == other.size && (begin == other.begin || memcmp(begin, other.begin, size_t(size)) == 0);
    }
    bool operator==(const char* name) const {
        return size_t(size) == strlen(name) && memcmp(begin, name, size_t(size)) == 0;
    }
    bool isText(const QString& text) const { return isPlain ? isPlainText(text) : decoded() == text; }
    QString toString() const { return isPlain ? QString::fromLatin1(begin, size) : decoded(); }

    const char* begin;
    int size;
    bool isPlain;  // ASCII without references

private:
    bool isPlainText(const QString& text) const {
        if (text.size() != size) return false;
        int i = 0;
        while (i < size && text.at(i).unicode() == static_cast<unsigned char>(begin[i])) ++i;
        return i == size;
    }
    QString decoded() const;
};
uint qHash(const XmlPiece& piece);

// The plain form: UTF-8 without a mark; the declaration exactly as we write it, or none; elements, comments, white
// space and nothing else; each attribute after one blank, in double quotes; only the references that a writer makes.
// Whatever is said here is what Qt's reader says of the same document. At the first thing that it does not know the
// scanner gives up, and the document must be read again as a whole.
//
// An element's attributes are mostly those of the last element of its name, at the same places and often with the same
// values: what reads alike is compared instead of scanned, all of it at once, and keeps the pieces that it has.
class XmlScanner {
public:
    enum Token { StartElement, EndElement, End, Unknown };
    enum { MostAttributes = 24 };

    // Refers to the document, which must end in a null character, as every QByteArray does that owns its bytes.
    explicit XmlScanner(const QByteArray& document);

    Token next();

    // Of the element that starts or ends here.
    bool isNamed(const char* name) const { return m_Name == name; }

    // Of the element that starts here, from its angle bracket on.
    const char* elementBegin() const { return m_Tag->begin - m_Name.size - 1; }
    int attributeCount() const { return m_AttributeCount; }
    const XmlPiece& attributeName(int index) const { return m_Tag->names[index]; }
    const XmlPiece& attributeValue(int index) const { return m_Tag->values[index]; }

    // Whether the last element of this name had the same attributes in the same order; their values may differ.
    bool hasFormerNames() const { return m_AreNamesFormer && m_AttributeCount == m_FormerCount; }

    // The first attribute from a place on that does not have the value, too, that it had there.
    int nextChanged(int index) const {
        if (!hasFormerNames()) return index;
        quint32 changed = m_Changed >> index;
        if (changed == 0) return m_AttributeCount;
        for (; !(changed & 1); changed >>= 1) ++index;
        return index;
    }

    // An attribute's value; null for an attribute that is not there. The name is a literal, of Size - 1 characters.
    template <int Size>
    const XmlPiece* find(const char (&attribute)[Size]) const {
        for (int i = 0; i < m_AttributeCount; ++i) {
            const XmlPiece& name = m_Tag->names[i];
            if (name.size == Size - 1 && memcmp(name.begin, attribute, Size - 1) == 0) return &m_Tag->values[i];
        }
        return nullptr;
    }
    template <int Size>
    QString value(const char (&attribute)[Size]) const {
        const XmlPiece* const piece = find(attribute);
        return piece ? piece->toString() : QString();
    }

private:
    enum { MostDepth = 16, TagCount = 4 };

    // The attributes of the last element of a name.
    struct Tag {
        Tag() : begin(nullptr), end(nullptr), count(0) {}

        XmlPiece name;
        const char* begin;  // where they stand
        const char* end;
        int count;
        XmlPiece names[MostAttributes];
        XmlPiece values[MostAttributes];
        int sizes[MostAttributes];  // in bytes, with the blank before
    };

    Token endElement();
    void skipBlanks();
    bool skipComment();
    Token scanStartTag();
    Token scanEndTag();
    bool scanName(XmlPiece* name);
    bool scanElementName();
    void beginAttributes();
    int skipFormer();
    bool scanAttribute(int alike);
    bool scanAttributeStart(XmlPiece* name, int alike);
    bool scanValue(XmlPiece* value, int known);
    bool isNewAttribute(const XmlPiece& name);
    bool skipIf(const char* text);
    bool isHere(const XmlPiece& piece) const;
    void leaveFormer();

    const char* m_At;
    const char* m_End;
    XmlPiece m_Name;
    XmlPiece m_Open[MostDepth];
    int m_Depth;
    int m_Elements;
    bool m_IsEmptyElement;
    Tag m_Tags[TagCount];
    Tag* m_Tag;  // of the element that started last; up to m_AttributeCount its attributes are this element's already
    int m_NextTag;  // the one that a new name takes
    int m_AttributeCount;
    const char* m_Former;      // in the last element of that name the attribute at the place that is scanned next
    const char* m_FormerEnd;   // where its attributes end
    int m_FormerCount;         // how many they are; -1 for no such element
    bool m_AreNamesFormer;     // all of the names so far are those of that element
    quint32 m_Changed;         // then a bit for each value that is not
    quint64 m_AttributeMarks;  // otherwise a bit for each name, which others may share
};

#endif
