// SPDX-License-Identifier: MIT
#include "ProfileFieldRules.h"

#include <QRegularExpression>
#include <algorithm>
#include <iterator>

#include "NetConnectProfileRules.h"
#include "ReasonText.h"
#include "XmlText.h"

namespace Rules = NetConnectProfileRules;

namespace {

using ProfileFieldRules::Kind;
using ProfileFieldRules::Rule;

constexpr Rule FieldRules[] = {
    {&DialupProfile::name, Kind::Text, 0},
    {&DialupProfile::type, Kind::Text, 0},
    {&DialupProfile::readonly, Kind::Fixed, 0},
    {&DialupProfile::device, Kind::Text, 0},
    {&DialupProfile::user, Kind::Text, Rules::UserNameLength},
    {&DialupProfile::password, Kind::Text, Rules::PasswordLength},
    {&DialupProfile::phonenumber, Kind::Text, Rules::AccessNumberLength},
    {&DialupProfile::autoapn, Kind::Flag, 0},
    {&DialupProfile::apn, Kind::APN, Rules::APNLength},
    {&DialupProfile::chap, Kind::Flag, 0},
    {&DialupProfile::pap, Kind::Flag, 0},
    {&DialupProfile::ip, Kind::Address, 0},
    {&DialupProfile::dns, Kind::Address, 0},
    {&DialupProfile::dnsalt, Kind::Address, 0},
    {&DialupProfile::wins, Kind::Address, 0},
    {&DialupProfile::winsalt, Kind::Address, 0},
    {&DialupProfile::popusername, Kind::Flag, 0},
    {&DialupProfile::Remember, Kind::Flag, 0},
    {&DialupProfile::langid, Kind::Fixed, 0},
    {&DialupProfile::encrypttype, Kind::Fixed, 0},
};

// As many rules as fields, and no field twice: each has its own.
constexpr bool isEveryFieldRuledOnce() {
    constexpr int count = std::size(FieldRules);
    for (int i = 0; i < count; ++i)
        for (int j = 0; j < i; ++j)
            if (FieldRules[i].field == FieldRules[j].field) return false;
    return count == DialupProfileFieldCount;
}

static_assert(isEveryFieldRuledOnce(), "every field of a profile has one rule");

// Of a unicast host, as the advanced settings take it.
bool isAddress(const QString& text) {
    static const QRegularExpression pattern(
        "\\A(22[0-3]|2[01]\\d|1\\d\\d|[1-9]\\d?)(\\.(25[0-5]|2[0-4]\\d|1\\d\\d|[1-9]?\\d)){3}\\z");
    return text.isEmpty() || pattern.match(text).hasMatch();
}

bool isFlagOrNothing(const QString& text) { return text.isEmpty() || text == "true" || text == "false"; }

// A file's empty field says nothing, and a sealed password is longer than what was typed.
bool needsNoLook(const DialupProfileField& field, const QString& value) {
    return value.isEmpty() || field.member == &DialupProfile::name || field.member == &DialupProfile::password ||
           (ProfileFieldRules::of(field).kind == Kind::Address && value == "0.0.0.0");
}

}  // namespace

const Rule& ProfileFieldRules::of(const DialupProfileField& field) {
    return *std::find_if(std::begin(FieldRules), std::end(FieldRules),
                         [&](const Rule& rule) { return rule.field == field.member; });
}

// It comes back from the file as it is.
bool ProfileFieldRules::isStorable(const QString& text) {
    const auto isControl = [](QChar c) { return c.category() == QChar::Other_Control; };
    return XmlText::clean(text) == text && std::none_of(text.begin(), text.end(), isControl);
}

QString ProfileFieldRules::valueProblem(const DialupProfileField& field, const QString& value) {
    const Rule& rule = of(field);
    const QString name = field.attribute;
    if (!isStorable(value)) return reasonText("%1: control characters can't be stored").arg(name);
    if (rule.length > 0 && value.size() > rule.length)
        return reasonText("%1: at most %2 characters").arg(name).arg(rule.length);
    if (rule.kind == Kind::Flag && value != "true" && value != "false")
        return reasonText("%1: must be true or false").arg(name);
    if (rule.kind == Kind::Address && !isAddress(value))
        return reasonText("%1: must be empty or an IPv4 address such as 192.0.2.1").arg(name);
    if (rule.kind == Kind::APN && !Rules::isAPNTypeable(value))
        return reasonText("%1: may hold letters, digits, dots and hyphens").arg(name);
    return QString();
}

QString ProfileFieldRules::nameProblem(const QString& name) {
    if (!Rules::isNamePresent(name)) return reasonText("a profile needs a name");
    if (!Rules::isNameAcceptable(name))
        return reasonText("a name must not contain any of %1").arg(Rules::ForbiddenNameCharacters);
    return QString();
}

QString ProfileFieldRules::nameLengthProblem(const QString& name, int most) {
    return most > 0 && name.size() > most ? reasonText("a name has at most %1 characters").arg(most) : QString();
}

QStringList ProfileFieldRules::storedProblems(const DialupProfile& profile, int nameLength) {
    QStringList problems{nameProblem(profile.name), nameLengthProblem(profile.name, nameLength)};
    if (!isStorable(profile.name)) problems.append(reasonText("a name must not contain control characters"));
    if (!Rules::isAccessNumberPresent(profile.phonenumber))
        problems.append(reasonText("a profile needs an access number, for example phonenumber=*99#"));
    for (const DialupProfileField& field : DialupProfileFields) {
        const QString& value = profile.*field.member;
        if (!needsNoLook(field, value)) problems.append(valueProblem(field, value));
    }
    if (!isFlagOrNothing(profile.readonly)) problems.append(reasonText("%1: must be true or false").arg("readonly"));
    if (!Rules::isAPNAcceptable(profile.apn))
        problems.append(reasonText("apn: must begin and end with a letter or a digit"));
    problems.removeAll(QString());
    return problems;
}

bool ProfileFieldRules::isBase64Method(const QString& encryptType) {
    return encryptType.isEmpty() || encryptType == "0" || encryptType == "1";
}

bool ProfileFieldRules::isPasswordReadable(const DialupProfile& profile) {
    if (profile.password.isEmpty() || !isBase64Method(profile.encrypttype)) return true;
    const auto decoded =
        QByteArray::fromBase64Encoding(profile.password.toUtf8(), QByteArray::AbortOnBase64DecodingErrors);
    return decoded && QString::fromUtf8(*decoded).toUtf8() == *decoded;
}
