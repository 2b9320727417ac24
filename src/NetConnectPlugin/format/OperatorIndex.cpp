// SPDX-License-Identifier: MIT
#include "OperatorIndex.h"

#include <QSet>

#include "OperatorNames.h"
#include "XmlScanner.h"
#include "XmlText.h"

namespace {

const char* const BalanceWays[BalanceQuery::WayCount] = {"ussd", "dtmf", "sms"};

bool offersAny(const QSet<QString>& offered, const OperatorEntry& entry) {
    for (int i = 0; i < entry.presets.size(); ++i)
        if (offered.contains(entry.presets.at(i))) return true;
    return false;
}

}  // namespace

const char* BalanceQuery::wordOf(Way way) { return BalanceWays[way]; }

BalanceQuery::Way BalanceQuery::wayOf(const QString& word) {
    int way = 0;
    while (way < WayCount && word != QLatin1String(BalanceWays[way])) ++way;
    return Way(way);
}

void OperatorIndex::read(const QByteArray& content, QXmlStreamReader* reader) {
    if (scan(content)) return;
    reader->addData(content);
    const QString refusal = XmlText::refusal(content);
    if (!refusal.isEmpty()) reader->raiseError(refusal);
    while (!reader->atEnd()) {
        reader->readNext();
        XmlText::refuseDeclarations(*reader);
        if (reader->isStartElement()) start(XmlReaderElement(*reader));
    }
    if (reader->hasError()) m_Operators.clear();
}

// False, and nothing is taken, when the document is not in our own tools' form.
bool OperatorIndex::scan(const QByteArray& content) {
    m_Operators.clear();
    XmlScanner scanner(content);
    XmlScanner::Token token = scanner.next();
    for (; token == XmlScanner::StartElement || token == XmlScanner::EndElement; token = scanner.next())
        if (token == XmlScanner::StartElement) start(scanner);
    if (token == XmlScanner::Unknown) m_Operators.clear();
    return token == XmlScanner::End;
}

// An element belongs to the operator that began last. What it does not know is passed over.
template <class Element>
void OperatorIndex::start(const Element& element) {
    const QString name = element.value("name");
    if (element.isNamed("operator")) {
        OperatorEntry entry;
        entry.country = element.value("country");
        entry.names.append(name);
        m_Operators.append(entry);
    }
    if (m_Operators.isEmpty()) return;
    OperatorEntry& entry = m_Operators.last();
    if (element.isNamed("alias")) entry.names.append(name);
    if (element.isNamed("preset")) {
        entry.presets.append(name);
        const PresetPlan plan = {element.value("plan"), element.value("billing")};
        entry.plans.append(plan);
    }
    if (!element.isNamed("balance")) return;
    BalanceQuery query;
    query.way = BalanceQuery::wayOf(element.value("way"));
    query.number = element.value("number");
    query.text = element.value("text");
    if (query.way != BalanceQuery::WayCount && !query.number.isEmpty()) entry.balanceQueries.append(query);
}

const OperatorEntry* OperatorIndex::operatorOf(const QString& preset) const {
    for (int i = 0; i < m_Operators.size(); ++i)
        if (m_Operators.at(i).presets.contains(preset)) return &m_Operators.at(i);
    return nullptr;
}

OperatorProposal OperatorIndex::proposalFor(const QString& cardOperator, const QStringList& offered,
                                            const QString& marked) const {
    QSet<QString> presets;
    for (int i = 0; i < offered.size(); ++i) presets.insert(offered.at(i));
    QList<OperatorEntry> candidates;
    for (int i = 0; i < m_Operators.size(); ++i)
        if (offersAny(presets, m_Operators.at(i))) candidates.append(m_Operators.at(i));

    OperatorProposal proposal;
    const int told = OperatorNames::told(candidates, cardOperator);
    if (told < 0) return proposal;
    const OperatorEntry& entry = candidates.at(told);
    if (entry.presets.contains(marked))
        proposal.preset = marked;
    else if (marked.isEmpty() || operatorOf(marked))
        for (int i = entry.presets.size() - 1; i >= 0; --i)
            if (presets.contains(entry.presets.at(i))) proposal.preset = entry.presets.at(i);
    if (!proposal.preset.isEmpty()) proposal.operatorName = entry.names.first();
    return proposal;
}
