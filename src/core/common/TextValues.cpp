// SPDX-License-Identifier: MIT
#include "TextValues.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTextBoundaryFinder>

#include "Change.h"

namespace {

// A terminal shows the marks themselves.
bool hasWindows() {
    const QCoreApplication* const application = QCoreApplication::instance();
    return application && application->inherits("QGuiApplication");
}

bool isRightToLeft() { return QLocale(Change::GetLangName()).textDirection() == Qt::RightToLeft; }

// A window would become as wide as the longest word in it: what is longer than this may be broken.
constexpr int LongestWord = 32;

QString breakable(const QString& word) {
    constexpr ushort ZeroWidthSpace = 0x200b;
    QString text;
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, word);
    int begin = 0;
    for (int count = 1; letters.toNextBoundary() >= 0; ++count) {
        if (count % LongestWord != 0 || letters.position() == word.size()) continue;
        text += word.mid(begin, letters.position() - begin) + QChar(ZeroWidthSpace);
        begin = letters.position();
    }
    return text + word.mid(begin);
}

QString withBreakableWords(const QString& value) {
    if (value.size() <= LongestWord) return value;
    QString text;
    QTextBoundaryFinder lines(QTextBoundaryFinder::Line, value);
    for (int begin = 0; begin < value.size(); begin = lines.position()) {
        lines.toNextBoundary();
        text += breakable(value.mid(begin, lines.position() - begin));
    }
    return text;
}

}  // namespace

QString TextValues::isolated(const QString& value) {
    constexpr ushort FirstStrongIsolate = 0x2068, PopDirectionalIsolate = 0x2069;
    if (value.isEmpty() || !hasWindows()) return value;
    const QString text = withBreakableWords(value);
    return isRightToLeft() ? QChar(FirstStrongIsolate) + text + QChar(PopDirectionalIsolate) : text;
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
