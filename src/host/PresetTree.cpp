// SPDX-License-Identifier: MIT
#include "PresetTree.h"

#include <QCollator>
#include <QLocale>
#include <QMap>
#include <QRegularExpression>
#include <QStandardItemModel>
#include <algorithm>
#include <utility>

#include "Change.h"
#include "Countries.h"
#include "HostText.h"

namespace {

enum Role { KeyRole = Qt::UserRole, OperatorKeyRole, OperatorRole, PresetRole, CountryRole };
enum Level { CountryLevel, OperatorLevel, PlanLevel };

constexpr int CountryDigits = 3;       // of a network code
constexpr int ShortWord = 2;           // such as a country's code is looked for at the beginning of words alone
constexpr int LeastNetworkDigits = 5;  // the country's and two of the network

// Without case and accents.
QString folded(const QString& text) {
    QString bare;
    for (const QChar c : text.normalized(QString::NormalizationForm_KD))
        if (c.category() != QChar::Mark_NonSpacing) bare.append(c);
    return bare.toCaseFolded();
}

// What a search looks into: every word has a blank before it.
QString keyOf(const QStringList& texts) { return ' ' + folded(texts.join(' ')); }

// The words of a search; a network code is one, however it is written.
QStringList wordsOf(const QString& text) {
    static const QRegularExpression Code(QStringLiteral("^[0-9]{3}[ -]?[0-9]{2,3}$"));
    QString trimmed = text.simplified();
    if (Code.match(trimmed).hasMatch()) trimmed.remove(QLatin1Char(' ')).remove(QLatin1Char('-'));
    QStringList words = folded(trimmed).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (QString& word : words)
        if (word.size() <= ShortWord) word.prepend(QLatin1Char(' '));
    return words;
}

QCollator collator() {
    QCollator order((QLocale(Change::GetLangName())));
    order.setCaseSensitivity(Qt::CaseInsensitive);
    return order;
}

QString nameOf(const PresetOperator& one) {
    return one.names.isEmpty() ? hostText("IDS_HOST_PRESETS_OTHER") : one.names.first();
}

QStandardItem* makeItem(const QString& text) {
    auto* const item = new QStandardItem(text);
    item->setEditable(false);
    return item;
}

}  // namespace

PresetTree::PresetTree(QObject* parent) : QSortFilterProxyModel(parent), m_Items(new QStandardItemModel(this)) {
    setRecursiveFilteringEnabled(true);
}

void PresetTree::fill(const QList<PresetOperator>& operators) {
    setSourceModel(nullptr);
    m_Operators = operators;
    m_Items->clear();
    m_Items->setHorizontalHeaderLabels(
        {hostText("IDS_HOST_PRESETS_COLUMN_NAME"), hostText("IDS_HOST_PRESETS_COLUMN_APN")});
    QMap<QString, QList<int>> countries;
    for (int i = 0; i < m_Operators.size(); ++i) countries[m_Operators.at(i).country].append(i);
    QStringList codes = countries.keys();
    const QCollator order = collator();
    const auto place = [](const QString& code) { return code.isEmpty() ? QString() : Countries::name(code); };
    std::sort(codes.begin(), codes.end(), [&](const QString& a, const QString& b) {
        if (a.isEmpty() != b.isEmpty()) return b.isEmpty();  // nobody's last
        return order.compare(place(a), place(b)) < 0;
    });
    for (const QString& code : std::as_const(codes)) addCountry(code, countries.value(code));
    setSourceModel(m_Items);
}

void PresetTree::addCountry(const QString& country, const QList<int>& operators) {
    const QString name = country.isEmpty() ? hostText("IDS_HOST_PRESETS_OTHER") : Countries::name(country);
    auto* const item = makeItem(name);
    item->setData(country, CountryRole);
    const QString names = country.isEmpty() ? name : name + ' ' + Countries::englishName(country) + ' ' + country;
    QList<int> sorted = operators;
    const QCollator order = collator();
    std::sort(sorted.begin(), sorted.end(),
              [&](int a, int b) { return order.compare(nameOf(m_Operators.at(a)), nameOf(m_Operators.at(b))) < 0; });
    for (const int number : std::as_const(sorted)) addOperator(number, names, item);
    m_Items->appendRow({item, makeItem(QString())});
}

void PresetTree::addOperator(int number, const QString& countryNames, QStandardItem* country) {
    const PresetOperator& one = m_Operators.at(number);
    auto* const item = makeItem(nameOf(one));
    item->setData(number, OperatorRole);
    item->setData(keyOf({countryNames, one.names.join(' ')}), OperatorKeyRole);
    const QString names = countryNames + ' ' + one.names.join(' ') + ' ' + one.networkCodes.join(' ');
    for (int i = 0; i < one.presets.size(); ++i) {
        const OperatorPreset& preset = one.presets.at(i);
        auto* const plan = makeItem(planText(preset));
        plan->setData(number, OperatorRole);
        plan->setData(i, PresetRole);
        plan->setData(keyOf({names, preset.name, preset.plan, preset.apn}), KeyRole);
        item->appendRow({plan, makeItem(preset.apn)});
    }
    country->appendRow({item, makeItem(QString())});
}

