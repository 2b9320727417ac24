// SPDX-License-Identifier: MIT
// What is asked of a document before a reader may have it.
//
// The reader's time grows with the square of an element's attributes and with the namespaces in force, its memory with
// the depth of the elements, and it expands entities while it reads the declarations. So all these are counted first,
// in one pass that keeps nothing, over the very characters that the reader will see.

#include <algorithm>

#include "ReasonText.h"
#include "XmlEncoding.h"
#include "XmlText.h"

namespace {

// Far more than any file of ours has, and few enough that a hostile one is read as fast as a good one.
enum { MostAttributes = 100, MostDepth = 100, MostNamespaces = 100 };

// Follows the markup, as far as counting needs it. It stops where the reader will: nothing after that counts.
class MarkupCounter {
public:
    MarkupCounter()
        : m_State(Content),
          m_Around(Content),
          m_Quote(0),
          m_Matched(0),
          m_End(nullptr),
          m_IsEmptyElement(false),
          m_Depth(0),
          m_Declarations(0),
          m_Elements(0),
          m_Attributes(0),
          m_NamespaceLetters(0),
          m_Namespaces(0) {}

    template <class Character>
    void feed(const Character* at, const Character* end) {
        while (m_State != Stopped) {
            if (m_State == Content) at = std::find(at, end, Character('<'));
            if (at == end) return;
            step(ushort(*at++));
        }
    }

    // Null when there was nothing to refuse.
    QString refusal() const { return m_Refusal; }

private:
    enum State { Content, DocumentType, Opened, Exclamation, Passing, StartTag, EndTag, Quoted, Stopped };

    void step(ushort c) {
        switch (m_State) {
            case Content:
                m_State = c == '<' ? Opened : Content;
                break;
            case DocumentType:
                inDocumentType(c);
                break;
            case Opened:
                open(c);
                break;
            case Exclamation:
                exclaim(c);
                break;
            case Passing:
                pass(c);
                break;
            case StartTag:
                inStartTag(c);
                break;
            case EndTag:
                inEndTag(c);
                break;
            case Quoted:
                inQuotes(c);
                break;
            case Stopped:
                break;
        }
    }

    void open(ushort c) {
        if (c == '!') {
            m_State = Exclamation;
            m_Word.clear();
        } else if (c == '?') {
            passTo("?>");
        } else if (m_Around == DocumentType) {
            m_State = Stopped;
        } else if (c == '/') {
            m_State = EndTag;
        } else {
            startElement();
        }
    }

    void startElement() {
        m_State = StartTag;
        m_IsEmptyElement = false;
        m_Attributes = m_NamespaceLetters = 0;
        if (++m_Depth > MostDepth) refuse("elements stand more than %1 deep in one another", MostDepth);
        if (++m_Elements > XmlText::MostElements) refuse("there are more than %1 elements", XmlText::MostElements);
    }

    void endElement() {
        --m_Depth;
        m_State = Content;
    }

    // What an exclamation mark may begin, inside a document type and outside.
    void exclaim(ushort c) {
        m_Word += c < 0x80 ? char(c) : '?';
        if (m_Word == "--") return passTo("-->");
        if (m_Around == Content && m_Word == "[CDATA[") return passTo("]]>");
        if (m_Around == Content && m_Word == "DOCTYPE") m_State = m_Around = DocumentType;
        if (m_Around == DocumentType && (m_Word == "ENTITY" || m_Word == "ATTLIST"))
            refuse("the document type declares entities or attributes");
        if (m_Around == DocumentType && (m_Word == "ELEMENT" || m_Word == "NOTATION")) {
            ++m_Declarations;
            m_State = DocumentType;
        }
        if (m_State == Exclamation && m_Word.size() > 8) m_State = Stopped;
    }

    // Passes over everything up to an end mark.
    void passTo(const char* end) {
        m_State = Passing;
        m_End = end;
        m_Matched = 0;
    }

    void pass(ushort c) {
        if (c == ushort(m_End[m_Matched]))
            ++m_Matched;
        else
            m_Matched = c == ushort(m_End[0]) ? qMax(m_Matched, 1) : 0;
        if (m_End[m_Matched] == 0) m_State = m_Around;
    }

