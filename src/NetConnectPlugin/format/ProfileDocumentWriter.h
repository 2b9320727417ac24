// Writes documents of the profile format into memory.
#ifndef ORBISDIAL_PROFILEDOCUMENTWRITER_H
#define ORBISDIAL_PROFILEDOCUMENTWRITER_H

#include <QByteArray>
#include <QString>
#include <QXmlStreamWriter>

#include "NetConnectRecords.h"

// Usage: make one, which writes the root; write; finish().
class ProfileDocumentWriter {
public:
    ProfileDocumentWriter();

    // For what no function here writes. It stands in the root, or in the group once that is started.
    QXmlStreamWriter& xml() { return m_Writer; }

    // Starts the group in which profiles and the template stand.
    void startGroup();

    void writeProfile(const DialupProfile& profile);

    // The whole document as UTF-8; empty when a text held what XML can't.
    QByteArray finish();

private:
    Q_DISABLE_COPY(ProfileDocumentWriter)

    // The writer would encode every piece by itself on its way into bytes, which takes longer than all the rest.
    QString m_Text;
    QXmlStreamWriter m_Writer;
};

#endif
