// SPDX-License-Identifier: MIT
// Listing, fetching, adding, deleting and replacing of profiles.

#include <algorithm>
#include <functional>
#include <vector>

#include "NetConnectLogicHold.h"
#include "NetConnectOperation.h"
#include "NetConnectSettingUILogic.h"
#include "NetConnectStoreAction.h"
#include "ReasonText.h"

static const char KeyedMethod[] = "2";
static const char Base64Method[] = "1";

int NetConnectSettingUILogic::GetAllDialUpProfile(QList<QString>* names) {
    const Hold hold(this);
    if (!names) return FileMissing;
    if (!m_pXMLParse) {
        m_UserProfileList.clear();
        return ObjectMissing;
    }
    forgetForeignDefault();
    const bool isReadable = m_Store.read() != FileNotOpened;
    if (translateUserProfiles() && !m_Store.isFollowing()) {
        NetConnectOperation operation;
        translateUserProfiles();  // what another process changed meanwhile
        operation.store();
    }
    QSet<QString> otherNames;
    for (int i = 0; i < names->size(); ++i) otherNames.insert(names->at(i));
    gatherNames(names, &otherNames);
    m_ProfileNameList = QStringList(*names);

    const QString replacement = replacementDefault(otherNames);
    if (!replacement.isNull()) replaceDefault(replacement, isReadable);
    sortProfileNames(names);
    return Success;
}

// Appends the names of the user's profiles and of the presets beside them. Most listings find nothing changed.
void NetConnectSettingUILogic::gatherNames(QList<QString>* names, QSet<QString>* otherNames) {
    const QStringList presets = getDefaultOrIMSIProfileList();
    const bool isWhole = names->isEmpty();
    if (isWhole && m_Listing.profiles.isSharedWith(m_UserProfileList) && m_Listing.presets == presets) {
        *names = m_Listing.names;
        *otherNames = m_Listing.presetNames;
        return;
    }
    names->reserve(names->size() + m_UserProfileList.size() + presets.size());
    for (int i = 0; i < m_UserProfileList.size(); ++i) names->append(m_UserProfileList.at(i).name);
    for (int i = 0; i < presets.size(); ++i) {
        if (otherNames->contains(presets.at(i)) || HasUserProfile(presets.at(i))) continue;
        otherNames->insert(presets.at(i));
        names->append(presets.at(i));
    }
    if (isWhole) m_Listing = {m_UserProfileList, presets, *names, *otherNames};
}

// Gives the user's profiles the names that their langids stand for now; true when a name really changed. The default
// moves along.
bool NetConnectSettingUILogic::translateUserProfiles() {
    if (m_UntranslatableProfiles.isSharedWith(m_UserProfileList)) return false;
    bool changed = false;
    bool hasLangid = false;
    for (int i = 0; i < m_UserProfileList.size(); ++i) {
        if (m_UserProfileList.at(i).langid.isEmpty()) continue;
        hasLangid = true;
        const QString storedName = m_UserProfileList.at(i).name;
        if (!translateName(&m_UserProfileList, i)) continue;
        if (m_strDefaultProfile == storedName) m_strDefaultProfile = m_UserProfileList.at(i).name;
        changed = true;
    }
    if (!hasLangid) m_UntranslatableProfiles = m_UserProfileList;
    return changed;
}

namespace {

// Orders places in a list of names as QString::compare orders the names without case, but folds each name only once.
class CaselessOrder {
public:
    explicit CaselessOrder(const QList<QString>& names) : m_Starts(1, 0) {
        m_Starts.reserve(size_t(names.size()) + 1);
        for (int i = 0; i < names.size(); ++i) {
            append(names.at(i));
            m_Starts.push_back(m_Folded.size());
        }
    }
    bool operator()(int first, int second) const {
        return std::lexicographical_compare(start(first), start(first + 1), start(second), start(second + 1));
    }

private:
    // The second half of a surrogate pair counts as the whole character.
    void append(const QString& name) {
        QChar last;
        for (int i = 0; i < name.size(); ++i) {
            const QChar unit = name.at(i);
            const bool isPair = unit.isLowSurrogate() && last.isHighSurrogate();
            m_Folded.push_back(QChar::toCaseFolded(isPair ? QChar::surrogateToUcs4(last, unit) : uint(unit.unicode())));
            last = unit;
        }
    }
    const uint* start(int place) const { return m_Folded.data() + m_Starts[size_t(place)]; }

