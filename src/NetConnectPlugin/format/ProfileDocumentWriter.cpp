#include "ProfileDocumentWriter.h"

#include <QStringList>

namespace {

// The fields' attributes as the writer wants them: making the texts anew for every profile takes as long as writing it.
QStringList makeAttributeNames() {
    QStringList names;
    for (int i = 0; i < DialupProfileFieldCount; ++i) names.append(QLatin1String(DialupProfileFields[i].attribute));
    return names;
}

}  // namespace

// The writer names no encoding when it writes into a string.
ProfileDocumentWriter::ProfileDocumentWriter()
    : m_Text(QLatin1String("<?xml version=\"1.0\" encoding=\"UTF-8\"?>")), m_Writer(&m_Text) {
    m_Writer.setAutoFormatting(true);
    m_Writer.writeStartElement(QLatin1String("vrksdoc"));
    m_Writer.writeAttribute(QLatin1String("type"), QLatin1String("Profile"));
}

void ProfileDocumentWriter::startGroup() {
    m_Writer.writeStartElement(QLatin1String("ProfileGroup"));
    m_Writer.writeAttribute(QLatin1String("type"), QLatin1String("Dailup"));  // the format's own spelling
}

void ProfileDocumentWriter::writeProfile(const DialupProfile& profile) {
    static const QStringList attributes = makeAttributeNames();
    m_Writer.writeEmptyElement(QLatin1String("Profile"));
    for (int i = 0; i < DialupProfileFieldCount; ++i)
        m_Writer.writeAttribute(attributes.at(i), profile.*DialupProfileFields[i].member);
}

QByteArray ProfileDocumentWriter::finish() {
    m_Writer.writeEndDocument();
    return m_Writer.hasError() ? QByteArray() : m_Text.toUtf8();
}
