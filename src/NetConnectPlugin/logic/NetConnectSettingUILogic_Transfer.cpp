// SPDX-License-Identifier: MIT
// Import and export.

#include <QVector>

#include "FileReplacement.h"
#include "NetConnectLogicHold.h"
#include "NetConnectOperation.h"
#include "NetConnectProfileRules.h"
#include "NetConnectSettingUILogic.h"
#include "ReasonText.h"
#include "UserFileLock.h"

// Where the profiles of a name stand in a list, which may hold several of one name.
class NetConnectSettingUILogic::ProfilesByName {
public:
    explicit ProfilesByName(const QList<DialupProfile>& profiles) : m_Profiles(profiles), m_Next(profiles.size(), -1) {
        m_First.reserve(profiles.size());
        for (int i = profiles.size() - 1; i >= 0; --i) {
            m_Next[i] = m_First.value(profiles.at(i).name, -1);
            m_First.insert(profiles.at(i).name, i);
        }
    }
    bool contains(const QString& name) const { return m_First.contains(name); }
    QList<int> places(const QString& name) const {
        QList<int> result;
        for (int i = m_First.value(name, -1); i >= 0; i = m_Next.at(i)) result.append(i);
        return result;
    }
    const DialupProfile& at(int place) const { return m_Profiles.at(place); }

private:
    QList<DialupProfile> m_Profiles;
    QHash<QString, int> m_First;  // place of a name
    QVector<int> m_Next;          // place of the same name after a place; -1 for none
};

int NetConnectSettingUILogic::GetDialUpProfileFromFile(QList<QString>* names, QString path) {
    const Hold hold(this);
    m_ImportList.clear();
    if (!names) return FileMissing;
    if (!m_pXMLParse) return ObjectMissing;
    m_Store.readAwaited();
    const QString file = path.isEmpty() ? QString::fromLatin1(NetConnectFileNames::Library) : path;
    const NetConnectDefault own(m_strDefaultProfile, m_bIsUserSet);
    const int status = readForeignFile(&m_ImportList, &m_strDefaultProfile, file);
    if (!m_bForeignDefault && m_strDefaultProfile != own.name) {
        m_bForeignDefault = true;
        m_OwnDefault = own;
    }
    if (status != Success) return status;
    for (int i = 0; i < m_ImportList.size(); ++i) {
        translateName(&m_ImportList, i);
        if (!m_ImportList.at(i).name.isEmpty()) names->append(m_ImportList.at(i).name);
    }
    return status;
}

const QList<DialupProfile>& NetConnectSettingUILogic::ImportCandidates() const { return m_ImportList; }

// A name that was chosen for an import.
struct NetConnectSettingUILogic::ImportChoice {
    QString name;
    QString storedName;  // which is cut to length
    bool isTwice;        // an earlier choice has the same stored name
    bool isAsked;
    bool isTaken;
};

// A name that is chosen twice is one name.
QList<NetConnectSettingUILogic::ImportChoice> NetConnectSettingUILogic::importChoices(const QStringList& names) {
    QList<ImportChoice> choices;
    QSet<QString> known;
    QSet<QString> cut;  // stored names of the long ones
    known.reserve(names.size());
    for (int i = 0; i < names.size(); ++i) {
        const QString& name = names.at(i);
        const QString stored = NetConnectProfileRules::cutToLength(name, NetConnectProfileRules::DefaultNameLength);
        const bool isCut = stored.size() != name.size();
        const bool isTwice = cut.contains(stored) || (isCut && known.contains(stored));
        const int before = known.size();
        known.insert(name);
        if (known.size() == before) continue;
        if (isCut) cut.insert(stored);
        const ImportChoice choice = {name, stored, isTwice, false, true};
        choices.append(choice);
    }
    return choices;
}

// The choices that were not asked about yet though a profile of their name is listed, is the user's or comes before
// them.
QList<int> NetConnectSettingUILogic::openClashes(const QList<ImportChoice>& choices, const QSet<QString>& listed) {
    QList<int> clashes;
    for (int i = 0; i < choices.size(); ++i) {
        const ImportChoice& choice = choices.at(i);
        if (choice.isAsked) continue;
        if (choice.isTwice || listed.contains(choice.storedName) || HasUserProfile(choice.storedName))
            clashes.append(i);
    }
    return clashes;
}

int NetConnectSettingUILogic::ImportChosenProfiles(const QStringList& names, NetConnectClashPolicy* policy) {
    const Hold hold(this);
    if (!m_pXMLParse) return ObjectMissing;
    if (!policy) return FileMissing;
    if (names.isEmpty()) return NothingImported;

    // Every question comes before the first change: while one is on screen events run that look at the lists, and
    // other processes must not wait. A profile that one of them adds meanwhile raises a question of its own.
    const QList<DialupProfile> candidates = m_ImportList;
    QList<ImportChoice> choices = importChoices(names);
    QSet<QString> listed;
    listed.reserve(m_ProfileNameList.size());
    for (int i = 0; i < m_ProfileNameList.size(); ++i) listed.insert(m_ProfileNameList.at(i));
    for (;;) {
        const QList<int> clashes = openClashes(choices, listed);
        for (int i = 0; i < clashes.size(); ++i) {
            ImportChoice& choice = choices[clashes.at(i)];
            choice.isAsked = true;
            choice.isTaken = policy->replaceFirstOf(choice.name, clashes.size() - i);
            if (hold.isLogicGone()) return ObjectMissing;
        }
        NetConnectOperation operation;
        if (!openClashes(choices, listed).isEmpty()) continue;

        m_ImportList = candidates;
        if (!addCandidates(choices)) return NothingImported;
        const int status = operation.store();
        if (status == Success) m_bForeignDefault = false;  // it is the user's now
        return status;
    }
}