    std::vector<uint> m_Folded;    // all names, one after the other
    std::vector<size_t> m_Starts;  // of the names in m_Folded, and the end
};

bool isBefore(const QString& first, const QString& second) {
    return QString::compare(first, second, Qt::CaseInsensitive) < 0;
}

// Finds out which names went from a list and which came into it while the others stayed in their order; false when
// these are many.
bool findChanges(const QList<QString>& before, const QList<QString>& now, QStringList* gone, QStringList* come) {
    const int most = 8;
    int i = 0;
    int j = 0;
    while (i < before.size() || j < now.size()) {
        const bool isNone = i == before.size();
        if (!isNone && j < now.size() && before.at(i) == now.at(j)) {
            ++i;
            ++j;
            continue;
        }
        if (gone->size() + come->size() >= most) return false;
        const bool isNew = isNone || (j + 1 < now.size() && before.at(i) == now.at(j + 1));
        if (isNew)
            come->append(now.at(j++));
        else
            gone->append(before.at(i++));
    }
    return true;
}

// Takes over into a sorted list what became of the list that it was made of: false when that is to be sorted anew. Of
// names that differ in case alone the places in the list decide.
bool takeOverChanges(const QList<QString>& before, const QList<QString>& now, QList<QString>* sorted) {
    QStringList gone;
    QStringList come;
    if (!findChanges(before, now, &gone, &come)) return false;
    typedef QList<QString>::iterator Iterator;
    for (int i = 0; i < gone.size(); ++i) {
        const std::pair<Iterator, Iterator> found =
            std::equal_range(sorted->begin(), sorted->end(), gone.at(i), isBefore);
        if (found.second - found.first != 1) return false;
        sorted->erase(found.first);
    }
    for (int i = 0; i < come.size(); ++i) {
        const std::pair<Iterator, Iterator> found =
            std::equal_range(sorted->begin(), sorted->end(), come.at(i), isBefore);
        if (found.first != found.second) return false;
        sorted->insert(found.first, come.at(i));
    }
    return true;
}

QList<QString> sortedNames(const QList<QString>& names) {
    std::vector<int> places(size_t(names.size()), 0);
    for (int i = 0; i < names.size(); ++i) places[size_t(i)] = i;
    const CaselessOrder order(names);
    std::stable_sort(places.begin(), places.end(), std::cref(order));
    QList<QString> sorted;
    sorted.reserve(names.size());
    for (size_t i = 0; i < places.size(); ++i) sorted.append(names.at(places[i]));
    return sorted;
}

}  // namespace

int NetConnectSettingUILogic::sortProfileNames(QList<QString>* names) {
    if (!names) return FileMissing;
    if (*names != m_UnsortedNames) {
        if (!takeOverChanges(m_UnsortedNames, *names, &m_SortedNames)) m_SortedNames = sortedNames(*names);
        m_UnsortedNames = *names;
    }
    *names = m_SortedNames;
    return Success;
}

bool NetConnectSettingUILogic::HasUserProfile(const QString& name) { return m_Store.find(name) >= 0; }

// An empty one is looked for again.
const QList<DialupProfile>& NetConnectSettingUILogic::library() {
    QString ignoredDefault;
    if (!m_UnreadLibrary && m_ProfileLibList.isEmpty() && m_pXMLParse) readLibrary(&ignoredDefault);
    if (m_UnreadLibrary) m_ProfileLibList = m_UnreadLibrary->all();
    m_UnreadLibrary.clear();
    return m_ProfileLibList;
}

int NetConnectSettingUILogic::findLibraryProfile(const QString& name) { return m_LibraryIndex.find(library(), name); }

// Makes no more of a library that is unread than what is asked for.
bool NetConnectSettingUILogic::fetchLibraryProfile(const QString& name, DialupProfile* profile) {
    if (m_UnreadLibrary && !m_UnreadLibrary->isEmpty()) return m_UnreadLibrary->find(name, profile);
    const int index = findLibraryProfile(name);
    if (index >= 0) *profile = m_ProfileLibList.at(index);
    return index >= 0;
}

