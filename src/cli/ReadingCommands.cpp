// SPDX-License-Identifier: MIT
// list, show, config.

#include <QJsonArray>
#include <algorithm>

#include "Command.h"
#include "CommandError.h"
#include "Commands.h"
#include "ConnectionText.h"
#include "Message.h"
#include "ModemReport.h"
#include "Output.h"
#include "ProfileSession.h"
#include "TerminalText.h"

namespace {

// Where a profile comes from.
const char User[] = QT_TRANSLATE_NOOP("Programs", "user");
const char Preset[] = QT_TRANSLATE_NOOP("Programs", "preset");

// A profile's fields, as an object and as lines.
QJsonObject describe(const DialupProfile& profile, bool showsSecrets, QStringList* lines) {
    QJsonObject object;
    for (const DialupProfileField& field : DialupProfileFields) {
        const QString value = profile.*field.member;
        const bool isHidden = field.member == &DialupProfile::password && !value.isEmpty() && !showsSecrets;
        object[field.attribute] = isHidden ? QJsonValue() : QJsonValue(value);
        lines->append(QString("%1 %2").arg(field.attribute, -12).arg(isHidden ? message("(hidden)") : value));
    }
    return object;
}

// Presets are missing then, and the user is told as by every other command.
QString withoutCard() { return ConnectionText::failure(VRKS_FAILURE_NO_MODEM_SERVICE, QString()); }

}  // namespace

void listProfiles(const Invocation&, Output& output) {
    ProfileSession session(ProfileSession::Reading);
    const QString defaultName = session.defaultName();
    const int width = std::max(TerminalText::columns(message(User)), TerminalText::columns(message(Preset)));
    QJsonArray profiles;
    QStringList lines;
    for (const QString& name : session.names()) {
        const bool isDefault = name == defaultName;
        const char* const source = session->HasUserProfile(name) ? User : Preset;
        profiles.append(QJsonObject{{"name", name}, {"default", isDefault}, {"source", source}});
        lines.append(
            QString("%1 %2 %3").arg(isDefault ? "*" : " ", TerminalText::padded(message(source), width), name));
    }
    output.result({{"profiles", profiles}}, lines);
    session.finish();
    if (ModemReport::isServiceMissing()) printWarning(withoutCard());
}

void showProfiles(const Invocation& invocation, Output& output) {
    ProfileSession session(ProfileSession::Reading);
    QList<DialupProfile> profiles;
    for (const QString& name : invocation.arguments()) profiles.append(session.profile(name));
    for (int i = 0; i < profiles.size(); ++i) {
        QStringList lines;
        if (i > 0) lines.append(QString());
        const QJsonObject object = describe(profiles.at(i), invocation.isSet("secrets"), &lines);
        output.result(object, lines);
        for (const QString& note : ConnectionText::notes(profiles.at(i))) printWarning(note);
    }
    session.finish();
}

void showConfiguration(const Invocation& invocation, Output& output) {
    if (invocation.isSet("check")) return checkShippedFiles(invocation, output);
    if (invocation.arguments().size() > 1)
        throw CommandError::usage(message("config takes one key; see config --check"));
    ProfileSession session(ProfileSession::Reading);
    const QStringList all = session->FunctionConfigKeys();
    const QStringList keys = invocation.arguments().isEmpty() ? all : invocation.arguments();
    const bool isAll = invocation.arguments().isEmpty();
    QJsonObject object;
    QStringList lines;
    for (const QString& key : keys) {
        if (!all.contains(key))
            throw CommandError::notFound(message("there is no configuration key %1", {quoted(key)}));
        QString value;
        session->GetFunctionConfigStringValues(key, &value);
        object[key] = value;
        lines.append(isAll ? key + '=' + value : value);
    }
    output.result(object, lines);
    session.finish();
}
