#include "ProfileFields.h"

#include <QRegularExpression>
#include <algorithm>

#include "CommandError.h"
#include "HiddenInput.h"
#include "NetConnectProfileRules.h"
#include "XmlText.h"

namespace Rules = NetConnectProfileRules;

namespace {

enum class Kind { Text, APN, Flag, Address, Fixed };

// What a value of each field may be; a length of 0 is no limit, and the name's is configured. The fixed ones are not
// for the user: who may change the profile, whether its name is translated, and how its password is stored.
struct FieldRule {
    const char* field;
    Kind kind;
    int length;
};

const FieldRule FieldRules[] = {
    {"name", Kind::Text, 0},
    {"type", Kind::Text, 0},
    {"readonly", Kind::Fixed, 0},
    {"device", Kind::Text, 0},
    {"user", Kind::Text, Rules::UserNameLength},
    {"password", Kind::Text, Rules::PasswordLength},
    {"phonenumber", Kind::Text, Rules::AccessNumberLength},
    {"autoapn", Kind::Flag, 0},
    {"apn", Kind::APN, Rules::APNLength},
    {"chap", Kind::Flag, 0},
    {"pap", Kind::Flag, 0},
    {"ip", Kind::Address, 0},
    {"dns", Kind::Address, 0},
    {"dnsalt", Kind::Address, 0},
    {"wins", Kind::Address, 0},
    {"winsalt", Kind::Address, 0},
    {"popusername", Kind::Flag, 0},
    {"Remember", Kind::Flag, 0},
    {"langid", Kind::Fixed, 0},
    {"encrypttype", Kind::Fixed, 0},
};

const FieldRule* findRule(const QString& name) {
    for (const FieldRule& rule : FieldRules)
        if (rule.kind != Kind::Fixed && name == rule.field) return &rule;
    return nullptr;
}

const DialupProfileField* findField(const QString& name) {
    return std::find_if(std::begin(DialupProfileFields), std::end(DialupProfileFields),
                        [&](const DialupProfileField& field) { return name == field.attribute; });
}

QString settableFields() {
    QStringList fields;
    for (const FieldRule& rule : FieldRules)
        if (rule.kind != Kind::Fixed) fields.append(rule.field);
    return fields.join(' ');
}

void require(bool isFulfilled, const QString& text) {
    if (!isFulfilled) throw CommandError::failed(text);
}

// True when the text comes back from the file as it is.
bool isStorable(const QString& text) {
    const auto isControl = [](QChar c) { return c.category() == QChar::Other_Control; };
    return XmlText::clean(text) == text && std::none_of(text.begin(), text.end(), isControl);
}

// Of a unicast host, as the advanced settings take it.
bool isAddress(const QString& text) {
    static const QRegularExpression pattern(
        "\\A(22[0-3]|2[01]\\d|1\\d\\d|[1-9]\\d?)(\\.(25[0-5]|2[0-4]\\d|1\\d\\d|[1-9]?\\d)){3}\\z");
    return text.isEmpty() || pattern.match(text).hasMatch();
}

void checkValue(const FieldRule& rule, const QString& value) {
    const QString field = rule.field;
    require(isStorable(value), field + ": control characters can't be stored");
    require(rule.length == 0 || value.size() <= rule.length,
            QString("%1: at most %2 characters").arg(field).arg(rule.length));
    require(rule.kind != Kind::Flag || value == "true" || value == "false", field + ": must be true or false");
    require(rule.kind != Kind::Address || isAddress(value),
            field + ": must be empty or an IPv4 address such as 192.0.2.1");
    require(rule.kind != Kind::APN || Rules::isAPNTypeable(value),
            field + ": may hold letters, digits, dots and hyphens");
}

QString valueOf(const FieldRule& rule, const QString& text) {
    if (rule.field == QLatin1String("password") && text == "-") return readHiddenLine("Password: ");
    return rule.kind == Kind::Address && text == "0.0.0.0" ? QString("") : text;
}

}  // namespace

static_assert(sizeof(FieldRules) / sizeof(FieldRules[0]) == DialupProfileFieldCount, "every field has its rule");

FieldAssignments::FieldAssignments(const QStringList& arguments) {
    for (const QString& argument : arguments) {
        const int sign = argument.indexOf('=');
        // The value may be a password in the wrong place: it is not repeated.
        if (sign < 0) throw CommandError::usage("an argument is not FIELD=VALUE; fields: " + settableFields());
        const QString name = argument.left(sign);
        const FieldRule* rule = findRule(name);
        if (!rule) throw CommandError::usage(quoted(name) + " is no field to set; fields: " + settableFields());
        if (contains(rule->field)) throw CommandError::usage("the field " + quoted(name) + " is given twice");
        const QString value = valueOf(*rule, argument.mid(sign + 1));
        checkValue(*rule, value);
        m_Assignments.append({findField(name), value});
    }
}

bool FieldAssignments::contains(const char* field) const {
    return std::any_of(m_Assignments.begin(), m_Assignments.end(), [&](const Assignment& assignment) {
        return QLatin1String(assignment.field->attribute) == QLatin1String(field);
    });
}

void FieldAssignments::applyTo(DialupProfile* profile) const {
    for (const Assignment& assignment : m_Assignments) profile->*assignment.field->member = assignment.value;
    // A plain password stored under the keyed method reads as it is, whether the configuration seals or not.
    if (contains("password")) profile->encrypttype = "2";
    // As on the page, naming an access point is to use it.
    if (contains("apn") && !contains("autoapn")) profile->autoapn = profile->apn.isEmpty() ? "true" : "false";
}

void checkProfile(const ProfileSession& session, const DialupProfile& profile, const QString& oldName) {
    const bool isNewName = profile.name != oldName;
    int nameLength = 0;
    session->GetFunctionConfigValue("ProfileNameLength", nameLength, Rules::DefaultNameLength);

    require(Rules::isNamePresent(profile.name), "a profile needs a name");
    require(!isNewName || !session.names().contains(profile.name),
            "there is a profile " + quoted(profile.name) + " already");
    require(Rules::isNameAcceptable(profile.name),
            QString("a name must not contain any of ") + Rules::ForbiddenNameCharacters);
    require(!isNewName || isStorable(profile.name), "a name must not contain control characters");
    require(!isNewName || nameLength <= 0 || profile.name.size() <= nameLength,
            QString("a name has at most %1 characters").arg(nameLength));
    require(Rules::isAccessNumberPresent(profile.phonenumber),
            "a profile needs an access number, for example phonenumber=*99#");
    require(Rules::isAPNAcceptable(profile.apn), "apn: must begin and end with a letter or a digit");
    require(!session.isOn("ENCRYPT") || Rules::isPasswordKeepable(profile.password),
            "password: only Latin-1 characters can be stored sealed");
}