int NetConnectSettingUILogic::GetDialUpProfile(QString name, DialupProfile* profile) {
    if (!profile) return FileMissing;
    *profile = DialupProfile();
    for (int i = 0; i < DialupProfileFieldCount; ++i) profile->*DialupProfileFields[i].member = QLatin1String("");

    // A preset that is shown under its translated name may be kept under the stored one or under the shown one.
    QStringList candidates(name);
    if (followsIMSI() && m_StoredNames.contains(name)) candidates.prepend(m_StoredNames.value(name));

    for (int i = 0; i < candidates.size(); ++i) {
        const int index = m_Store.find(candidates.at(i));
        if (index < 0) continue;
        *profile = m_UserProfileList.at(index);
        if (!openPassword(profile)) reportUnopened(*profile);
        return Success;
    }
    for (int i = 0; i < candidates.size(); ++i) {
        if (!fetchLibraryProfile(candidates.at(i), profile)) continue;
        if (profile->user.isEmpty() && profile->password.isEmpty()) fillFromDevice(profile, "GetDialUpProfile");
        break;
    }
    return Success;
}

// Turns a stored password into a plain one; false, and it is empty, when it can't be opened.
bool NetConnectSettingUILogic::openPassword(DialupProfile* profile) {
    if (!isOn("ENCRYPT")) return true;
    if (profile->encrypttype == QLatin1String("0") || profile->encrypttype.isEmpty())
        profile->encrypttype = QLatin1String(Base64Method);
    const bool hasPassword = !profile->password.isEmpty();
    const bool isKeyed = profile->encrypttype != QLatin1String(Base64Method);
    profile->password = XorDecrypt(profile->password, profile->encrypttype);
    return !isKeyed || !hasPassword || !profile->password.isNull();
}

void NetConnectSettingUILogic::reportUnopened(const DialupProfile& profile) {
    m_pXMLParse->reportProblem(
        m_pXMLParse->userProfilePath(),
        Reason("the sealed password of \"%1\" was changed outside and can't be opened").arg(profile.name));
}

// Seals a plain password when the configuration says so; false when it can't be sealed.
bool NetConnectSettingUILogic::sealPassword(DialupProfile* profile) {
    if (!isOn("ENCRYPT")) return true;
    profile->encrypttype = QLatin1String(KeyedMethod);
    const bool hasPassword = !profile->password.isEmpty();
    profile->password = XorEncrypt(profile->password, profile->encrypttype);
    return !hasPassword || !profile->password.isNull();
}

// Takes user name and password from the device's data-service profile, when the configuration says so.
void NetConnectSettingUILogic::fillFromDevice(DialupProfile* profile, const char* function) {
    if (!m_pFunctionHash || m_pFunctionHash->value("Auto Get Profile").value != QLatin1String("true")) return;
    const NetConnectDevice::Caller caller = {__FILE__, function};
    NetConnectDevice::credentials(&profile->user, &profile->password, caller);
}

int NetConnectSettingUILogic::SaveDialUpProfile(DialupProfile profile) {
    const int status = AddDialUpProfile(profile);
    return status == NameTaken ? int(Success) : status;
}

int NetConnectSettingUILogic::AddDialUpProfile(const DialupProfile& profile) {
    const Hold hold(this);
    if (!m_pXMLParse) return ObjectMissing;
    NetConnectOperation operation;
    // Without the lock the name may be one that an earlier call could not store.
    if (HasUserProfile(profile.name)) return operation.hasFailed() ? FileNotOpened : NameTaken;
    DialupProfile stored = profile;
    if (!sealPassword(&stored)) {
        m_pXMLParse->reportProblem(m_pXMLParse->userProfilePath(), Reason("a password can't be sealed"));
        return FileNotOpened;
    }
    m_UserProfileList.append(stored);
    return operation.store();  // the list keeps the change whatever becomes of the write
}

int NetConnectSettingUILogic::DelDialUpProfile(QString name) {
    const Hold hold(this);
    if (m_pXMLParse) {
        NetConnectOperation operation;
        const int index = m_Store.find(name);
        if (index >= 0) {
            m_UserProfileList.removeAt(index);
            return operation.store();
        }
    } else if (m_Store.find(name) >= 0) {
        m_UserProfileList.removeAt(m_Store.find(name));
        return ObjectMissing;
    }
    removePreset(name);
    return Success;
}

// Takes a preset out of every list in memory; it comes back when the configuration is read again.
void NetConnectSettingUILogic::removePreset(const QString& name) {
    undoWithAction();
    m_IMSIProfileList.removeOne(name);
    m_APNProfileList.removeOne(name);
    if (!m_pProfileListHash) return;
    QStringList items = m_ProfileHash.keys(name);
    items.sort();
    m_pProfileListHash->remove(items.isEmpty() ? name : items.first());
}

