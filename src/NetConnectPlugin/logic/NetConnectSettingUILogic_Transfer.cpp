// Import and export.

#include "FileReplacement.h"
#include "NetConnectLogicHold.h"
#include "NetConnectOperation.h"
#include "NetConnectProfileRules.h"
#include "NetConnectSettingUILogic.h"
#include "UserFileLock.h"

// Where the profiles of a name stand in a list, which may hold several of one name.
class NetConnectSettingUILogic::ProfilesByName {
public:
    explicit ProfilesByName(const QList<DialupProfile>& profiles) : m_Profiles(profiles) {
        for (int i = 0; i < profiles.size(); ++i) m_Places[profiles.at(i).name].append(i);
    }
    QList<int> places(const QString& name) const { return m_Places.value(name); }
    const DialupProfile& at(int place) const { return m_Profiles.at(place); }

private:
    QList<DialupProfile> m_Profiles;
    QHash<QString, QList<int> > m_Places;
};

int NetConnectSettingUILogic::GetDialUpProfileFromFile(QList<QString>* names, QString path) {
    const Hold hold(this);
    m_ImportList.clear();
    if (!names) return FileMissing;
    if (!m_pXMLParse) return ObjectMissing;
    m_Store.readAwaited();
    const QString file = path.isEmpty() ? QString(QLatin1String("ProfileLib.prof")) : path;
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

QList<DialupProfile> NetConnectSettingUILogic::ImportCandidates() const { return m_ImportList; }

int NetConnectSettingUILogic::ImportChosenProfiles(const QStringList& names, NetConnectClashPolicy* policy) {
    const Hold hold(this);
    if (!m_pXMLParse) return ObjectMissing;
    if (!policy) return FileMissing;
    if (names.isEmpty()) return NothingImported;

    // Every question comes before the first change: while one is on screen events run that look at the lists, and
    // other processes must not wait. A profile that one of them adds meanwhile raises a question of its own.
    const QList<DialupProfile> candidates = m_ImportList;
    QSet<QString> clashing;
    for (int i = 0; i < m_ProfileNameList.size(); ++i) clashing.insert(m_ProfileNameList.at(i));
    QSet<QString> decided;
    QSet<QString> replaced;
    for (;;) {
        for (int i = 0; i < names.size(); ++i) {
            if (!clashing.contains(names.at(i)) || decided.contains(names.at(i))) continue;
            decided.insert(names.at(i));
            if (policy->replace(names.at(i))) replaced.insert(names.at(i));
            if (hold.isLogicGone()) return ObjectMissing;
        }
        NetConnectOperation operation;
        bool isSettled = true;
        for (int i = 0; i < names.size(); ++i) {
            if (decided.contains(names.at(i)) || !HasUserProfile(names.at(i))) continue;
            clashing.insert(names.at(i));
            isSettled = false;
        }
        if (!isSettled) continue;

        m_ImportList = candidates;
        QStringList accepted;
        for (int i = 0; i < names.size(); ++i)
            if (!decided.contains(names.at(i)) || replaced.contains(names.at(i))) accepted.append(names.at(i));
        if (!addCandidates(accepted, replaced)) return NothingImported;
        const int status = operation.store();
        if (status == Success) m_bForeignDefault = false;  // it is the user's now
        return status;
    }
}

// Adds the chosen candidates; a replaced profile goes only when one of its name comes. False when none came.
bool NetConnectSettingUILogic::addCandidates(const QStringList& names, const QSet<QString>& replaced) {
    const ProfilesByName candidates(m_ImportList);
    QSet<QString> leaving;
    QList<DialupProfile> coming;
    for (int i = 0; i < names.size(); ++i) {
        const QList<int> found = candidates.places(names.at(i));
        if (!found.isEmpty() && replaced.contains(names.at(i))) leaving.insert(names.at(i));
        for (int j = 0; j < found.size(); ++j) {
            coming.append(candidates.at(found.at(j)));
            coming.last().name =
                NetConnectProfileRules::cutToLength(names.at(i), NetConnectProfileRules::DefaultNameLength);
        }
    }
    if (coming.isEmpty()) return false;

    QList<DialupProfile> staying;
    for (int i = 0; i < m_UserProfileList.size(); ++i)
        if (!leaving.contains(m_UserProfileList.at(i).name)) staying.append(m_UserProfileList.at(i));
    m_UserProfileList = staying + coming;
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
    readForeignFile(&library, &ignoredDefault, QLatin1String("ProfileLib.prof"));
    for (int i = 0; i < library.size(); ++i) translateName(&library, i);
    const ProfilesByName users(m_UserProfileList);
    const ProfilesByName shipped(library);

    status = NetConnectXMLParse::TargetAppeared;
    for (int i = 0; i < mostAttempts && status == NetConnectXMLParse::TargetAppeared; ++i)
        status = exportInto(path, names, users, shipped);
    if (status == NetConnectXMLParse::TargetAppeared) {
        m_pXMLParse->reportProblem(path, QLatin1String("other programs make and remove it all the time"));
        status = FileNotOpened;
    }
    return status;
}

// Puts the profiles among those that the target has, while other exports into it wait. Without a target a new one is
// made, unless one appears meanwhile: then it is the caller's to begin again.
int NetConnectSettingUILogic::exportInto(const QString& path, const QStringList& names, const ProfilesByName& users,
                                         const ProfilesByName& shipped) {
    UserFileLock lock;
    QString reason;
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
    m_pXMLParse->reportProblem(path, QLatin1String("profiles can't be exported to this file"));
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
