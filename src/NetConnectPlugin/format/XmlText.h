// SPDX-License-Identifier: MIT
// What the readers and writers of XML share.
#ifndef ORBISDIAL_XMLTEXT_H
#define ORBISDIAL_XMLTEXT_H

#include <QByteArray>
#include <QString>
#include <QXmlStreamReader>

#include "QtCompat.h"

// The element that a reader stands on, asked as a scanner's is.
class XmlReaderElement {
public:
    explicit XmlReaderElement(const QXmlStreamReader& reader) : m_Reader(reader), m_Attributes(reader.attributes()) {}
    bool isNamed(const char* name) const { return m_Reader.name() == QLatin1String(name); }
    QString value(const char* attribute) const { return m_Attributes.value(QLatin1String(attribute)).toString(); }
    QString commonValue(const char* attribute) const { return value(attribute); }
    int attributeCount() const { return m_Attributes.size(); }
    TextPart attributeName(int index) const { return m_Attributes.at(index).qualifiedName(); }
    TextPart attributeValue(int index) const { return m_Attributes.at(index).value(); }
    bool hasFormerNames() const { return false; }
    int nextChanged(int index) const { return index; }

private:
    const QXmlStreamReader& m_Reader;
    const QXmlStreamAttributes m_Attributes;
};

namespace XmlText {

// The text without the characters that XML 1.0 forbids and without halves of surrogate pairs. The writer would
// otherwise make a file that no reader takes.
QString clean(const QString& text);

// A document of more elements is refused, and none is written: each costs far more memory than bytes of the file.
enum { MostElements = 1000000 };

const qint64 LargestDocument = 256 * 1024 * 1024;  // bytes; a larger file is neither read nor written

// Why a document can't be given to the reader at all, in English; null when it can. Whatever encoding it has, the
// reader's time and memory stay in proportion to its size then; without that a hostile element of very many
// attributes would hold the program up for hours.
QString refusal(const QByteArray& document);

// Raises an error in the reader when it stands on a document type that declares entities or attributes: no file of
// ours does, and their expansion has no bound.
void refuseDeclarations(QXmlStreamReader& reader);

}  // namespace XmlText

#endif
