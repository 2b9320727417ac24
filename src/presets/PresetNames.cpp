// SPDX-License-Identifier: MIT
#include "PresetNames.h"

#include <QHash>
#include <QRegularExpression>
#include <algorithm>
#include <utility>

#include "NetConnectProfileRules.h"

namespace {

enum { MaxLength = NetConnectProfileRules::DefaultNameLength, MinProviderLength = 12, MinHeadLength = 20 };

// Rising means of telling equal names apart; the last always succeeds.
enum Level { ByLabel, ByPlan, ByApn, ByUser, ByNumber };

QString withoutUnprintable(const QString& text) {
    QVector<uint> kept;
    for (const uint c : NetConnectProfileRules::cutToLength(text.simplified(), 4 * MaxLength).toUcs4())
        if (QChar::isPrint(c)) kept.append(c);
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(kept.constData()), kept.size());
}

// The text with the forbidden characters turned into something that reads as well.
QString cleaned(const QString& text) {
    static const QRegularExpression Alternatives(" *[/\\\\|] *");
    static const QRegularExpression Nothing("[:?*]");
    static const QRegularExpression Brackets("[<>()\\[\\]]");
    static const QRegularExpression Edges("^[ ,;-]+|[ ,;-]+$");
    return withoutUnprintable(text)
        .remove(Nothing)
        .replace(Brackets, " ")
        .replace(Alternatives, "-")
        .simplified()
        .remove(Edges);
}

QStringList words(const QString& text) { return text.toCaseFolded().split(' ', Qt::SkipEmptyParts); }

bool containsRun(const QStringList& all, const QStringList& run) {
    return std::search(all.begin(), all.end(), run.begin(), run.end()) != all.end();
}

// The label without what the provider's name has said already.
QString withoutRepetition(const QString& provider, const QString& label) {
    const QStringList said = words(provider);
    const QStringList saying = words(label);
    if (containsRun(said, saying)) return QString();
    int overlap = std::min(said.size(), saying.size());
    while (said.mid(said.size() - overlap) != saying.mid(0, overlap)) --overlap;
    return cleaned(label.section(' ', overlap));
}

// The provider's name without the country code that goes before it, as in "US Mobile".
QString withoutCountry(const QString& country, const QString& provider) {
    return provider.startsWith(country + " ", Qt::CaseInsensitive) ? provider.mid(country.size() + 1) : provider;
}

// The text cut to a length, between words when one ends in the second half.
QString cutToWords(const QString& text, int length) {
    if (text.size() <= length) return text;
    const QString cut = NetConnectProfileRules::cutToLength(text, length);
    const int lastBlank = cut.lastIndexOf(' ');
    return cleaned(lastBlank > length / 2 && text.at(length) != ' ' ? cut.left(lastBlank) : cut);
}

// Provider and label within a length, the provider giving way first.
QString head(const NameParts& parts, int length) {
    if (parts.provider.isEmpty() || parts.label.isEmpty()) return cutToWords(parts.provider + parts.label, length);
    const int separator = 3;
    const int providerRoom = std::max<int>(MinProviderLength, length - separator - parts.label.size());
    return cutToWords(cutToWords(parts.provider, providerRoom) + " - " + parts.label, length);
}

QString composed(const NameParts& parts, const QString& suffix) {
    const QString country = parts.country + " ";
    return country + head(parts, MaxLength - country.size() - suffix.size()) + suffix;
}

QString planSuffix(const NameParts& parts) {
    const bool said =
        parts.label.contains("prepaid", Qt::CaseInsensitive) || parts.label.contains("postpaid", Qt::CaseInsensitive);
    return said || parts.plan.isEmpty() ? QString() : " " + parts.plan;
}

QString suffixFor(const NameParts& parts, Level level) {
    switch (level) {
        case ByPlan:
            return planSuffix(parts);
        case ByApn:
            return " - " + parts.apn;
        case ByUser:
            return parts.user.isEmpty() ? " - " + parts.apn : " - " + parts.user;
        default:
            return QString();
    }
}

QString nameAt(const NameParts& parts, Level level) {
    const QString suffix = suffixFor(parts, level);
    return composed(parts, suffix.size() > MaxLength - MinHeadLength ? QString() : suffix);
}

NameParts prepared(const NameParts& raw) {
    NameParts parts{raw.country.toUpper(), cleaned(raw.provider), cleaned(raw.label),
                    cleaned(raw.plan),     cleaned(raw.apn),      cleaned(raw.user)};
    parts.provider = withoutCountry(parts.country, parts.provider);
    if (parts.label.isEmpty()) parts.label = parts.apn;
    if (!parts.plan.isEmpty()) parts.plan[0] = parts.plan.at(0).toUpper();
    parts.label = withoutRepetition(parts.provider, parts.label);
    if (parts.provider.isEmpty() && parts.label.isEmpty()) parts.label = parts.apn;
    return parts;
}

class Namer {
public:
    Namer(const QVector<NameParts>& parts, const QStringList& reserved) {
        for (const QString& name : reserved) m_Reserved.insert(name.toCaseFolded());
        for (const NameParts& raw : parts) m_Entries.append(entryOf(prepared(raw)));
    }

    QStringList names() {
        while (raiseClashing()) {
        }
        number();
        QStringList result;
        for (const Entry& entry : std::as_const(m_Entries)) result.append(entry.name);
        return result;
    }

private:
    struct Entry {
        NameParts parts;
        Level level;
        QString name;
    };

    static Entry entryOf(const NameParts& parts) { return {parts, ByLabel, nameAt(parts, ByLabel)}; }

    // Takes every entry whose name clashes one level up; false when none was left to raise.
    bool raiseClashing() {
        QHash<QString, int> uses;
        for (const Entry& entry : std::as_const(m_Entries)) ++uses[entry.name.toCaseFolded()];
        bool raised = false;
        for (Entry& entry : m_Entries) {
            const QString key = entry.name.toCaseFolded();
            if (entry.level == ByNumber || (uses.value(key) == 1 && !m_Reserved.contains(key))) continue;
            entry.level = Level(entry.level + 1);
            entry.name = nameAt(entry.parts, entry.level);
            raised = true;
        }
        return raised;
    }

    void number() {
        QSet<QString> taken = m_Reserved;
        for (const Entry& entry : std::as_const(m_Entries))
            if (entry.level != ByNumber) taken.insert(entry.name.toCaseFolded());
        QHash<QString, int> next;
        for (Entry& entry : m_Entries) {
            if (entry.level != ByNumber) continue;
            for (int& n = next[entry.name.toCaseFolded()]; taken.contains(entry.name.toCaseFolded()); ++n)
                entry.name = composed(entry.parts, " " + QString::number(n + 2));
            taken.insert(entry.name.toCaseFolded());
        }
    }

    QSet<QString> m_Reserved;
    QVector<Entry> m_Entries;
};

}  // namespace

QStringList uniqueNames(const QVector<NameParts>& parts, const QStringList& reserved) {
    return Namer(parts, reserved).names();
}
