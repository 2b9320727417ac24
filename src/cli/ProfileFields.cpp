#include "ProfileFields.h"

#include <QRegularExpression>
#include <algorithm>
#include <iterator>

#include "CommandError.h"
#include "Commands.h"
#include "HiddenInput.h"
#include "NetConnectProfileRules.h"
#include "Output.h"
#include "XmlText.h"

namespace Rules = NetConnectProfileRules;

namespace {

enum class Kind { Text, APN, Flag, Address, Fixed };

// What a value of each field may be; a length of 0 is no limit, and the name's is configured. The fixed ones are not
// for the user: who may change the profile, whether its name is translated, and how its password is stored.
struct FieldRule {
    QString DialupProfile::*field;
    Kind kind;
    int length;
};

constexpr FieldRule FieldRules[] = {
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

const FieldRule& ruleOf(const DialupProfileField& field) {
    return *std::find_if(std::begin(FieldRules), std::end(FieldRules),
                         [&](const FieldRule& rule) { return rule.field == field.member; });
}

// Null for what is no field, or not for the user to set.
const DialupProfileField* findSettable(const QString& name) {
    for (const DialupProfileField& field : DialupProfileFields)
        if (name == field.attribute && ruleOf(field).kind != Kind::Fixed) return &field;
    return nullptr;
}

QString settableFields() {
    QStringList fields;
    for (const DialupProfileField& field : DialupProfileFields)
        if (ruleOf(field).kind != Kind::Fixed) fields.append(field.attribute);
    return fields.join(' ');
}

QString kindText(Kind kind) {
    switch (kind) {
        case Kind::APN:
            return "letters, digits, dots and hyphens";
        case Kind::Flag:
            return "true or false";
        case Kind::Address:
            return "an IPv4 address, or nothing";
        default:
            return "text";
    }
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

void checkValue(const DialupProfileField& field, const QString& value) {
    const FieldRule& rule = ruleOf(field);
    const QString name = field.attribute;
    require(isStorable(value), name + ": control characters can't be stored");
    require(rule.length == 0 || value.size() <= rule.length,
            QString("%1: at most %2 characters").arg(name).arg(rule.length));
    require(rule.kind != Kind::Flag || value == "true" || value == "false", name + ": must be true or false");
    require(rule.kind != Kind::Address || isAddress(value),
            name + ": must be empty or an IPv4 address such as 192.0.2.1");
    require(rule.kind != Kind::APN || Rules::isAPNTypeable(value),
            name + ": may hold letters, digits, dots and hyphens");
}

QString valueOf(const DialupProfileField& field, const QString& text) {
    if (field.member == &DialupProfile::password && text == "-") return readHiddenLine("Password: ");
    return ruleOf(field).kind == Kind::Address && text == "0.0.0.0" ? QString("") : text;
}

}  // namespace

QString settableFieldsHelp() {
    QString text = "\nFields:\n";
    for (const DialupProfileField& field : DialupProfileFields) {
        const FieldRule& rule = ruleOf(field);
        if (rule.kind == Kind::Fixed) continue;
        const QString most = rule.length ? QString(", at most %1 characters").arg(rule.length) : QString();
        text += QString("  %1 %2%3\n").arg(field.attribute, -12).arg(kindText(rule.kind), most);
    }
    return text;
}

FieldAssignments::FieldAssignments(const QStringList& arguments) {
    for (const QString& argument : arguments) {
        const int sign = argument.indexOf('=');
        // The value may be a password in the wrong place: it is not repeated.
        if (sign < 0) throw CommandError::usage("an argument is not FIELD=VALUE; fields: " + settableFields());
        const QString name = argument.left(sign);
        const QString text = argument.mid(sign + 1);
        const DialupProfileField* field = findSettable(name);
        if (!field) throw CommandError::usage(quoted(name) + " is no field to set; fields: " + settableFields());
        if (contains(field->attribute)) throw CommandError::usage("the field " + quoted(name) + " is given twice");
        const QString value = valueOf(*field, text);
        checkValue(*field, value);
        m_Assignments.append({field, value});
        m_bShowsPassword |= field->member == &DialupProfile::password && !text.isEmpty() && text != "-";
    }
}

void FieldAssignments::warnOfShownPassword() const {
    if (m_bShowsPassword)
        printWarning("others can read a password on the command line in the list of processes; use password=-");
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
    if (isNewName && session.names().contains(profile.name))
        throw CommandError::refused("there is a profile " + quoted(profile.name) + " already");
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
