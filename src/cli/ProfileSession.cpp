// SPDX-License-Identifier: MIT
#include "ProfileSession.h"

#include <QFileInfo>

#include "CommandError.h"
#include "Message.h"
#include "NetConnectXMLParse.h"
#include "Output.h"
#include "Platform.h"
#include "UserFileLock.h"

namespace {

QString missingText(const QString& path) { return message("%1: does not exist", {path}); }

NetConnectStoreAction::Kind actionKind(ProfileSession::Kind kind) {
    return kind == ProfileSession::Reading ? NetConnectStoreAction::Browse : NetConnectStoreAction::Change;
}

// How to get a profile that may be changed from one that may not.
QString copyAdvice(const QString& name) {
    return QString("orbisctl add %1 --like %2").arg(quoted(message("new name")), name);
}

}  // namespace

ProfileSession::ProfileSession(Kind kind)
    : m_Kind(kind), m_Action(actionKind(kind)), m_pLogic(NetConnectSettingUILogic::GetInstance()) {
    m_FolderProblem = Platform::dataFolderProblem();
    if (kind == Changing && !m_FolderProblem.isNull()) throw CommandError::failed(m_FolderProblem);
    UserFileLock::setLongestWait(15000);  // as long as a person waits who sees no window
    m_ConfigurationProblem = configurationProblem();
    if (kind == Changing) {
        if (!m_ConfigurationProblem.isEmpty()) throw CommandError::failed(m_ConfigurationProblem);
        require(m_Action.lock(), message("the profiles can't be changed"));
    }
    loadNames();
    m_Problem = problem();
}

void ProfileSession::loadNames() {
    m_Names.clear();
    require(m_pLogic->GetAllDialUpProfile(&m_Names), message("the profiles can't be listed"));
}

QString ProfileSession::defaultName() const {
    QString name;
    m_pLogic->GetDefaultDialUpProfileName(&name);
    return name;
}

bool ProfileSession::isOn(const QString& function) const {
    bool on = false;
    m_pLogic->GetFunctionConfigValue(function, &on);
    return on;
}

QString ProfileSession::presetsNote() const {
    if (m_pLogic->HasIMSIPresets() || !isOn("IMSIAPN")) return QString();
    const QString name = NetConnectDevice::customizeName();
    if (!NetConnectDevice::isCustomized(name)) return message("the configuration has no presets by IMSI");
    return message("the configuration customised for %1 leaves no presets by IMSI", {quoted(name)});
}

bool ProfileSession::hasProfile(const QString& name) const { return fetch(name).has_value(); }

DialupProfile ProfileSession::profile(const QString& name) const {
    if (const std::optional<DialupProfile> found = fetch(name)) return *found;
    if (!m_Problem.isEmpty()) throw CommandError::failed(m_Problem);  // it may stand in what can't be read
    throw CommandError::notFound(m_Names.contains(name)
                                     ? message("the profile library does not hold the preset %1", {quoted(name)})
                                     : message("there is no profile %1", {quoted(name)}));
}

DialupProfile ProfileSession::readableProfile(const QString& name) const {
    const QString before = m_pLogic->LastStorageProblem().text();
    const DialupProfile found = profile(name);
    const QString after = m_pLogic->LastStorageProblem().text();
    if (after != before) throw CommandError::failed(message("%1; give a new one with password=", {after}));
    return found;
}

// The logic may know a preset by its untranslated name too.
std::optional<DialupProfile> ProfileSession::fetch(const QString& name) const {
    DialupProfile profile;
    m_pLogic->GetDialUpProfile(name, &profile);
    const bool isFound = name.isEmpty() ? m_pLogic->HasUserProfile(name) : profile.name == name;
    return isFound ? std::optional(profile) : std::nullopt;
}

void ProfileSession::requireUserFile() const {
    if (!m_FolderProblem.isNull() && !Platform::isDataFolderMissing()) throw CommandError::failed(m_FolderProblem);
}

void ProfileSession::requireOwn(const DialupProfile& profile) const {
    const QString name = quoted(profile.name);
    if (!m_pLogic->HasUserProfile(profile.name))
        throw CommandError::refused(
            message("%1 is a preset; make one of your own from it: %2", {name, copyAdvice(name)}));
}

void ProfileSession::requireChangeable(const DialupProfile& profile) const {
    const QString name = quoted(profile.name);
    requireOwn(profile);
    if (profile.readonly == "true")
        throw CommandError::refused(
            message("%1 is read-only; make one of your own from it: %2", {name, copyAdvice(name)}));
}

void ProfileSession::require(int status, const QString& what) const {
    if (status == NetConnectSettingUILogic::Success) return;
    const NetConnectStorageProblem problem = m_pLogic->LastStorageProblem();
    throw CommandError::failed(
        withReason(what, problem.isNull() ? message("status %1", {QString::number(status)}) : problem.text()));
}

void ProfileSession::finish() {
    if (m_Kind == Changing) {
        m_pLogic->ClearAutomaticDefault();  // or the logic's end would write once more
        require(m_Action.commit(), message("the profiles can't be stored"));
        if (!problem().isEmpty()) printWarning(problem());
        return;
    }
    if (m_Kind == Reading) m_Problem = problem();
    if (!m_Problem.isEmpty()) throw CommandError::failed(m_Problem);
}

QString ProfileSession::configurationProblem() const {
    if (m_pLogic->ConfigurationStatus() == NetConnectSettingUILogic::Success) return QString();
    const NetConnectStorageProblem problem = m_pLogic->ConfigurationProblem();
    return problem.isNull() ? missingText(NetConnectXMLParse::configurationPath()) : problem.text();
}

QString ProfileSession::problem() const {
    if (!m_ConfigurationProblem.isEmpty()) return m_ConfigurationProblem;
    const QString library = NetConnectXMLParse::shippedPath(NetConnectFileNames::Library);
    if (!QFileInfo::exists(library)) return missingText(library);
    if (!m_FolderProblem.isNull()) return Platform::isDataFolderMissing() ? QString() : m_FolderProblem;
    const NetConnectStorageProblem last = m_pLogic->LastStorageProblem();
    // A change that can't lock has failed already; from a folder that can't be written one may still export.
    return last.isNull() || last.file.endsWith(".lock") ? QString() : last.text();
}
