// SPDX-License-Identifier: MIT
#include "ProfilesCheck.h"

#include "NetConnectProfileRules.h"
#include "ProfileFieldRules.h"
#include "SealedText.h"

namespace FieldRules = ProfileFieldRules;

namespace {

constexpr char ProfileAttributes[] =
    "name type readonly device user password phonenumber autoapn apn chap pap ip dns dnsalt wins winsalt popusername "
    "Remember langid encrypttype";

std::vector<ElementRule> rules() {
    return {{"", "vrksdoc", "type"},
            {"vrksdoc", "ProfileGroup", "type"},
            {"ProfileGroup", "Profile", ProfileAttributes},
            {"ProfileGroup", "Template", ProfileAttributes},
            {"vrksdoc", "Default", "name IsUserSet Default type"},
            {"vrksdoc", "MultiModeDefaultProfile", ""},
            {"MultiModeDefaultProfile", "item", "name value IsUserSet"}};
}

bool isSealed(const QString& password) { return password.startsWith(QLatin1String(SealedTextMark)); }

bool isKnownMethod(const QString& encryptType) { return FieldRules::isBase64Method(encryptType) || encryptType == "2"; }

}  // namespace

ProfilesCheck::ProfilesCheck(FileFindings* findings, bool isUsers)
    : DocumentCheck(findings, rules()), m_bUsers(isUsers) {}

void ProfilesCheck::start(const XmlElement& element) {
    if (element.name == "Profile") return checkProfile(element);
    if (element.name == "Default" && !element.has("Default")) return checkDefault(element);
    if (element.name != "Template") return;
    for (const DialupProfileField& field : DialupProfileFields) {
        const QString problem = templateFieldProblem(field, element.value(field.attribute));
        if (!problem.isNull()) find(element.place, problem, "write a value that a new profile may have");
    }
}

void ProfilesCheck::checkProfile(const XmlElement& element) {
    DialupProfile profile;
    for (const DialupProfileField& field : DialupProfileFields) profile.*field.member = element.value(field.attribute);
    m_Names.append(profile.name);
    const QString who = "profile " + inQuotes(profile.name);
    for (const QString& problem : FieldRules::storedProblems(profile, NetConnectProfileRules::DefaultNameLength))
        find(element.place, who + ": " + problem, "write a value that can be entered, too");
    if (const XmlPlace* first = m_Profiles.meet(profile.name, element.place))
        find(element.place, who + " is there already, in " + lineText(*first), "give each profile a name of its own");
    checkPassword(element, profile);
}

void ProfilesCheck::checkPassword(const XmlElement& element, const DialupProfile& profile) {
    const QString whose = "the password of profile " + inQuotes(profile.name);
    const QString plain = "write it in plain text with encrypttype=\"2\"";
    const bool isBase64 = FieldRules::isBase64Method(profile.encrypttype);
    if (!isKnownMethod(profile.encrypttype))
        find(element.place, "encrypttype " + inQuotes(profile.encrypttype) + " is no method that is known",
             "write 2, which is read as a plain text or a sealed one");
    if (profile.password.isEmpty()) return;
    if (isSealed(profile.password) && (isBase64 || !m_bUsers))
        return find(element.place,
                    whose + (m_bUsers ? " is sealed, but is read as base64" : " is sealed, but is used as it stands"),
                    m_bUsers ? QString("write encrypttype=\"2\"") : plain);
    if (isBase64 && !m_bUsers)
        return find(element.place,
                    whose + " is meant to be base64, by its encrypttype, but is used as it stands until an import",
                    plain);
    if (!FieldRules::isPasswordReadable(profile))
        return find(element.place, whose + " is not base64, as its encrypttype says", plain);
    if (!NetConnectProfileRules::isPasswordKeepable(profile.password))
        find(element.place, whose + " holds other characters than Latin-1", "such a password can't be stored sealed");
}

void ProfilesCheck::checkDefault(const XmlElement& element) {
    if (!m_bUsers)
        return find(element.place, "a default in a file that is shipped, where nothing reads it",
                    "take it out; NetConnectConfig.xml proposes defaults");
    if (const XmlPlace* first = m_Defaults.meet(QString(), element.place))
        find(element.place, "a second default; the first is in " + lineText(*first), "keep one of them");
}

QString templateFieldProblem(const DialupProfileField& field, const QString& value) {
    if (value.isEmpty() || field.member == &DialupProfile::name) return QString();
    if (field.member == &DialupProfile::readonly && value != "true" && value != "false")
        return "readonly: must be true or false";
    if (field.member == &DialupProfile::password && isSealed(value))
        return "password: is sealed, but is read as plain text here";
    return FieldRules::valueProblem(field, value == "0.0.0.0" ? QString("") : value);
}