QString PresetTree::planText(const OperatorPreset& preset) {
    QString text = preset.plan;
    if (text.isEmpty()) text = preset.apn;
    if (text.isEmpty()) text = preset.name;
    if (preset.billing == QLatin1String("prepaid")) return hostText("IDS_HOST_PRESETS_PREPAID", {text});
    if (preset.billing == QLatin1String("postpaid")) return hostText("IDS_HOST_PRESETS_POSTPAID", {text});
    return text;
}

void PresetTree::search(const QString& words) {
    m_Words = wordsOf(words);
    invalidateFilter();
}

// Countries and operators stay for the plans in them.
bool PresetTree::filterAcceptsRow(int row, const QModelIndex& parent) const {
    if (m_Words.isEmpty()) return true;
    const QString key = m_Items->index(row, Name, parent).data(KeyRole).toString();
    return !key.isEmpty() && holdsWords(key);
}

bool PresetTree::holdsWords(const QString& key) const {
    return std::all_of(m_Words.begin(), m_Words.end(), [&](const QString& word) { return key.contains(word); });
}

int PresetTree::planCount() const {
    int count = 0;
    for (int i = 0; i < rowCount(); ++i) {
        const QModelIndex country = index(i, Name);
        for (int j = 0; j < rowCount(country); ++j) count += rowCount(index(j, Name, country));
    }
    return count;
}

QModelIndex PresetTree::likeliestPlan(const QString& imsi) const {
    const QString home = countryAt(placeOf(imsi));
    QModelIndex likeliest;
    int best = -1;
    for (int i = 0; i < rowCount(); ++i) {
        const QModelIndex country = index(i, Name);
        const bool isHome = countryAt(country) == home;
        for (int j = 0; j < rowCount(country); ++j) {
            const QModelIndex place = index(j, Name, country);
            const int rank = 2 * int(holdsWords(place.data(OperatorKeyRole).toString())) + int(isHome);
            if (rank > best) likeliest = index(0, Name, place);
            best = std::max(best, rank);
        }
    }
    return likeliest;
}

QModelIndex PresetTree::placeOf(const QString& imsi) const {
    QList<int> owners;
    QString country;
    int longest = LeastNetworkDigits;
    for (int i = 0; i < m_Operators.size(); ++i) {
        for (const QString& code : m_Operators.at(i).networkCodes) {
            if (country.isEmpty() && code.left(CountryDigits) == imsi.left(CountryDigits))
                country = m_Operators.at(i).country;
            if (code.size() < longest || !imsi.startsWith(code)) continue;
            if (code.size() > longest) owners.clear();
            longest = code.size();
            country = m_Operators.at(i).country;
            owners.append(i);
        }
    }
    return imsi.isEmpty() || country.isEmpty() ? QModelIndex()
                                               : find(country, owners.size() == 1 ? owners.first() : -1);
}

QModelIndex PresetTree::find(const QString& country, int number) const {
    for (int i = 0; i < rowCount(); ++i) {
        const QModelIndex place = index(i, Name);
        if (place.data(CountryRole).toString() != country) continue;
        for (int j = 0; j < rowCount(place); ++j)
            if (index(j, Name, place).data(OperatorRole).toInt() == number) return index(j, Name, place);
        return place;
    }
    return QModelIndex();
}

int PresetTree::level(const QModelIndex& index) const {
    if (!index.parent().isValid()) return CountryLevel;
    return index.parent().parent().isValid() ? PlanLevel : OperatorLevel;
}

const PresetOperator* PresetTree::operatorAt(const QModelIndex& index) const {
    if (!index.isValid() || level(index) == CountryLevel) return nullptr;
    return &m_Operators.at(index.siblingAtColumn(Name).data(OperatorRole).toInt());
}

const OperatorPreset* PresetTree::presetAt(const QModelIndex& index) const {
    const PresetOperator* const one = operatorAt(index);
    if (!one) return nullptr;
    if (level(index) == PlanLevel) return &one->presets.at(index.siblingAtColumn(Name).data(PresetRole).toInt());
    return one->presets.size() == 1 ? &one->presets.first() : nullptr;
}

QString PresetTree::countryAt(const QModelIndex& index) const {
    QModelIndex place = index.siblingAtColumn(Name);
    while (place.parent().isValid()) place = place.parent();
    return place.data().toString();
}
