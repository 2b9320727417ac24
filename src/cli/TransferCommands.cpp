// SPDX-License-Identifier: MIT
// import, export.

#include <QJsonArray>

#include "Command.h"
#include "CommandError.h"
#include "Commands.h"
#include "FileArgument.h"
#include "Message.h"
#include "NetConnectProfileRules.h"
#include "Output.h"
#include "ProfileFieldRules.h"
#include "ProfileSession.h"

namespace FieldRules = ProfileFieldRules;

namespace {

// Answers every clash alike, but for profiles that are there as they are: those stay. Keeps which there were.
class SameAnswer : public NetConnectClashPolicy {
public:
    SameAnswer(bool replaces, const QSet<QString>& same) : m_bReplaces(replaces), m_Same(same) {}

    bool replace(const QString& name) override {
        m_Clashes.insert(name);
        return m_bReplaces && !m_Same.contains(name);
    }

    bool hasClashed(const QString& name) const { return m_Clashes.contains(name); }

private:
    const bool m_bReplaces;
    const QSet<QString> m_Same;
    QSet<QString> m_Clashes;
};

struct ImportResult {
    QString file;
    QStringList imported;
    QStringList replaced;
    QStringList skipped;
    QStringList same;
};

QStringList chosenNames(const Invocation& invocation) {
    QStringList names = invocation.arguments().mid(1);
    names.removeDuplicates();
    return names;
}

QString quotedAll(const QStringList& names) {
    QStringList all;
    for (const QString& name : names) all.append(quoted(name));
    return all.join(", ");
}

QStringList readCandidates(const ProfileSession& session, const QString& file) {
    QStringList names;
    const int status = session->GetDialUpProfileFromFile(&names, file);
    if (status == NetConnectSettingUILogic::FileMissing)
        throw CommandError::notFound(message("%1: does not exist", {file}));
    session.require(status, message("the file can't be imported"));
    names.removeDuplicates();
    return names;
}

QStringList chosenOf(const QStringList& candidates, const QStringList& wanted, const QString& file) {
    const QSet<QString> offered(candidates.begin(), candidates.end());
    QStringList unknown;
    for (const QString& name : wanted)
        if (!offered.contains(name)) unknown.append(name);
    if (!unknown.isEmpty()) throw CommandError::notFound(message("%1 holds no profile %2", {file, quotedAll(unknown)}));
    return wanted.isEmpty() ? candidates : wanted;
}

// The same profile, whatever its password is sealed with.
bool isSame(const ProfileSession& session, const DialupProfile& candidate) {
    if (!session->HasUserProfile(candidate.name)) return false;
    const DialupProfile own = session.profile(candidate.name);
    for (const DialupProfileField& field : DialupProfileFields) {
        const bool isOfPassword =
            field.member == &DialupProfile::password || field.member == &DialupProfile::encrypttype;
        if (!isOfPassword && candidate.*field.member != own.*field.member) return false;
    }
    if (!session.isOn("ENCRYPT")) return own.password == candidate.password;
    const QString method = FieldRules::isBase64Method(candidate.encrypttype) ? "1" : candidate.encrypttype;
    const QString opened = session->XorDecrypt(candidate.password, method);
    return own.password == opened && (!opened.isNull() || candidate.password.isEmpty());
}

QSet<QString> sameNames(const ProfileSession& session, const QStringList& chosen) {
    const QSet<QString> wanted(chosen.begin(), chosen.end());
    QSet<QString> same;
    QSet<QString> met;  // several of one name are not the one that is there
    for (const DialupProfile& candidate : session->ImportCandidates()) {
        if (!wanted.contains(candidate.name)) continue;
        if (met.contains(candidate.name))
            same.remove(candidate.name);
        else if (isSame(session, candidate))
            same.insert(candidate.name);
        met.insert(candidate.name);
    }
    return same;
}

ImportResult importChosen(const ProfileSession& session, const QString& file, const QStringList& chosen,
                          bool replaces) {
    const QSet<QString> same = sameNames(session, chosen);
    SameAnswer policy(replaces, same);
    const int status = session->ImportChosenProfiles(chosen, &policy);
    if (status != NetConnectSettingUILogic::NothingImported)
        session.require(status, message("the profiles can't be imported"));
    ImportResult result{file, {}, {}, {}, {}};
    for (const QString& name : chosen) {
        QStringList& list = !policy.hasClashed(name) ? result.imported
                            : same.contains(name)    ? result.same
                            : replaces               ? result.replaced
                                                     : result.skipped;
        list.append(name);
    }
    return result;
}

// What nobody could have entered is kept as it came.
void warnOfProblems(const ProfileSession& session, const QStringList& names) {
    const QSet<QString> imported(names.begin(), names.end());
    int nameLength = 0;
    session->GetFunctionConfigValue("ProfileNameLength", nameLength, NetConnectProfileRules::DefaultNameLength);
    for (const DialupProfile& profile : session->ImportCandidates()) {
        if (!imported.contains(profile.name)) continue;
        for (const QString& problem : FieldRules::storedProblems(profile, nameLength))
            printWarning(withReason(quoted(profile.name), problem));
        if (session.isOn("ENCRYPT") && !FieldRules::isPasswordReadable(profile))
            printWarning(message("the password of %1 is not base64, as its encrypttype says; set it again",
                                 {quoted(profile.name)}));
    }
}

void showImport(const ImportResult& result, Output& output) {
    QStringList lines;
    for (const QString& name : result.imported) lines.append(message("imported %1", {name}));
    for (const QString& name : result.replaced) lines.append(message("replaced %1", {name}));
    for (const QString& name : result.skipped) lines.append(message("skipped  %1 (exists; see --replace)", {name}));
    for (const QString& name : result.same) lines.append(message("same     %1", {name}));
    output.result({{"file", result.file},
                   {"imported", QJsonArray::fromStringList(result.imported)},
                   {"replaced", QJsonArray::fromStringList(result.replaced)},
                   {"skipped", QJsonArray::fromStringList(result.skipped)},
                   {"same", QJsonArray::fromStringList(result.same)}},
                  lines);
}

// Names all that are unknown, not only the first.
void requireAllKnown(const ProfileSession& session, const QStringList& names) {
    QStringList unknown;
    for (const QString& name : names)
        if (!session.hasProfile(name)) unknown.append(name);
    if (unknown.size() == 1) session.profile(unknown.first());  // throws, and knows why
    if (!unknown.isEmpty()) throw CommandError::notFound(message("there are no profiles %1", {quotedAll(unknown)}));
}

void checkWanted(const Invocation& invocation) {
    const bool hasNames = invocation.arguments().size() > 1;
    if (hasNames == invocation.isSet("all")) throw CommandError::usage(message("export takes names or --all"));
}

QStringList ownNames(const ProfileSession& session) {
    QStringList names;
    for (const QString& name : session.names())
        if (session->HasUserProfile(name)) names.append(name);
    if (names.isEmpty()) throw CommandError::notFound(message("there is no profile of one's own"));
    return names;
}

}  // namespace

