// SPDX-License-Identifier: MIT
#include "XmlEncoding.h"

#include <QtGlobal>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#include <QTextDecoder>
#else
#include <QStringDecoder>
#endif

XmlEncoding XmlEncoding::ofBeginning(const QByteArray& document) {
    const struct {
        QByteArray beginning;
        const char* name;
    } encodings[] = {
        {QByteArray("\0\0\xfe\xff", 4), "UTF-32"}, {QByteArray("\xff\xfe\0\0", 4), "UTF-32"},
        {QByteArray("<\0\0\0", 4), "UTF-32LE"},    {QByteArray("\0\0\0<", 4), "UTF-32BE"},
        {QByteArray("\xfe\xff", 2), "UTF-16"},     {QByteArray("\xff\xfe", 2), "UTF-16"},
        {QByteArray("<\0", 2), "UTF-16LE"},        {QByteArray("\0<", 2), "UTF-16BE"},
    };
    for (size_t i = 0; i < sizeof(encodings) / sizeof(encodings[0]); ++i)
        if (document.startsWith(encodings[i].beginning)) return XmlEncoding(encodings[i].name);
    return XmlEncoding("UTF-8");
}

bool XmlEncoding::isUtf8() const { return *this == XmlEncoding("UTF-8"); }

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

// One encoding has many names.
bool XmlEncoding::operator==(const XmlEncoding& other) const {
    return QTextCodec::codecForName(m_Name) == QTextCodec::codecForName(other.m_Name);
}

struct XmlEncoding::Decoder::Private {
    explicit Private(const QByteArray& name) : decoder(QTextCodec::codecForName(name)->makeDecoder()) {}
    QString decoded(const char* piece, int size) { return decoder->toUnicode(piece, size); }
    QScopedPointer<QTextDecoder> decoder;
};

#else

bool XmlEncoding::operator==(const XmlEncoding& other) const {
    return QStringConverter::encodingForName(m_Name) == QStringConverter::encodingForName(other.m_Name);
}

struct XmlEncoding::Decoder::Private {
    explicit Private(const QByteArray& name) : decoder(name.constData()) {}
    QString decoded(const char* piece, int size) { return decoder(QByteArrayView(piece, size)); }
    QStringDecoder decoder;
};

#endif

XmlEncoding::Decoder::Decoder(const XmlEncoding& encoding) : d(new Private(encoding.m_Name)) {}

XmlEncoding::Decoder::~Decoder() {}

QString XmlEncoding::Decoder::decoded(const char* piece, int size) { return d->decoded(piece, size); }