// Adds the chosen candidates; a replaced profile goes only when one of its name comes. False when none came.
bool NetConnectSettingUILogic::addCandidates(const QList<ImportChoice>& choices) {
    const ProfilesByName candidates(m_ImportList);
    // Of the choices that will have one name, the last one takes the place of the others.
    struct Winner {
        Winner() : choice(-1), isReplacing(false) {}
        int choice;
        bool isReplacing;
    };
    QHash<QString, Winner> winners;
    winners.reserve(choices.size());
    for (int i = 0; i < choices.size(); ++i) {
        const ImportChoice& choice = choices.at(i);
        if (!choice.isTaken || !candidates.contains(choice.name)) continue;
        Winner& winner = winners[choice.storedName];
        winner.choice = i;
        winner.isReplacing = winner.isReplacing || choice.isAsked;
    }
    if (winners.isEmpty()) return false;

    QList<DialupProfile> result;
    for (int i = 0; i < m_UserProfileList.size(); ++i)
        if (!winners.value(m_UserProfileList.at(i).name).isReplacing) result.append(m_UserProfileList.at(i));
    for (int i = 0; i < choices.size(); ++i) {
        if (winners.value(choices.at(i).storedName).choice != i) continue;
        const QList<int> found = candidates.places(choices.at(i).name);
        for (int j = 0; j < found.size(); ++j) {
            result.append(candidates.at(found.at(j)));
            result.last().name = choices.at(i).storedName;
        }
    }
    m_UserProfileList = result;
    return true;
}

int NetConnectSettingUILogic::ExportSelectedProfilesToFile(QStringList* names, QString path) {
    if (!names) return FileMissing;
    const int status = ExportChosenProfiles(*names, path);
    return status == ObjectMissing ? status : int(Success);
}

int NetConnectSettingUILogic::ExportChosenProfiles(const QStringList& names, const QString& path) {
    const int mostAttempts = 100;
    const Hold hold(this);
    m_ExportList.clear();
    if (!m_pXMLParse) return ObjectMissing;
    int status = refuseExportTo(path);
    if (status != Success) return status;

    { const NetConnectOperation operation; }  // takes in what other processes changed
    QList<DialupProfile> library;
    QString ignoredDefault;
    readForeignFile(&library, &ignoredDefault, QLatin1String(NetConnectFileNames::Library));
    for (int i = 0; i < library.size(); ++i) translateName(&library, i);
    const ProfilesByName users(m_UserProfileList);
    const ProfilesByName shipped(library);

    status = NetConnectXMLParse::TargetAppeared;
    for (int i = 0; i < mostAttempts && status == NetConnectXMLParse::TargetAppeared; ++i)
        status = exportInto(path, names, users, shipped);
    if (status == NetConnectXMLParse::TargetAppeared) {
        m_pXMLParse->reportProblem(path, Reason("other programs make and remove it all the time"));
        status = FileNotOpened;
    }
    return status;
}

// Puts the profiles among those that the target has, while other exports into it wait. Without a target a new one is
// made, unless one appears meanwhile: then it is the caller's to begin again.
int NetConnectSettingUILogic::exportInto(const QString& path, const QStringList& names, const ProfilesByName& users,
                                         const ProfilesByName& shipped) {
    UserFileLock lock;
    Reason reason;
    if (!lock.acquireIfThere(path, &reason)) {
        m_pXMLParse->reportProblem(path, reason);
        return FileNotOpened;
    }
    QList<DialupProfile> target;
    QString ignoredDefault;
    const int status = lock.isHeld() ? readForeignFile(&target, &ignoredDefault, path) : int(Success);
    if (status == FileNotOpened) return status;
    if (status == FileMissing) return NetConnectXMLParse::TargetAppeared;  // and it went again

    m_ExportList = target;
    const ProfilesByName inTarget(target);
    for (int i = 0; i < names.size(); ++i)
        if (!exportProfile(names.at(i), inTarget, users)) exportProfile(names.at(i), inTarget, shipped);
    if (m_ExportList.isEmpty()) return Success;
    return m_pXMLParse->SaveProfileToXML(m_ExportList, m_strDefaultProfile, path, false,
                                         lock.isHeld() ? FileReplacement::OverOld : FileReplacement::OnlyNew);
}

// The user's own file would lose its default, and an empty path means that very file.
int NetConnectSettingUILogic::refuseExportTo(const QString& path) {
    if (!path.isEmpty() && !FileReplacement::isSameFile(path, m_pXMLParse->userProfilePath())) return Success;
    m_pXMLParse->reportProblem(path, Reason("profiles can't be exported to this file"));
    return FileNotOpened;
}

// Exports the profiles of a name, in the place of those that the target has. False when the source has none.
bool NetConnectSettingUILogic::exportProfile(const QString& name, const ProfilesByName& target,
                                             const ProfilesByName& source) {
    const QList<int> replaced = target.places(name);
    const QList<int> found = source.places(name);
    for (int i = 0; i < found.size(); ++i) {
        const DialupProfile& profile = source.at(found.at(i));
        if (replaced.isEmpty()) m_ExportList.append(profile);
        for (int j = 0; j < replaced.size(); ++j) m_ExportList[replaced.at(j)] = profile;
    }
    return !found.isEmpty();
}
