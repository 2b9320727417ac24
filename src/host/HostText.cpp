// SPDX-License-Identifier: MIT
#include "HostText.h"

#include <QGuiApplication>

QString isolated(const QString& value) {
    constexpr ushort FirstStrongIsolate = 0x2068, PopDirectionalIsolate = 0x2069;
    if (!QGuiApplication::isRightToLeft()) return value;
    return QChar(FirstStrongIsolate) + value + QChar(PopDirectionalIsolate);
}

QString directed(const QString& line) {
    constexpr ushort RightToLeftMark = 0x200f;
    return QGuiApplication::isRightToLeft() && !line.isEmpty() ? QChar(RightToLeftMark) + line : line;
}

QString hostText(const char* id, const QStringList& values) {
    const QStringList parts = hostText(id).split(QLatin1Char('%'));
    QString text = parts.first();
    for (int i = 1; i < parts.size(); ++i) {
        const int number = parts[i].left(1).toInt();
        const bool isPlace = number >= 1 && number <= values.size();
        text += isPlace ? isolated(values[number - 1]) + parts[i].mid(1) : QLatin1Char('%') + parts[i];
    }
    return directed(text);
}
