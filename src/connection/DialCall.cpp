// SPDX-License-Identifier: MIT
#include "DialCall.h"

#include <arpa/inet.h>

#include <QRegularExpression>
#include <cstring>

namespace {

constexpr int LongestCredential = 255;  // bytes; PPP has one byte for the length, RFC 1334

using Field = QString DialupProfile::*;

bool isTrue(const QString& flag) { return flag == QLatin1String("true"); }

// An address that was never entered is empty, or all zeros, or what an input mask leaves.
bool isSet(const QString& address) {
    static const QRegularExpression nothing(QStringLiteral("^[\\s.0]*$"));
    return !nothing.match(address).hasMatch();
}

bool isAddress(const QString& text) {
    in_addr ignored;
    return ::inet_pton(AF_INET, text.trimmed().toLatin1().constData(), &ignored) == 1;
}

// What network services take; 3GPP TS 23.003, clause 9, allows no more.
bool isApn(const QString& text) {
    static const QRegularExpression apn(QStringLiteral("\\A[A-Za-z0-9._-]{0,64}\\z"));
    return apn.match(text).hasMatch();
}

bool isCredential(const QString& text) { return text.toUtf8().size() <= LongestCredential && !text.contains(QChar(0)); }

bool isNoneOrAddress(const QString& text) { return !isSet(text) || isAddress(text); }

// A network that assigns the name takes none.
QString apnOf(const DialupProfile& profile) { return isTrue(profile.autoapn) ? QString() : profile.apn; }

QByteArray addressOf(const QString& text) { return isSet(text) ? text.trimmed().toUtf8() : QByteArray(); }

struct Check {
    const char* attribute;
    Field field;
    bool (*isGood)(const QString& text);
};

const Check Checks[] = {{"ip", &DialupProfile::ip, isNoneOrAddress},
                        {"dns", &DialupProfile::dns, isNoneOrAddress},
                        {"dnsalt", &DialupProfile::dnsalt, isNoneOrAddress},
                        {"user", &DialupProfile::user, isCredential},
                        {"password", &DialupProfile::password, isCredential}};

// Every modem dials its own number for a data call: *99***N# (3GPP TS 27.007) or #777.
bool isUsualNumber(const QString& number) {
    static const QRegularExpression usual(QStringLiteral("\\A(\\*99(\\*{1,3}\\d+)?#|#777)?\\z"));
    return usual.match(number.trimmed()).hasMatch();
}

}  // namespace

DialCall::DialCall(const DialupProfile& profile, const QString& name, bool endsWithProcess)
    : m_Name(name.toUtf8()),
      m_Number(profile.phonenumber.toUtf8()),
      m_Apn(apnOf(profile).toUtf8()),
      m_User(profile.user.toUtf8()),
      m_Password(profile.password.toUtf8()),
      m_Dns(addressOf(profile.dns)),
      m_AlternativeDns(addressOf(profile.dnsalt)),
      m_AllowsChap(isTrue(profile.chap)),
      m_AllowsPap(isTrue(profile.pap)),
      m_EndsWithProcess(endsWithProcess) {}

DialCall::~DialCall() { m_Password.fill('\0'); }

VRKS_DialRequest DialCall::request() const {
    VRKS_DialRequest request{};
    request.size = sizeof request;
    request.allowsChap = m_AllowsChap;
    request.allowsPap = m_AllowsPap;
    request.endsWithProcess = m_EndsWithProcess;
    request.name = m_Name.constData();
    request.number = m_Number.constData();
    request.apn = m_Apn.constData();
    request.user = m_User.constData();
    request.password = m_Password.constData();
    request.dns = m_Dns.constData();
    request.alternativeDns = m_AlternativeDns.constData();
    return request;
}

long DialCall::dial() const {
    const VRKS_DialRequest asked = request();
    return VRKS_NetConnectSrv_Dial(&asked);
}

QString DialCall::badField(const DialupProfile& profile) {
    if (!isApn(apnOf(profile))) return QStringLiteral("apn");
    for (const Check& check : Checks)
        if (!check.isGood(profile.*check.field)) return QLatin1String(check.attribute);
    return QString();
}

QStringList DialCall::fieldsWithoutEffect(const DialupProfile& profile) {
    QStringList fields;
    if (!isUsualNumber(profile.phonenumber)) fields.append(QStringLiteral("phonenumber"));
    if (isSet(profile.ip)) fields.append(QStringLiteral("ip"));
    if (isSet(profile.wins)) fields.append(QStringLiteral("wins"));
    if (isSet(profile.winsalt)) fields.append(QStringLiteral("winsalt"));
    return fields;
}
