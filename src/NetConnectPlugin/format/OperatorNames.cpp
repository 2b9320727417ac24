// SPDX-License-Identifier: MIT
#include "OperatorNames.h"

#include <algorithm>

#include "QtCompat.h"

namespace {

// Words at a name's end that tell no operator from another, in the folded form; sorted.
const char* const Fillers[] = {
    "ag",       "as",
    "bv",       "cellular",
    "co",       "communications",
    "company",  "corp",
    "gmbh",     "gsm",
    "inc",      "internet",
    "limited",  "llc",
    "ltd",      "lte",
    "mobil",    "mobile",
    "mobility", "movel",
    "movil",    "network",
    "networks", "nv",
    "oy",       "plc",
    "prepaid",  "sa",
    "spa",      "srl",
    "telecom",  "telecommunications",
    "wireless",
};

bool isBefore(const char* a, const QString& b) { return QLatin1String(a) < b; }

bool isFiller(const QString& word) {
    const char* const* const end = Fillers + sizeof(Fillers) / sizeof(Fillers[0]);
    const char* const* const found = std::lower_bound(Fillers, end, word, isBefore);
    return found != end && word == QLatin1String(*found);
}

// Cards name the country by its code, such as "O2 - de", or by the code's first letter, as vehicles do ("Orange F").
bool isCountry(const QString& word, const QString& country) {
    if (word.isEmpty() || country.isEmpty()) return false;
    return word == country || word == country.left(1) ||
           (country == QLatin1String("gb") && word == QLatin1String("uk"));
}

// The words without case and accents.
QStringList wordsOf(const QString& name) {
    const QString plain = name.normalized(QString::NormalizationForm_KD).toCaseFolded();
    QStringList words = QStringList(QString());
    for (int i = 0; i < plain.size(); ++i) {
        const QChar c = plain.at(i);
        if (c.isLetterOrNumber() || c.isHighSurrogate() || c.isLowSurrogate())
            words.last() += c;
        else if (!c.isMark() && !words.last().isEmpty())
            words.append(QString());
    }
    if (words.last().isEmpty()) words.removeLast();
    return words;
}

// A letter alone, as what would be left of "T-Mobile", is no name; a digit is, such as that of "3 Mobile".
bool isName(const QStringList& words) {
    const QString key = words.join(QString());
    return key.size() > 1 || (key.size() == 1 && key.at(0).isNumber());
}

bool dropAt(int index, QStringList* words) {
    QStringList rest = *words;
    rest.removeAt(index);
    if (!isName(rest)) return false;
    *words = rest;
    return true;
}

QStringList withoutFillers(QStringList words, const QString& country) {
    while (!words.isEmpty() && (isFiller(words.last()) || isCountry(words.last(), country)))
        if (!dropAt(words.size() - 1, &words)) break;
    if (!words.isEmpty() && isCountry(words.first(), country)) dropAt(0, &words);
    return words;
}

// The several names in one, such as "Happy/moviData" and "T-Mobile(Telekom)".
QStringList partsOf(const QString& name) { return name.split(patternOf("[/()]")); }

enum Exactness { Whole, Part, Core, ExactnessCount };

bool fits(const QString& name, const QString& country, const QStringList& card, Exactness exactness) {
    const QStringList words = wordsOf(name);
    if (exactness != Core) return words.join(QString()) == card.join(QString());
    return withoutFillers(words, country).join(QString()) == withoutFillers(card, country).join(QString());
}

bool fits(const OperatorEntry& entry, const QStringList& card, Exactness exactness) {
    for (int i = 0; i < entry.names.size(); ++i) {
        const QString& name = entry.names.at(i);
        if (exactness != Part && fits(name, entry.country, card, exactness)) return true;
        const QStringList parts = exactness == Whole ? QStringList() : partsOf(name);
        for (int j = 0; j < parts.size(); ++j)
            if (fits(parts.at(j), entry.country, card, exactness)) return true;
    }
    return false;
}

}  // namespace

int OperatorNames::told(const QList<OperatorEntry>& operators, const QString& cardOperator) {
    const QStringList card = wordsOf(cardOperator);
    if (!isName(card)) return -1;
    for (int exactness = Whole; exactness < ExactnessCount; ++exactness) {
        int found = -1;
        for (int i = 0; i < operators.size(); ++i) {
            if (!fits(operators.at(i), card, Exactness(exactness))) continue;
            if (found >= 0) return -1;
            found = i;
        }
        if (found >= 0) return found;
    }
    return -1;
}
