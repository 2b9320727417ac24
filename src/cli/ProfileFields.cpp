// SPDX-License-Identifier: MIT
#include "ProfileFields.h"

#include <algorithm>

#include "CommandError.h"
#include "Commands.h"
#include "ConnectionText.h"
#include "HiddenInput.h"
#include "Message.h"
#include "NetConnectProfileRules.h"
#include "Output.h"
#include "ProfileFieldRules.h"
#include "ReasonText.h"

namespace Rules = NetConnectProfileRules;
namespace FieldRules = ProfileFieldRules;

namespace {

using FieldRules::Kind;

// Null for what is no field, or not for the user to set.
const DialupProfileField* findSettable(const QString& name) {
    for (const DialupProfileField& field : DialupProfileFields)
        if (name == field.attribute && FieldRules::of(field).kind != Kind::Fixed) return &field;
    return nullptr;
}

QString settableFields() { return settableFieldNames().join(' '); }

QString kindText(Kind kind) {
    switch (kind) {
        case Kind::APN:
            return message("letters, digits, dots and hyphens");
        case Kind::Flag:
            return message("true or false");
        case Kind::Address:
            return message("an IPv4 address, or nothing");
        default:
            return message("text");
    }
}

void require(bool isFulfilled, const QString& text) {
    if (!isFulfilled) throw CommandError::failed(text);
}

void requireNone(const QString& problem) { require(problem.isNull(), problem); }

QString valueOf(const DialupProfileField& field, const QString& text) {
    if (field.member == &DialupProfile::password && text == "-") return readPassword(message("Password: "));
    return FieldRules::of(field).kind == Kind::Address && text == "0.0.0.0" ? QString("") : text;
}

}  // namespace

QStringList settableFieldNames() {
    QStringList fields;
    for (const DialupProfileField& field : DialupProfileFields)
        if (FieldRules::of(field).kind != Kind::Fixed) fields.append(field.attribute);
    return fields;
}

bool isFlagField(const QString& name) {
    const DialupProfileField* const field = findSettable(name);
    return field && FieldRules::of(*field).kind == Kind::Flag;
}

QString settableFieldsHelp() {
    QString text = '\n' + message("Fields:") + '\n';
    for (const DialupProfileField& field : DialupProfileFields) {
        const FieldRules::Rule& rule = FieldRules::of(field);
        if (rule.kind == Kind::Fixed) continue;
        const QString kind = kindText(rule.kind);
        const QString help =
            rule.length ? message("%1, at most %2 characters", {kind, QString::number(rule.length)}) : kind;
        text += QString("  %1 %2\n").arg(field.attribute, -12).arg(help);
    }
    return text;
}

FieldAssignments::FieldAssignments(const QStringList& arguments) {
    for (const QString& argument : arguments) {
        const int sign = argument.indexOf('=');
        // The value may be a password in the wrong place: it is not repeated.
        if (sign < 0)
            throw CommandError::usage(message("an argument is not FIELD=VALUE; fields: %1", {settableFields()}));
        const QString name = argument.left(sign);
        const QString text = argument.mid(sign + 1);
        const DialupProfileField* field = findSettable(name);
        if (!field)
            throw CommandError::usage(message("%1 is no field to set; fields: %2", {quoted(name), settableFields()}));
        if (contains(field->attribute))
            throw CommandError::usage(message("the field %1 is given twice", {quoted(name)}));
        const QString value = valueOf(*field, text);
        requireNone(FieldRules::valueProblem(*field, value));
        m_Assignments.append({field, value});
        m_bShowsPassword |= field->member == &DialupProfile::password && !text.isEmpty() && text != "-";
    }
}

void FieldAssignments::warn() const {
    if (m_bShowsPassword)
        printWarning(
            message("others can read a password on the command line in the list of processes; use password=-"));
    DialupProfile given;
    applyTo(&given);
    for (const QString& note : ConnectionText::notes(given)) printWarning(note);
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

    require(Rules::isNamePresent(profile.name), reasonText("a profile needs a name"));
    if (isNewName && session.names().contains(profile.name))
        throw CommandError::refused(message("there is a profile %1 already", {quoted(profile.name)}));
    requireNone(FieldRules::nameProblem(profile.name));
    require(!isNewName || FieldRules::isStorable(profile.name),
            reasonText("a name must not contain control characters"));
    if (isNewName) requireNone(FieldRules::nameLengthProblem(profile.name, nameLength));
    require(Rules::isAccessNumberPresent(profile.phonenumber),
            reasonText("a profile needs an access number, for example phonenumber=*99#"));
    require(Rules::isAPNAcceptable(profile.apn), reasonText("apn: must begin and end with a letter or a digit"));
    require(!session.isOn("ENCRYPT") || Rules::isPasswordKeepable(profile.password),
            message("password: only Latin-1 characters can be stored sealed"));
}
