// What the readers and writers of XML share.
#ifndef ORBISDIAL_XMLTEXT_H
#define ORBISDIAL_XMLTEXT_H

#include <QByteArray>
#include <QString>
#include <QXmlStreamReader>

namespace XmlText {

// The text without the characters that XML 1.0 forbids and without halves of surrogate pairs. The writer would
// otherwise make a file that no reader takes.
QString clean(const QString& text);

// Why a document can't be given to the reader at all, in English; null when it can. The reader's time grows with
// the square of an element's attributes, so a hostile element of very many would hold the program up for hours.
QString refusal(const QByteArray& document);

// Raises an error in the reader when it stands on a document type that declares entities or attributes: no file of
// ours does, and their expansion has no bound.
void refuseDeclarations(QXmlStreamReader& reader);

}  // namespace XmlText

#endif
