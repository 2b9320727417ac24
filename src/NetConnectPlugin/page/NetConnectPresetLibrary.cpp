// SPDX-License-Identifier: MIT
#include "NetConnectPresetLibrary.h"

#include "Change.h"
#include "NetConnectProfileRules.h"
#include "NetConnectSettingUILogic.h"
#include "NetConnectStatus.h"
#include "NetConnectStoreAction.h"
#include "NetConnectWipe.h"
#include "Startup.h"

namespace {

QString text(const char* id) { return Change::tr(QString::fromLatin1(id), QString::fromLatin1("NetConnectPlugin")); }

// With blanks in the place of what no name may have.
QString cleaned(QString name) {
    const QString forbidden = QString::fromLatin1(NetConnectProfileRules::ForbiddenNameCharacters);
    for (int i = 0; i < forbidden.size(); ++i) name.replace(forbidden.at(i), QLatin1Char(' '));
    return name.simplified();
}

}  // namespace

NetConnectPresetLibrary::NetConnectPresetLibrary(NetConnectSettingUILogic* logic, QObject* parent)
    : QObject(parent), m_pLogic(logic) {
    if (IPluginContainer* const container = Startup::GetPluginContainer())
        container->AddPlugin(this, QString::fromLatin1(ORBISDIAL_PRESETLIBRARY_CLSID), PresetLibraryKind);
}

int NetConnectPresetLibrary::GetOperators(QList<PresetOperator>* operators) {
    if (!operators) return NetConnectStatus::FileMissing;
    *operators += m_pLogic->Operators();
    return NetConnectStatus::Success;
}

int NetConnectPresetLibrary::GetPreset(QString name, DialupProfile* profile) {
    const bool isFound = profile && m_pLogic->GetLibraryProfile(name, profile);
    return isFound ? NetConnectStatus::Success : NetConnectStatus::FileMissing;
}

bool NetConnectPresetLibrary::HasOwnProfiles() { return m_pLogic->HasUserProfiles(); }

int NetConnectPresetLibrary::GetOwnProfileNames(QList<QString>* names) {
    QList<QString> all;
    const int status = names ? m_pLogic->GetAllDialUpProfile(&all) : int(NetConnectStatus::FileMissing);
    for (int i = 0; i < all.size(); ++i)
        if (m_pLogic->HasUserProfile(all.at(i))) names->append(all.at(i));
    return status;
}

int NetConnectPresetLibrary::ProposeProfileName(QString wish, QString* name) {
    if (!name) return NetConnectStatus::FileMissing;
    QString base = cleaned(wish);
    if (base.isEmpty()) base = text("IDS_NETCONNECT_NEW_PROFILE");
    *name = NetConnectProfileRules::cutToLength(base, longestName());
    for (int number = 2; isTaken(*name); ++number) {
        const QString end = QLatin1Char(' ') + QString::number(number);
        *name = NetConnectProfileRules::cutToLength(base, longestName() - end.size()) + end;
    }
    return NetConnectStatus::Success;
}

int NetConnectPresetLibrary::AddOwnProfile(DialupProfile profile, QString* reason) {
    profile.name = NetConnectProfileRules::cutToLength(profile.name, longestName());
    profile.readonly = QLatin1String("false");
    profile.langid = QLatin1String("");  // it would take the name away again
    QString why = refusal(profile.name);
    int status = why.isEmpty() ? int(NetConnectStatus::Success) : int(NetConnectStatus::NameRefused);
    if (status == NetConnectStatus::Success) {
        NetConnectStoreAction action;
        status = m_pLogic->AddDialUpProfile(profile);
        if (status == NetConnectStatus::Success) status = action.commit();
        if (status != NetConnectStatus::Success) why = storageProblem();
    }
    wipeText(&profile.password);
    if (reason) *reason = why;
    if (status == NetConnectStatus::Success) emit added(profile.name);
    return status;
}

int NetConnectPresetLibrary::longestName() {
    int length = NetConnectProfileRules::DefaultNameLength;
    m_pLogic->GetFunctionConfigValue(QString::fromLatin1("ProfileNameLength"), length, length);
    return length;
}

// Why a profile can't have the name; empty when it can.
QString NetConnectPresetLibrary::refusal(const QString& name) {
    if (!NetConnectProfileRules::isNamePresent(name)) return text("IDS_SETTING_PROMPT_PROFILE_NAME");
    if (!NetConnectProfileRules::isNameAcceptable(name))
        return text("IDS_MSG_CONNECTSETTINGDLG_PROFILENAMEERR") +
               QString::fromLatin1(NetConnectProfileRules::ForbiddenNameCharacters);
    QList<QString> names;
    m_pLogic->GetAllDialUpProfile(&names);
    return names.contains(name) ? text("IDS_SETTING_PROMPT_PROFILE_NAME_SAME") : QString();
}

QString NetConnectPresetLibrary::storageProblem() {
    return text("IDS_NETCONNECT_TIP_SAVE_FAILED") + QLatin1Char('\n') + m_pLogic->LastStorageProblem().text();
}

// A preset's name is free, but two of one name would be hard to tell apart.
bool NetConnectPresetLibrary::isTaken(const QString& name) {
    DialupProfile profile;
    m_pLogic->GetDialUpProfile(name, &profile);
    wipeText(&profile.password);
    return !profile.name.isEmpty();
}