    void inDocumentType(ushort c) {
        if (c == '<') {
            m_State = Opened;
        } else if (c == '"' || c == '\'') {
            quote(c);
        } else if (c == '>' && m_Declarations-- == 0) {
            m_State = m_Around = Content;
            m_Declarations = 0;
        }
    }

    void inStartTag(ushort c) {
        if (c == '>') {
            m_State = Content;
            if (m_IsEmptyElement) endElement();
        } else if (c == '<') {
            m_State = Stopped;
        } else if (c == '"' || c == '\'') {
            quote(c);
        } else if (c == '=' && ++m_Attributes > MostAttributes) {
            refuse("an element has more than %1 attributes", MostAttributes);
        }
        m_IsEmptyElement = c == '/';
        countNamespace(c);
    }

    void countNamespace(ushort c) {
        static const char Declaration[] = "xmlns";
        if (c == ushort(Declaration[m_NamespaceLetters]))
            ++m_NamespaceLetters;
        else
            m_NamespaceLetters = c == ushort(Declaration[0]) ? 1 : 0;
        if (Declaration[m_NamespaceLetters] != 0) return;
        m_NamespaceLetters = 0;
        if (++m_Namespaces > MostNamespaces) refuse("there are more than %1 namespaces", MostNamespaces);
    }

    void inEndTag(ushort c) {
        if (c == '>') endElement();
        if (c == '<') m_State = Stopped;
    }

    void quote(ushort c) {
        m_Quote = c;
        m_State = Quoted;
    }

    void inQuotes(ushort c) {
        if (c == m_Quote) m_State = m_Around == DocumentType ? DocumentType : StartTag;
        if (c == '<' && m_Around == Content) m_State = Stopped;  // no value may hold it
    }

    void refuse(const char* reason, int most = 0) {
        m_State = Stopped;
        m_Refusal = reasonText(reason);
        if (most > 0) m_Refusal = m_Refusal.arg(most);
    }

    State m_State;
    State m_Around;  // Content or DocumentType
    ushort m_Quote;
    int m_Matched;      // characters of the end mark
    const char* m_End;  // the mark that ends what is passed over
    QByteArray m_Word;  // after an exclamation mark
    bool m_IsEmptyElement;
    int m_Depth;
    int m_Declarations;  // that are open in the document type
    int m_Elements;
    int m_Attributes;
    int m_NamespaceLetters;  // of the word "xmlns"
    int m_Namespaces;
    QString m_Refusal;
};

// Decodes piece by piece; the first characters, which the reader has taken in another encoding, are left out.
void feedDecoded(const QByteArray& document, const XmlEncoding& encoding, qint64 taken, MarkupCounter* counter) {
    const int pieceSize = 64 * 1024;  // bytes
    XmlEncoding::Decoder decoder(encoding);
    for (int at = 0; at < document.size(); at += pieceSize) {
        const QString piece = decoder.decoded(document.constData() + at, qMin(pieceSize, int(document.size()) - at));
        const int left = int(qMin(taken, qint64(piece.size())));
        taken -= left;
        counter->feed(piece.utf16() + left, piece.utf16() + piece.size());
    }
}

}  // namespace

namespace XmlText {

QString refusal(const QByteArray& document) {
    const int longestDeclaration = 4096;  // bytes
    QXmlStreamReader declaration(document.left(longestDeclaration));
    declaration.readNext();
    if (declaration.error() == QXmlStreamReader::PrematureEndOfDocumentError && document.size() > longestDeclaration)
        return reasonText("the XML declaration is too long");
    if (declaration.hasError()) return QString();  // the reader will tell

    const XmlEncoding first = XmlEncoding::ofBeginning(document);
    const QByteArray name = declaration.documentEncoding().toString().toLatin1();
    const XmlEncoding encoding = name.isEmpty() ? first : XmlEncoding(name);
    const qint64 taken = encoding == first ? 0 : declaration.characterOffset();
    MarkupCounter counter;
    if (encoding.isUtf8() && taken == 0)
        counter.feed(document.constData(), document.constData() + document.size());
    else
        feedDecoded(document, encoding, taken, &counter);
    return counter.refusal();
}

}  // namespace XmlText
