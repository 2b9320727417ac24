// SPDX-License-Identifier: MIT
// Operators.xml: which operators and plans the library's presets belong to, what their SIM cards may call them, and how
// their balance is asked for. Written by orbis-presets; read here.
#ifndef ORBISDIAL_OPERATORINDEX_H
#define ORBISDIAL_OPERATORINDEX_H

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QXmlStreamReader>

// One way to ask a network for a prepaid card's balance.
struct BalanceQuery {
    enum Way { Ussd, Call, Message, WayCount };

    BalanceQuery() : way(Ussd) {}

    // The word that the file and the operator database have for a way; WayCount for any other word.
    static const char* wordOf(Way way);
    static Way wayOf(const QString& word);

    Way way;
    QString number;  // the USSD command, or the number to call or to write to
    QString text;    // of the message; may be empty
};

// What an operator sells, as it calls it, and how it is paid; either is empty where nobody says.
struct PresetPlan {
    QString name;
    QString billing;  // "prepaid" or "postpaid"
};

struct OperatorEntry {
    QString country;                     // ISO 3166-1 alpha-2, lower case
    QStringList names;                   // the usual one first; never empty
    QStringList presets;                 // as the library stores their names, the likeliest for the internet first
    QList<PresetPlan> plans;             // each preset's, at its place
    QList<BalanceQuery> balanceQueries;  // the usual one first
};

// The operator that a name told among those offered, and the preset to be proposed for it; both empty for none.
struct OperatorProposal {
    QString operatorName;
    QString preset;
};

class OperatorIndex {
public:
    // Becomes what the document says. A damaged one leaves its error in the reader and the index empty.
    void read(const QByteArray& content, QXmlStreamReader* reader);

    const QList<OperatorEntry>& operators() const { return m_Operators; }

    // The operator of a preset, by the name that the library stores; null when there is none.
    const OperatorEntry* operatorOf(const QString& preset) const;

    // The preset to propose where the SIM card calls its operator by this name: of those offered the likeliest one of
    // the only operator among them that fits the name. The one that is marked already stays when it is that
    // operator's, or of no operator of the index: then somebody marked it by hand.
    OperatorProposal proposalFor(const QString& cardOperator, const QStringList& offered, const QString& marked) const;

private:
    bool scan(const QByteArray& content);
    template <class Element>
    void start(const Element& element);

    QList<OperatorEntry> m_Operators;
};

#endif
