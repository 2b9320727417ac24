// SPDX-License-Identifier: MIT
#include "UsageFile.h"

#include <QDateTime>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QLockFile>
#include <QMessageAuthenticationCode>
#include <QRandomGenerator>
#include <QSaveFile>
#include <algorithm>

namespace {

constexpr int KeySize = 32;
constexpr int MostMonths = 24;
constexpr int MostMarks = 4;
constexpr int LockWaitMs = 100;  // the caller may be a window; who misses a turn counts the next time
constexpr qint64 LargestFile = 1 << 20;

QByteArray newKey() {
    quint32 words[KeySize / sizeof(quint32)];
    QRandomGenerator::system()->fillRange(words);
    return QByteArray(reinterpret_cast<const char*>(words), KeySize);
}

quint64 numberIn(const QJsonObject& object, const char* name) {
    constexpr double Largest = 9e15;  // up to here every whole number has its double
    const double number = object.value(QLatin1String(name)).toDouble();
    return number > 0 ? quint64(qMin(number, Largest)) : 0;
}

QJsonObject toJson(const UsageTotals& totals) {
    return {{"received", double(totals.received)}, {"sent", double(totals.sent)}};
}

UsageTotals totalsIn(const QJsonObject& object) { return {numberIn(object, "received"), numberIn(object, "sent")}; }

QJsonObject toJson(const UsageCard& card) {
    QJsonObject months;
    const QStringList known = card.months.keys().mid(qMax(0, card.months.size() - MostMonths));
    for (const QString& month : known) months.insert(month, toJson(card.months[month]));
    return {{"limit", double(card.limit)},
            {"warnedMonth", card.warnedMonth},
            {"warnedPercent", card.warnedPercent},
            {"months", months}};
}

UsageCard cardIn(const QJsonObject& object) {
    UsageCard card;
    card.limit = numberIn(object, "limit");
    card.warnedMonth = object.value(QLatin1String("warnedMonth")).toString();
    card.warnedPercent = object.value(QLatin1String("warnedPercent")).toInt();
    const QJsonObject months = object.value(QLatin1String("months")).toObject();
    for (auto month = months.begin(); month != months.end(); ++month)
        card.months.insert(month.key(), totalsIn(month->toObject()));
    return card;
}

QByteArray toText(const UsageRecords& records) {
    QJsonObject cards;
    for (auto card = records.cards.begin(); card != records.cards.end(); ++card)
        cards.insert(card.key(), toJson(*card));
    QJsonArray marks;
    for (const UsageMark& mark : records.marks) {
        QJsonObject object = toJson(mark.counted);
        object.insert(QLatin1String("instance"), mark.instance);
        marks.append(object);
    }
    const QJsonObject all{{"key", QString::fromLatin1(records.key.toBase64())}, {"cards", cards}, {"marks", marks}};
    return QJsonDocument(all).toJson();
}

// False: damaged.
bool parse(const QByteArray& text, UsageRecords* records) {
    const QJsonObject all = QJsonDocument::fromJson(text).object();
    records->key = QByteArray::fromBase64(all.value(QLatin1String("key")).toString().toLatin1());
    if (records->key.size() != KeySize) return false;
    const QJsonObject cards = all.value(QLatin1String("cards")).toObject();
    for (auto card = cards.begin(); card != cards.end(); ++card)
        records->cards.insert(card.key(), cardIn(card->toObject()));
    for (const auto& mark : all.value(QLatin1String("marks")).toArray()) {
        const QJsonObject object = mark.toObject();
        records->marks.append({object.value(QLatin1String("instance")).toString(), totalsIn(object)});
    }
    return true;
}

enum class Found { Nothing, Records, Damage, Locked };

Found readRecords(const QString& file, UsageRecords* records) {
    QFile in(file);
    if (!in.exists()) return Found::Nothing;
    if (!in.open(QIODevice::ReadOnly)) return Found::Locked;
    const QByteArray text = in.read(LargestFile + 1);
    return text.size() <= LargestFile && parse(text, records) ? Found::Records : Found::Damage;
}

void makeEmpty(UsageRecords* records) {
    *records = UsageRecords();
    records->key = newKey();
}

}  // namespace

QString UsageRecords::cardOf(const QString& imsi) const {
    const QByteArray hash = QMessageAuthenticationCode::hash(imsi.toUtf8(), key, QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.toHex());
}

UsageTotals UsageRecords::countedOf(const QString& instance) const {
    for (const UsageMark& mark : marks)
        if (mark.instance == instance) return mark.counted;
    return {};
}

void UsageRecords::mark(const QString& instance, const UsageTotals& counted) {
    const auto isOld = [&](const UsageMark& mark) { return mark.instance == instance; };
    marks.erase(std::remove_if(marks.begin(), marks.end(), isOld), marks.end());
    marks.prepend({instance, counted});
    marks.resize(qMin(marks.size(), MostMarks));
}

bool UsageFile::read(const QString& file, UsageRecords* records) {
    const Found found = readRecords(file, records);
    if (found != Found::Records) makeEmpty(records);
    return found != Found::Locked;
}

bool UsageFile::isSound(const QString& file) {
    UsageRecords ignored;
    const Found found = readRecords(file, &ignored);
    return found == Found::Nothing || found == Found::Records;
}

struct UsageFile::Edit::State {
    QString file;
    QLockFile lock;
    Found found = Found::Nothing;
};

UsageFile::Edit::Edit(const QString& file) : m_State(new State{file, QLockFile(file + ".lock")}) {}

UsageFile::Edit::~Edit() = default;

bool UsageFile::Edit::begin(UsageRecords* records) {
    if (m_State->file.isEmpty() || !m_State->lock.tryLock(LockWaitMs)) return false;
    m_State->found = readRecords(m_State->file, records);
    if (m_State->found != Found::Records) makeEmpty(records);
    return m_State->found != Found::Locked;
}

bool UsageFile::Edit::end(const UsageRecords& records) {
    if (m_State->found == Found::Damage) {
        const QDateTime now = QDateTime::currentDateTimeUtc();
        const QString time = QLocale::c().toString(now, QStringLiteral("yyyyMMddTHHmmsszzzZ"));
        if (!QFile::rename(m_State->file, m_State->file + ".damaged-" + time)) return false;
    }
    QSaveFile out(m_State->file);
    const QByteArray text = toText(records);
    return out.open(QIODevice::WriteOnly) && out.setPermissions(QFile::ReadOwner | QFile::WriteOwner) &&
           out.write(text) == text.size() && out.commit();
}
