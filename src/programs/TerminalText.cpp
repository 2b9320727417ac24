// SPDX-License-Identifier: MIT
#include "TerminalText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <algorithm>
#include <clocale>
#include <cwchar>
#include <numeric>

namespace {

struct Range {
    uint first;
    uint last;
};

// Characters without width whose category is that of a letter or of a mark. Marks that can be seen are not among them.
constexpr Range InvisibleLetters[] = {
    {0x34f, 0x34f},   {0x115f, 0x1160}, {0x17b4, 0x17b5}, {0x180b, 0x180f}, {0x2065, 0x2065},
    {0x3164, 0x3164}, {0xfe00, 0xfe0f}, {0xffa0, 0xffa0}, {0xfff0, 0xfff8}, {0xe0000, 0xe0fff},
};

bool isHidden(uint character) {
    switch (QChar::category(character)) {
        case QChar::Other_Control:
        case QChar::Other_Format:
        case QChar::Other_Surrogate:
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
            return true;
        default:
            return std::any_of(std::begin(InvisibleLetters), std::end(InvisibleLetters),
                               [&](Range range) { return character >= range.first && character <= range.last; });
    }
}

QString escaped(QChar unit) { return QString("\\u%1").arg(int(unit.unicode()), 4, 16, QLatin1Char('0')); }

// Goes through the characters of a text; a hidden one becomes what the function makes of its code units.
template <class Function>
QString withHidden(const QString& text, Function replace) {
    QString result;
    result.reserve(text.size());
    for (int i = 0, size = 0; i < text.size(); i += size) {
        const bool isPair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        size = isPair ? 2 : 1;
        const QChar* const units = text.constData() + i;
        if (isHidden(isPair ? QChar::surrogateToUcs4(text[i], text[i + 1]) : text[i].unicode()))
            result += replace(units, size);
        else
            result.append(units, size);
    }
    return result;
}

QString jsonString(const QString& text) {
    QString quoted = text;
    quoted.replace('\\', "\\\\").replace('"', "\\\"");
    const auto escapes = [](const QChar* units, int size) {
        return std::accumulate(units, units + size, QString(),
                               [](QString sum, QChar unit) { return sum + escaped(unit); });
    };
    return '"' + withHidden(quoted, escapes) + '"';
}

// A number, true, false or null.
QString jsonWord(const QJsonValue& value) {
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromLatin1(array.mid(1, array.size() - 2));
}

}  // namespace

QString TerminalText::printable(const QString& text) {
    return withHidden(text, [](const QChar*, int) { return QChar(QChar::ReplacementCharacter); });
}

// The C library's own word for it, whatever the locale. Where it has none every character takes one.
int TerminalText::columns(const QString& text) {
    static const locale_t utf8 = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    if (!utf8) return text.size();
    const locale_t before = ::uselocale(utf8);
    int taken = 0;
    for (const uint character : text.toUcs4()) taken += std::max(0, ::wcwidth(wchar_t(character)));
    ::uselocale(before);
    return taken;
}

QString TerminalText::padded(const QString& text, int count) {
    return text + QString(std::max(0, count - columns(text)), ' ');
}

// QJsonDocument's own text would hold them as they are, and a question mark for half a pair.
QString TerminalText::json(const QJsonValue& value) {
    QStringList parts;
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (auto member = object.begin(); member != object.end(); ++member)
            parts.append(jsonString(member.key()) + ':' + json(member.value()));
        return '{' + parts.join(',') + '}';
    }
    if (value.isArray()) {
        for (const auto& element : value.toArray()) parts.append(json(element));
        return '[' + parts.join(',') + ']';
    }
    return value.isString() ? jsonString(value.toString()) : jsonWord(value);
}
