// SPDX-License-Identifier: MIT
#include "TextValues.h"

#include <QCoreApplication>
#include <QLocale>

#include "Change.h"

namespace {

// A terminal shows the marks themselves.
bool hasWindows() {
    const QCoreApplication* const application = QCoreApplication::instance();
    return application && application->inherits("QGuiApplication");
}

bool isRightToLeft() { return QLocale(Change::GetLangName()).textDirection() == Qt::RightToLeft; }

}  // namespace

QString TextValues::isolated(const QString& value) {
    constexpr ushort FirstStrongIsolate = 0x2068, PopDirectionalIsolate = 0x2069;
    if (value.isEmpty() || !isRightToLeft() || !hasWindows()) return value;
    return QChar(FirstStrongIsolate) + value + QChar(PopDirectionalIsolate);
}

QString TextValues::filled(const QString& text, const QStringList& values) {
    const QStringList parts = text.split('%');
    QString filled = parts.first();
    for (int i = 1; i < parts.size(); ++i) {
        const int number = parts[i].left(1).toInt();
        const bool isPlace = number >= 1 && number <= values.size();
        filled += isPlace ? isolated(values[number - 1]) + parts[i].mid(1) : '%' + parts[i];
    }
    return filled;
}
