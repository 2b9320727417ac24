// SPDX-License-Identifier: MIT
// The encodings that the XML reader knows.
#ifndef ORBISDIAL_XMLENCODING_H
#define ORBISDIAL_XMLENCODING_H

#include <QByteArray>
#include <QScopedPointer>
#include <QString>

class XmlEncoding {
public:
    // The one that the reader takes a document's bytes for at first (XML 1.0, appendix F.1).
    static XmlEncoding ofBeginning(const QByteArray& document);
    // By the name in an XML declaration, which the reader has taken without an error.
    explicit XmlEncoding(const QByteArray& name) : m_Name(name) {}

    bool isUtf8() const;
    bool operator==(const XmlEncoding& other) const;

    // Decodes piece by piece.
    class Decoder {
    public:
        explicit Decoder(const XmlEncoding& encoding);
        ~Decoder();
        QString decoded(const char* piece, int size);

    private:
        Q_DISABLE_COPY(Decoder)
        struct Private;
        QScopedPointer<Private> d;
    };

private:
    QByteArray m_Name;
};

#endif
