// SPDX-License-Identifier: MIT
#include "OperatorsCheck.h"

#include <algorithm>

#include "OperatorIndex.h"
#include "Spelling.h"

namespace {

std::vector<ElementRule> rules() {
    return {{"", "Operators", ""},
            {"Operators", "operator", "country name"},
            {"operator", "alias", "name"},
            {"operator", "preset", "name plan billing"},
            {"operator", "balance", "way number text"}};
}

const QStringList Billings{"prepaid", "postpaid"};

QStringList ways() {
    QStringList words;
    for (int way = 0; way < BalanceQuery::WayCount; ++way) words.append(BalanceQuery::wordOf(BalanceQuery::Way(way)));
    return words;
}

bool isCountry(const QString& code) {
    return code.size() == 2 && std::all_of(code.begin(), code.end(), [](QChar c) { return c >= 'a' && c <= 'z'; });
}

}  // namespace

OperatorsCheck::OperatorsCheck(FileFindings* findings, const KnownPresets& presets)
    : DocumentCheck(findings, rules()), m_Presets(presets) {}

void OperatorsCheck::start(const XmlElement& element) {
    if (element.name == "balance") return checkBalance(element);
    if (element.name == "Operators") return;
    required(element, "name");
    if (element.name == "preset") checkPreset(element);
    if (element.name == "operator" && !isCountry(element.value("country")))
        find(element.place, "country " + inQuotes(element.value("country")) + " is no country code",
             "write two lower-case letters, as ISO 3166 has them");
}

void OperatorsCheck::checkPreset(const XmlElement& element) {
    const QString name = element.value("name");
    const QString billing = element.value("billing");
    if (!billing.isEmpty() && !Billings.contains(billing))
        find(element.place, "billing " + inQuotes(billing) + " is passed over", Spelling::advice(billing, Billings));
    if (name.isEmpty()) return;
    if (m_Presets.lacks(name))
        find(element.place, "the library has no profile " + inQuotes(name), m_Presets.adviceFor(name));
    if (const XmlPlace* first = m_Owned.meet(name, element.place))
        find(element.place, "preset " + inQuotes(name) + " is an operator's already, in " + lineText(*first),
             "leave it to one operator");
}

void OperatorsCheck::checkBalance(const XmlElement& element) {
    const QString way = element.value("way");
    required(element, "number");
    if (BalanceQuery::wayOf(way) == BalanceQuery::WayCount)
        find(element.place, "way " + inQuotes(way) + " is passed over", Spelling::advice(way, ways()));
}
