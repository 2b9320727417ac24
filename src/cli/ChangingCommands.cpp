// SPDX-License-Identifier: MIT
// add, set, delete, default.

#include "Command.h"
#include "CommandError.h"
#include "Commands.h"
#include "ConnectionSettings.h"
#include "Message.h"
#include "Output.h"
#include "ProfileFields.h"
#include "ProfileSession.h"

namespace {

// A profile whose fields go into the file again; a password that can't be opened would be lost without a word.
DialupProfile profileToStore(const ProfileSession& session, const QString& name, const FieldAssignments& changes) {
    return changes.contains("password") ? session.profile(name) : session.readableProfile(name);
}

DialupProfile templateProfile(const ProfileSession& session) {
    DialupProfile profile;
    if (session->NewDialUpProfileTemplate(&profile) != NetConnectSettingUILogic::Success)
        throw CommandError::failed(message("%1: holds no template for new profiles; see --like",
                                           {NetConnectXMLParse::shippedPath(NetConnectFileNames::System)}));
    return profile;
}

// A profile of the user's own, equal to another in everything but what ties that one to its maker.
DialupProfile copyOf(const ProfileSession& session, const QString& name, const FieldAssignments& changes) {
    DialupProfile profile = profileToStore(session, name, changes);
    profile.readonly = "false";
    profile.langid = "";
    return profile;
}

void requireNameFree(int status, const QString& name) {
    if (status == NetConnectSettingUILogic::NameTaken)
        throw CommandError::refused(message("there is a profile %1 already", {quoted(name)}));
}

void followRenaming(const QString& before, const QString& after) {
    if (!AutoConnectSettings::rename(before, after))
        printWarning(message("the settings of automatic connection can't be stored"));
}

void showDefault(Output& output) {
    ProfileSession session(ProfileSession::Reading);
    const QString name = session.defaultName();
    const bool isUserSet = session->IsDefaultUserSet();
    QStringList lines;
    if (!name.isEmpty())
        lines.append(message(isUserSet ? QT_TRANSLATE_NOOP("Programs", "%1 (chosen by the user)")
                                       : QT_TRANSLATE_NOOP("Programs", "%1 (proposed by the configuration)"),
                             {name}));
    output.result({{"name", name}, {"userSet", isUserSet}}, lines);
    session.finish();
}

void storeDefault(const QString& name, Output& output) {
    ProfileSession session(ProfileSession::Changing);
    if (!name.isEmpty() && !session.names().contains(name))
        throw CommandError::notFound(message("there is no profile %1", {quoted(name)}));
    session.require(session->SetDefaultDialUpProfileName(name, !name.isEmpty()), message("the default can't be set"));
    const bool isUserSet = session->IsDefaultUserSet();
    session.finish();
    output.result({{"name", name}, {"userSet", isUserSet}}, {});
}

}  // namespace

void addProfile(const Invocation& invocation, Output& output) {
    const QString name = invocation.arguments().first();
    const FieldAssignments fields(invocation.arguments().mid(1));
    if (fields.contains("name")) throw CommandError::usage(message("the new profile's name is the first argument"));
    ProfileSession session(ProfileSession::Changing);
    DialupProfile profile =
        invocation.isSet("like") ? copyOf(session, invocation.value("like"), fields) : templateProfile(session);
    profile.name = name;
    fields.applyTo(&profile);
    checkProfile(session, profile, QString());
    const int status = session->AddDialUpProfile(profile);
    requireNameFree(status, name);
    session.require(status, message("the profile can't be added"));
    session.finish();
    fields.warn();
    output.result({{"added", name}}, {});
}

void setFields(const Invocation& invocation, Output& output) {
    const QString name = invocation.arguments().first();
    const FieldAssignments changes(invocation.arguments().mid(1));
    ProfileSession session(ProfileSession::Changing);
    DialupProfile profile = profileToStore(session, name, changes);
    session.requireChangeable(profile);
    changes.applyTo(&profile);
    checkProfile(session, profile, name);
    const int status = session->ReplaceDialUpProfile(name, profile);
    requireNameFree(status, profile.name);
    session.require(status, message("the profile can't be changed"));
    session.finish();
    followRenaming(name, profile.name);
    changes.warn();
    output.result({{"changed", profile.name}}, {});
}

void deleteProfiles(const Invocation& invocation, Output& output) {
    QStringList names = invocation.arguments();
    names.removeDuplicates();
    ProfileSession session(ProfileSession::Changing);
    for (const QString& name : names) session.requireOwn(session.profile(name));
    for (const QString& name : names) {
        session.require(session->ForgetDefault(name), message("the default can't be cleared"));
        session.require(session->DelDialUpProfile(name), message("the profile can't be deleted"));
    }
    session.finish();
    for (const QString& name : names)
        if (!AutoConnectSettings::forget(name))
            printWarning(message("the settings of automatic connection can't be stored"));
    for (const QString& name : names) output.result({{"deleted", name}}, {});
}

void defaultProfile(const Invocation& invocation, Output& output) {
    const bool hasName = !invocation.arguments().isEmpty();
    if (invocation.isSet("clear")) {
        if (hasName) throw CommandError::usage(message("default takes a name or --clear, not both"));
        return storeDefault(QString(""), output);
    }
    if (!hasName) return showDefault(output);
    if (invocation.arguments().first().isEmpty())
        throw CommandError::usage(message("the name is empty; see default --clear"));
    storeDefault(invocation.arguments().first(), output);
}