void importProfiles(const Invocation& invocation, Output& output) {
    const InputFile input(invocation.arguments().first());
    const QString& file = input.path();
    ProfileSession session(ProfileSession::Changing);
    const QStringList candidates = readCandidates(session, file);
    session.loadNames();
    const QStringList chosen = chosenOf(candidates, chosenNames(invocation), file);
    const ImportResult result = importChosen(session, file, chosen, invocation.isSet("replace"));
    const QStringList taken = result.imported + result.replaced;
    if (!taken.isEmpty()) session.finish();
    showImport(result, output);
    if (chosen.isEmpty()) throw CommandError::failed(message("nothing was imported from %1", {file}));
    warnOfProblems(session, taken);
}

void exportProfiles(const Invocation& invocation, Output& output) {
    const OutputFile target(invocation.arguments().first(), invocation.isSet("force"));
    const QString& file = target.path();
    checkWanted(invocation);
    ProfileSession session(ProfileSession::Exporting);
    const QStringList names = invocation.isSet("all") ? ownNames(session) : chosenNames(invocation);
    requireAllKnown(session, names);
    session.require(session->ExportChosenProfiles(names, file), message("the profiles can't be exported"));
    const NetConnectStorageProblem problem = session->LastStorageProblem();
    if (problem.file == file) printWarning(problem.text());  // a damaged file stood there, and is kept
    target.finish();
    if (target.isStream()) return session.finish();
    output.result({{"file", file}, {"exported", QJsonArray::fromStringList(names)}},
                  {message("exported %1 to %2", {quotedAll(names), file})});
    session.finish();
}
