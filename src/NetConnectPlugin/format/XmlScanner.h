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
        int i = 0;
        while (i < size && begin[i] == name[i]) ++i;
        return i == size && name[i] == 0;
    }
    QString toString() const;

    const char* begin;
    int size;
    bool isPlain;  // ASCII without references
};
uint qHash(const XmlPiece& piece);

// The plain form: UTF-8 without a mark; the declaration exactly as we write it, or none; elements, comments, white
// space and nothing else; each attribute after one blank, in double quotes; only the references that a writer makes.
// Whatever is said here is what Qt's reader says of the same document. At the first thing that it does not know the
// scanner gives up, and the document must be read again as a whole.
//
// An element's attributes are mostly those of the element before it, at the same places and often with the same values:
// what reads alike is compared instead of scanned, and keeps the piece that it has.
class XmlScanner {
public:
    enum Token { StartElement, EndElement, End, Unknown };
    enum { MostAttributes = 24 };

    // Refers to the document, which must end in a null character, as every QByteArray does that owns its bytes.
    explicit XmlScanner(const QByteArray& document);

    Token next();

    // Of the element that starts or ends here.
    bool isNamed(const char* name) const { return m_Name == name; }

    // Of the element that starts here.
    int attributeCount() const { return m_AttributeCount; }
    const XmlPiece& attributeName(int index) const { return m_AttributeNames[index]; }
    const XmlPiece& attributeValue(int index) const { return m_AttributeValues[index]; }

    // An attribute's value; null for an attribute that is not there.
    const XmlPiece* find(const char* attribute) const;
    QString value(const char* attribute) const;

private:
    enum { MostDepth = 16 };

    Token endElement();
    bool skipComment();
    Token scanStartTag();
    Token scanEndTag();
    bool scanName(XmlPiece* name);
    bool scanAttribute();
    bool scanAttributeName(XmlPiece* name);
    bool scanValue(XmlPiece* value);
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
    int m_AttributeCount;
    int m_FormerCount;         // of the attributes of the element that started before
    bool m_AreNamesFormer;     // all of the names so far are those of that element
    quint64 m_AttributeMarks;  // otherwise a bit for each name, which others may share
    XmlPiece m_AttributeNames[MostAttributes];
    XmlPiece m_AttributeValues[MostAttributes];
    XmlPiece m_Attributes[MostAttributes];  // each with all that belongs to it, as it was last scanned
};

#endif
