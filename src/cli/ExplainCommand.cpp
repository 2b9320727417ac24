// SPDX-License-Identifier: MIT
// explain.

#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QRegularExpression>
#include <cstdio>

#include "Command.h"
#include "CommandError.h"
#include "Commands.h"
#include "Message.h"
#include "Output.h"
#include "ProfileSession.h"

namespace {

struct Explanation {
    QString imsi;
    QString prefix;  // null when no section matches
    QStringList offered;
    QString proposal;      // null when there is none
    QString cardOperator;  // what the card calls its operator; null when nobody says
    QString operatorName;  // the operator offered that this told; empty when it told none
    bool isIMSI = true;
};

class Explainer {
public:
    // The operator's name is what the cards call it; null when it is not given.
    Explainer(const ProfileSession& session, const QString& cardOperator, Output& output)
        : m_Session(session), m_Output(output), m_CardOperator(cardOperator) {}

    void explain(const QString& imsi) {
        const Explanation explanation = explanationFor(imsi);
        m_Output.result(toJson(explanation), toLines(explanation));
        ++m_nAsked;
        if (!explanation.isIMSI) ++m_nInvalid;
    }

    void explainStandardInput() {
        QFile input;
        input.open(stdin, QIODevice::ReadOnly);
        for (QByteArray line = input.readLine(); !line.isEmpty(); line = input.readLine()) {
            const QString imsi = QString::fromUtf8(line).trimmed();
            if (!imsi.isEmpty()) explain(imsi);
        }
        if (std::ferror(stdin)) throw CommandError::failed(message("standard input can't be read"));
    }

    void requireAllValid() const {
        if (m_nInvalid == 0) return;
        throw CommandError::failed(message("%1 of %2 were no IMSI, which has 5 to 15 digits",
                                           {QString::number(m_nInvalid), QString::number(m_nAsked)}));
    }

private:
    Explanation explanationFor(const QString& imsi) {
        static const QRegularExpression pattern("\\A[0-9]{5,15}\\z");
        Explanation explanation;
        explanation.imsi = imsi;
        explanation.isIMSI = pattern.match(imsi).hasMatch();
        if (!explanation.isIMSI) return explanation;

        explanation.cardOperator = cardOperatorFor(imsi);
        NetConnectIMSISelection selection;
        if (m_bFollowsIMSI) selection = m_Session->SelectByIMSI(imsi, explanation.cardOperator);
        explanation.operatorName = selection.operatorName;
        const bool isSelected = !selection.prefix.isEmpty();
        if (isSelected) explanation.prefix = selection.prefix;
        explanation.offered = isSelected ? selection.names : m_Configured;
        // As when the logic replaces the default: a proposal of one character is none, and it must be listed.
        const QString proposal =
            selection.defaultProfile.size() > 1 ? selection.defaultProfile : m_Session->APNDefault();
        if (explanation.offered.contains(proposal)) explanation.proposal = proposal;
        // The list keeps its order but for a proposal that the card's own name asked for.
        const int place = explanation.offered.indexOf(explanation.proposal);
        if (!explanation.operatorName.isEmpty() && place > 0) explanation.offered.move(place, 0);
        return explanation;
    }

    // The present card is explained as the programs see it.
    QString cardOperatorFor(const QString& imsi) const {
        if (!m_CardOperator.isNull() || imsi != m_PresentIMSI) return m_CardOperator;
        const QString name = NetConnectDevice::cardOperator();
        return name.isEmpty() ? QString() : name;
    }

    QString apnOf(const QString& name) {
        const auto known = m_APNs.constFind(name);
        if (known != m_APNs.constEnd()) return *known;
        DialupProfile profile;
        m_Session->GetDialUpProfile(name, &profile);
        return *m_APNs.insert(name, profile.apn);
    }

    QJsonObject toJson(const Explanation& explanation) {
        QJsonArray offered;
        for (const QString& name : explanation.offered)
            offered.append(QJsonObject{{"name", name}, {"apn", apnOf(name)}});
        QJsonObject object{{"imsi", explanation.imsi}, {"offered", offered}};
        object["prefix"] = explanation.prefix.isNull() ? QJsonValue() : explanation.prefix;
        object["default"] = explanation.proposal.isNull() ? QJsonValue() : explanation.proposal;
        if (!explanation.cardOperator.isNull())
            object["operator"] = explanation.operatorName.isEmpty() ? QJsonValue() : explanation.operatorName;
        if (!explanation.isIMSI) object["note"] = "not an IMSI";
        return object;
    }

    QStringList toLines(const Explanation& explanation) {
        if (!explanation.isIMSI) return {message("%1: not an IMSI", {explanation.imsi})};
        QStringList lines{explanation.prefix.isNull()
                              ? message("%1: no prefix matches; the configuration's own presets", {explanation.imsi})
                              : message("%1: prefix %2", {explanation.imsi, explanation.prefix})};
        if (!explanation.cardOperator.isNull()) lines.append("  " + operatorLine(explanation));
        for (const QString& name : explanation.offered)
            lines.append(QString("  %1 %2 [%3]").arg(name == explanation.proposal ? "*" : " ", name, apnOf(name)));
        return lines;
    }

    static QString operatorLine(const Explanation& explanation) {
        const QString name = quoted(explanation.cardOperator);
        if (explanation.operatorName.isEmpty())
            return message("the card's operator name %1 tells none of these", {name});
        return message("by the card's operator name %1: %2", {name, explanation.operatorName});
    }

    const ProfileSession& m_Session;
    Output& m_Output;
    const QString m_CardOperator;
    const QString m_PresentIMSI = NetConnectDevice::imsi();
    const bool m_bFollowsIMSI = m_Session.isOn("IMSIAPN");
    const QStringList m_Configured = m_Session->getAPNListFromHash();
    QHash<QString, QString> m_APNs;
    int m_nAsked = 0;
    int m_nInvalid = 0;
};

}  // namespace

void explainIMSIs(const Invocation& invocation, Output& output) {
    ProfileSession session(ProfileSession::Reading);
    const QString note = session.presetsNote();
    if (!note.isNull()) printWarning(note);
    const QString cardOperator = invocation.isSet("operator") ? invocation.value("operator") : QString();
    Explainer explainer(session, cardOperator, output);
    for (const QString& imsi : invocation.arguments()) {
        if (imsi == "-")
            explainer.explainStandardInput();
        else
            explainer.explain(imsi);
    }
    session.finish();
    explainer.requireAllValid();
}
