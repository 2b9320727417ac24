// SPDX-License-Identifier: MIT
// Texts in the encodings of files.
#ifndef ORBISDIAL_ENCODED_H
#define ORBISDIAL_ENCODED_H

#include <QString>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#else
#include <QStringEncoder>
#endif

enum class ByteOrderMark { None, AsUsual };  // as usual: with the encodings that leave the order open

inline QByteArray encoded(const QString& text, const QByteArray& encoding,
                          ByteOrderMark mark = ByteOrderMark::AsUsual) {
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    const bool isPlain = mark == ByteOrderMark::None;
    QTextEncoder encoder(QTextCodec::codecForName(encoding),
                         isPlain ? QTextCodec::IgnoreHeader : QTextCodec::DefaultConversion);
    return encoder.fromUnicode(text);
#else
    const bool isOpen = encoding == "UTF-16" || encoding == "UTF-32";
    const bool isMarked = isOpen && mark == ByteOrderMark::AsUsual;
    QStringEncoder encoder(encoding.constData(),
                           isMarked ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
    return encoder.encode(text);
#endif
}

#endif
