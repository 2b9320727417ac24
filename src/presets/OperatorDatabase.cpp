// SPDX-License-Identifier: MIT
#include "OperatorDatabase.h"

#include <QRegularExpression>
#include <optional>

#include "NetConnectProfileRules.h"
#include "XmlInput.h"

namespace {

// A name that may be given in several languages: the international one wins, else the first.
class LocalisedName {
public:
    QString text;
    QStringList others;

    void read(XmlInput& in) {
        const QString language = in.attribute("xml:lang");
        const bool international = language.isEmpty() || language.startsWith("en");
        const QString candidate = in.text();
        if (candidate.isEmpty()) return;
        if (!text.isEmpty() && (m_International || !international)) return others.append(candidate);
        if (!text.isEmpty()) others.append(text);
        text = candidate;
        m_International = international;
    }

private:
    bool m_International = false;
};

// The usage that a word of the database stands for; none for messages alone.
std::optional<Usage> usageOf(const QString& word) {
    if (word == "mms") return std::nullopt;
    return word.contains("internet") ? Usage::Internet : Usage::Other;
}

// The access point of the IP multimedia subsystem (GSMA IR.88, "ims"), which carries calls and no data, whatever the
// database says of it.
bool isForCalls(const QString& apn) { return apn.endsWith("ims", Qt::CaseInsensitive); }

bool isUsableApn(const QString& apn) {
    return !apn.isEmpty() && apn.size() <= NetConnectProfileRules::APNLength &&
           NetConnectProfileRules::isAPNAcceptable(apn);
}

// Whether a modem could send the query: a USSD command (3GPP TS 22.090) or a number, and a message of one part.
bool isSendable(const BalanceQuery& query) {
    static const QRegularExpression Command("^[*#][0-9*#]{0,180}#\\z");
    static const QRegularExpression Called("^\\+?[0-9*#]{1,40}\\z");
    static const QRegularExpression Written("^\\+?[0-9]{1,20}\\z");
    const QRegularExpression* const forms[] = {&Command, &Called, &Written};
    return query.number.contains(*forms[query.way]) && query.text.size() <= 160;
}

class DatabaseReader {
public:
    DatabaseReader(const QString& path, QStringList* warnings) : m_In(path), m_Warnings(warnings) {}

    QList<Provider> read() {
        m_In.enterRoot("serviceproviders");
        if (m_In.attribute("format") != "2.0") m_In.fail("the database is not in format 2.0");
        m_In.forEachChild([this](const QString& name) { name == "country" ? readCountry() : skip(); });
        m_In.finish();
        return m_Providers;
    }

private:
    void skip() { m_In.xml.skipCurrentElement(); }

    void warn(const QString& reason) { m_Warnings->append(m_In.position() + ": " + reason); }

    void readCountry() {
        static const QRegularExpression Code("^[A-Za-z]{2}\\z");
        const QString code = m_In.attribute("code");
        if (!Code.match(code).hasMatch()) m_In.fail("a country's code is not two letters");
        m_In.forEachChild([&](const QString& name) { name == "provider" ? readProvider(code) : skip(); });
    }

    void readProvider(const QString& country) {
        Provider provider;
        provider.country = country;
        provider.primary = m_In.attribute("primary") == "true";
        LocalisedName providerName;
        m_In.forEachChild([&](const QString& name) {
            if (name == "name") return providerName.read(m_In);
            if (name == "gsm") return readGsm(&provider);
            if (name == "cdma") return readCdma(&provider);
            skip();
        });
        provider.name = providerName.text;
        provider.otherNames = providerName.others;
        m_Providers.append(provider);
    }

    void readGsm(Provider* provider) {
        m_In.forEachChild([&](const QString& name) {
            if (name == "network-id") return readNetworkId(provider);
            if (name == "apn") return readApn(provider);
            if (name == "balance-check") return readBalanceCheck(provider);
            skip();
        });
    }

    void readNetworkId(Provider* provider) {
        static const QRegularExpression Code("^[0-9]{5,6}\\z");
        const QString mcc = m_In.attribute("mcc").trimmed();
        const QString code = mcc + m_In.attribute("mnc").trimmed();
        if (mcc.size() != 3 || !Code.match(code).hasMatch())
            warn("skipped a network code that is not three digits and two or three more");
        else if (!provider->networkCodes.contains(code))
            provider->networkCodes.append(code);
        skip();
    }

    void readApn(Provider* provider) {
        AccessPoint point;
        point.apn = m_In.attribute("value").trimmed();
        const bool usable = isUsableApn(point.apn);
        const QString where = m_In.position();
        if (!readDetails(&point)) return;
        if (isForCalls(point.apn)) point.usage = Usage::Other;
        if (usable)
            provider->accessPoints.append(point);
        else
            m_Warnings->append(where + ": skipped an access point whose APN is not valid");
    }

    void readBalanceCheck(Provider* provider) {
        m_In.forEachChild([&](const QString& name) {
            BalanceQuery query;
            query.way = BalanceQuery::wayOf(name);
            if (query.way == BalanceQuery::WayCount) return skip();
            query.text = m_In.attribute("text").trimmed();
            query.number = m_In.text();
            if (isSendable(query))
                provider->balanceQueries.append(query);
            else
                warn("skipped a way to ask for the balance that can't be sent");
        });
    }

    void readCdma(Provider* provider) {
        AccessPoint point;
        point.cdma = true;
        readDetails(&point);
        provider->accessPoints.append(point);
    }

    // False when the access point is for multimedia messages alone.
    bool readDetails(AccessPoint* point) {
        LocalisedName label;
        QStringList plans;
        std::optional<Usage> usage = Usage::Unstated;
        m_In.forEachChild([&](const QString& name) {
            if (name == "name") return label.read(m_In);
            if (name == "username") return void(point->user = m_In.text());
            if (name == "password") return void(point->password = m_In.text());
            if (name == "authentication") point->method = m_In.attribute("method");
            if (name == "plan") plans.append(m_In.attribute("type"));
            if (name == "usage") usage = usageOf(m_In.attribute("type"));
            skip();
        });
        point->label = label.text;
        point->plan = plans.size() == 1 ? plans.first() : QString();
        point->usage = usage.value_or(Usage::Other);
        return usage.has_value();
    }

    XmlInput m_In;
    QStringList* m_Warnings;
    QList<Provider> m_Providers;
};

}  // namespace

QList<Provider> readOperatorDatabase(const QString& path, QStringList* warnings) {
    return DatabaseReader(path, warnings).read();
}