// An action that is dropped, since the profile that was to take the preset's place could not be stored, leaves the
// preset.
void NetConnectSettingUILogic::undoWithAction() {
    const QStringList fromIMSI = m_IMSIProfileList;
    const QStringList fromConfiguration = m_APNProfileList;
    const QHash<QString, NetConnectXML> items =
        m_pProfileListHash ? *m_pProfileListHash : QHash<QString, NetConnectXML>();
    m_Store.alsoUndo([this, fromIMSI, fromConfiguration, items] {
        m_IMSIProfileList = fromIMSI;
        m_APNProfileList = fromConfiguration;
        if (m_pProfileListHash) *m_pProfileListHash = items;
    });
}

int NetConnectSettingUILogic::ReplaceDialUpProfile(const QString& oldName, const DialupProfile& profile) {
    const Hold hold(this);
    if (!m_pXMLParse) return ObjectMissing;
    NetConnectStoreAction action;
    NetConnectOperation operation;  // from here on the lists hold what other processes changed
    const bool isRenamed = profile.name != oldName;
    if (isRenamed && HasUserProfile(profile.name)) return NameTaken;

    DialupProfile stored = profile;
    if (isRenamed) stored.langid = QLatin1String("");
    if (m_strDefaultProfile == oldName && !oldName.isEmpty()) renameDefault(profile.name);
    const int status = putInPlaceOf(oldName, stored, &operation);
    return status == Success ? action.commit() : status;
}

int NetConnectSettingUILogic::OverwriteDialUpProfile(const DialupProfile& profile) {
    const Hold hold(this);
    if (!m_pXMLParse) return ObjectMissing;
    NetConnectStoreAction action;
    NetConnectOperation operation;
    if (!HasUserProfile(profile.name)) removePreset(profile.name);
    const int status = putInPlaceOf(profile.name, profile, &operation);
    return status == Success ? action.commit() : status;
}

// Deletes the user's profile of the old name, if there is one, and adds another; inside an action.
int NetConnectSettingUILogic::putInPlaceOf(const QString& oldName, const DialupProfile& profile,
                                           NetConnectOperation* operation) {
    const int index = m_Store.find(oldName);
    const DialupProfile before = index >= 0 ? m_UserProfileList.at(index) : DialupProfile();
    if (index >= 0) DelDialUpProfile(oldName);
    int status = AddDialUpProfile(profile);
    DialupProfile stored = profile;
    if (status == NameTaken && index >= 0 && sealPassword(&stored)) {
        // An import may have brought in two of that name: the edited one keeps its place before the other.
        m_UserProfileList.insert(index, stored);
        status = operation->store();
    }
    if (status == Success) keepUnopened(before, profile);
    return status;
}

// A password that can't be opened is shown as empty: an edit that leaves it so must not lose what is stored, which
// another version or the right key may still open.
void NetConnectSettingUILogic::keepUnopened(const DialupProfile& before, const DialupProfile& after) {
    DialupProfile opened = before;
    if (!after.password.isEmpty() || openPassword(&opened)) return;
    DialupProfile& kept = m_UserProfileList[m_Store.find(after.name)];
    kept.password = before.password;
    kept.encrypttype = before.encrypttype;
}

void NetConnectSettingUILogic::renameDefault(const QString& name) {
    if (m_Store.isProposalForNow())
        m_strDefaultProfile = name;
    else
        SetDefaultDialUpProfileName(name, m_bIsUserSet);
}

int NetConnectSettingUILogic::updateProfileTemplate() {
    return m_pXMLParse ? m_pXMLParse->ModifyProfileTemplateToSysXML(m_pProfileTemplateHash) : int(ObjectMissing);
}

int NetConnectSettingUILogic::NewDialUpProfileTemplate(DialupProfile* profile) {
    if (!profile) return FileMissing;
    // Where the shipped files can't be written the template stands as it was shipped: no problem to report.
    const NetConnectStorageProblem before = LastStorageProblem();
    if (updateProfileTemplate() == FileNotOpened)
        m_pXMLParse->reportProblem(before.file, before.reason, before.line, before.column);
    if (!m_pXMLParse || m_pXMLParse->GetProfileTemplateFromSysXML(profile) != Success) return FileMissing;

    QString baseName = translated(profile->name);
    if (baseName.isEmpty()) baseName = QLatin1String("New Profile");
    DialupProfile taken;
    int number = 0;
    do {
        profile->name = baseName + QString::number(++number);
    } while (GetDialUpProfile(profile->name, &taken) == Success && !taken.name.isEmpty());

    fillFromDevice(profile, "NewDialUpProfileTemplate");
    return Success;
}
