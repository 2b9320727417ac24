// SPDX-License-Identifier: MIT
// backup, restore.

#include <QJsonArray>

#include "Command.h"
#include "CommandError.h"
#include "Commands.h"
#include "FileArgument.h"
#include "FileReplacement.h"
#include "Message.h"
#include "Output.h"
#include "ProfileDocument.h"
#include "ProfileSession.h"

namespace {

// Replaces what has the same name, and asks nothing.
class Replacing : public NetConnectClashPolicy {
public:
    bool replace(const QString&) override { return true; }
};

// Passwords stay in the form in which they are stored. False when there is no such file.
bool readDocument(const QString& path, ProfileDocument* document) {
    QByteArray content;
    Reason reason;
    const FileReplacement::Outcome outcome = FileReplacement::read(path, &content, &reason);
    if (outcome == FileReplacement::Missing) return false;
    if (outcome != FileReplacement::Done) throw CommandError::failed(withReason(path, reason.text()));
    if (document->scan(content)) return true;
    QXmlStreamReader reader(content);
    document->read(reader);
    if (reader.hasError())
        throw CommandError::failed(
            message("%1: line %2: %3", {path, QString::number(reader.lineNumber()), reader.errorString()}));
    return true;
}

QStringList namesOf(const ProfileDocument& document) {
    QStringList names;
    for (const DialupProfile& profile : document.profiles) names.append(profile.name);
    return names;
}

void write(const OutputFile& file, const ProfileDocument& document) {
    Reason reason;
    const QByteArray content = document.write();
    const bool isWritten =
        !content.isEmpty() && FileReplacement::write(file.path(), content, FileReplacement::Export,
                                                     FileReplacement::OverOld, &reason) == FileReplacement::Done;
    if (!isWritten) throw CommandError::failed(message("%1: can't be written: %2", {file.path(), reason.text()}));
    file.finish();
}

// The default that the user chose; null when he chose none.
QString chosenDefault(const ProfileDocument& document) {
    QString name;
    for (const ProfileDefaultEntry& entry : document.defaults)
        if (entry.kind == ProfileDefaultEntry::Plain) name = entry.value.isUserSet ? entry.value.name : QString();
    return name;
}

void importAll(ProfileSession& session, const QString& path) {
    QStringList names;
    session.require(session->GetDialUpProfileFromFile(&names, path), message("the backup can't be read"));
    names.removeDuplicates();
    session.loadNames();
    Replacing policy;
    const int status = session->ImportChosenProfiles(names, &policy);
    if (status != NetConnectSettingUILogic::NothingImported)
        session.require(status, message("the profiles can't be restored"));
}

// A preset that another SIM card offers waits for that card.
void setDefault(const ProfileSession& session, const QString& name) {
    if (name.isEmpty()) return;
    session.require(session->SetDefaultDialUpProfileName(name, true), message("the default can't be restored"));
}

}  // namespace

void backUp(const Invocation& invocation, Output& output) {
    const OutputFile file(invocation.arguments().first(), invocation.isSet("force"));
    ProfileSession session(ProfileSession::Exporting);
    session.requireUserFile();
    const QString users = session->UserFilePath();
    if (FileReplacement::isSameFile(users, file.path()))
        throw CommandError::refused(message("%1: is the user's profile file itself", {file.path()}));
    ProfileDocument document;
    readDocument(users, &document);  // before anybody made a profile there is none
    write(file, document);
    if (file.isStream()) return;
    output.result({{"file", file.path()}, {"saved", QJsonArray::fromStringList(namesOf(document))}},
                  {message("profiles saved to %1: %2", {file.path(), QString::number(document.profiles.size())})});
}

void restore(const Invocation& invocation, Output& output) {
    const InputFile file(invocation.arguments().first());
    ProfileDocument document;
    if (!readDocument(file.path(), &document))
        throw CommandError::notFound(message("%1: does not exist", {file.path()}));
    ProfileSession session(ProfileSession::Changing);
    importAll(session, file.path());
    setDefault(session, chosenDefault(document));
    session.finish();
    output.result({{"file", file.path()}, {"restored", QJsonArray::fromStringList(namesOf(document))}},
                  {message("profiles restored: %1", {QString::number(document.profiles.size())})});
}
