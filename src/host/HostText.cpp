// SPDX-License-Identifier: MIT
#include "HostText.h"

#include <QGuiApplication>

#include "TextValues.h"

QString directed(const QString& line) {
    constexpr ushort RightToLeftMark = 0x200f;
    return QGuiApplication::isRightToLeft() && !line.isEmpty() ? QChar(RightToLeftMark) + line : line;
}

QString hostText(const char* id, const QStringList& values) {
    return directed(TextValues::filled(hostText(id), values));
}
