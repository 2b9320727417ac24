// import, export.

#include <QJsonArray>

#include "Command.h"
#include "CommandError.h"
#include "Commands.h"
#include "FileArgument.h"
#include "Output.h"
#include "ProfileSession.h"

namespace {

// Answers every clash alike, and keeps which there were.
class SameAnswer : public NetConnectClashPolicy {
public:
    explicit SameAnswer(bool replaces) : m_bReplaces(replaces) {}

    bool replace(const QString& name) override {
        m_Clashes.insert(name);
        return m_bReplaces;
    }

    bool hasClashed(const QString& name) const { return m_Clashes.contains(name); }

private:
    const bool m_bReplaces;
    QSet<QString> m_Clashes;
};

struct ImportResult {
    QString file;
    QStringList imported;
    QStringList replaced;
    QStringList skipped;
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
    if (status == NetConnectSettingUILogic::FileMissing) throw CommandError::notFound(file + ": does not exist");
    session.require(status, "the file can't be imported");
    names.removeDuplicates();
    return names;
}

QStringList chosenOf(const QStringList& candidates, const QStringList& wanted, const QString& file) {
    const QSet<QString> offered(candidates.begin(), candidates.end());
    QStringList unknown;
    for (const QString& name : wanted)
        if (!offered.contains(name)) unknown.append(name);
    if (!unknown.isEmpty()) throw CommandError::notFound(file + " holds no profile " + quotedAll(unknown));
    return wanted.isEmpty() ? candidates : wanted;
}

ImportResult importChosen(const ProfileSession& session, const QString& file, const QStringList& chosen,
                          bool replaces) {
    SameAnswer policy(replaces);
    const int status = session->ImportChosenProfiles(chosen, &policy);
    if (status != NetConnectSettingUILogic::NothingImported) session.require(status, "the profiles can't be imported");
    ImportResult result{file, {}, {}, {}};
    for (const QString& name : chosen) {
        const bool clashed = policy.hasClashed(name);
        (!clashed ? result.imported : replaces ? result.replaced : result.skipped).append(name);
    }
    return result;
}

// True for a password that the base64 method would turn into garbage.
bool isUnreadable(const DialupProfile& profile) {
    static const QStringList base64Methods{"", "0", "1"};
    if (profile.password.isEmpty() || !base64Methods.contains(profile.encrypttype)) return false;
    const auto decoded =
        QByteArray::fromBase64Encoding(profile.password.toUtf8(), QByteArray::AbortOnBase64DecodingErrors);
    return !decoded || QString::fromUtf8(*decoded).toUtf8() != *decoded;
}

void warnOfUnreadablePasswords(const ProfileSession& session, const QStringList& names) {
    if (!session.isOn("ENCRYPT")) return;
    const QSet<QString> imported(names.begin(), names.end());
    for (const DialupProfile& profile : session->ImportCandidates())
        if (imported.contains(profile.name) && isUnreadable(profile))
            printWarning("the password of " + quoted(profile.name) +
                         " is not base64, as its encrypttype says; set it again");
}

void showImport(const ImportResult& result, Output& output) {
    QStringList lines;
    for (const QString& name : result.imported) lines.append("imported " + name);
    for (const QString& name : result.replaced) lines.append("replaced " + name);
    for (const QString& name : result.skipped) lines.append("skipped  " + name + " (exists; see --replace)");
    output.result({{"file", result.file},
                   {"imported", QJsonArray::fromStringList(result.imported)},
                   {"replaced", QJsonArray::fromStringList(result.replaced)},
                   {"skipped", QJsonArray::fromStringList(result.skipped)}},
                  lines);
}

// Names all that are unknown, not only the first.
void requireAllKnown(const ProfileSession& session, const QStringList& names) {
    QStringList unknown;
    for (const QString& name : names)
        if (!session.hasProfile(name)) unknown.append(name);
    if (unknown.size() == 1) session.profile(unknown.first());  // throws, and knows why
    if (!unknown.isEmpty()) throw CommandError::notFound("there are no profiles " + quotedAll(unknown));
}

void checkWanted(const Invocation& invocation) {
    const bool hasNames = invocation.arguments().size() > 1;
    if (hasNames == invocation.isSet("all")) throw CommandError::usage("export takes names or --all");
}

QStringList ownNames(const ProfileSession& session) {
    QStringList names;
    for (const QString& name : session.names())
        if (session->HasUserProfile(name)) names.append(name);
    if (names.isEmpty()) throw CommandError::notFound("there is no profile of one's own");
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
    if (chosen.isEmpty()) throw CommandError::failed("nothing was imported from " + file);
    warnOfUnreadablePasswords(session, taken);
}

void exportProfiles(const Invocation& invocation, Output& output) {
    const OutputFile target(invocation.arguments().first(), invocation.isSet("force"));
    const QString& file = target.path();
    checkWanted(invocation);
    ProfileSession session(ProfileSession::Exporting);
    const QStringList names = invocation.isSet("all") ? ownNames(session) : chosenNames(invocation);
    requireAllKnown(session, names);
    session.require(session->ExportChosenProfiles(names, file), "the profiles can't be exported");
    const NetConnectStorageProblem problem = session->LastStorageProblem();
    if (problem.file == file) printWarning(problem.text());  // a damaged file stood there, and is kept
    target.finish();
    if (target.isStream()) return session.finish();
    output.result({{"file", file}, {"exported", QJsonArray::fromStringList(names)}},
                  {QString("exported %1 to %2").arg(quotedAll(names), file)});
    session.finish();
}
