// SPDX-License-Identifier: MIT
// The default profile.

#include "NetConnectLogicHold.h"
#include "NetConnectOperation.h"
#include "NetConnectSettingUILogic.h"
#include "Trace.h"

int NetConnectSettingUILogic::GetDefaultDialUpProfileName(QString* name) {
    const TraceScope trace(__FILE__, "GetDefaultDialUpProfileName", "%s : %s: %s: enter", "%s : %s: %s: exit");
    if (!name) return FileMissing;
    m_Store.readAwaited();
    *name = m_strDefaultProfile;
    return Success;
}

bool NetConnectSettingUILogic::IsDefaultUserSet() {
    m_Store.readAwaited();
    return m_bIsUserSet;
}

int NetConnectSettingUILogic::SetDefaultDialUpProfileName(QString name, bool isUserSet) {
    const Hold hold(this);
    if (!m_pXMLParse) return ObjectMissing;
    forgetForeignDefault();
    NetConnectOperation operation;
    return operation.storeDefault(NetConnectDefault(name, isUserSet && !isProposed(name)));
}

int NetConnectSettingUILogic::ForgetDefault(const QString& name) {
    m_Store.readAwaited();
    if (name.isEmpty() || m_strDefaultProfile != name) return Success;
    if (!m_Store.isProposalForNow()) return SetDefaultDialUpProfileName(QLatin1String(""), false);
    m_Store.proposeForNow(QLatin1String(""));
    return Success;
}

// To choose what the configuration proposes is no choice: the configuration may replace it later.
bool NetConnectSettingUILogic::isProposed(const QString& name) {
    if (m_IMSIProfileList.isEmpty()) return name == m_strAPNDefaultProfile;
    return followsIMSI() && name == imsiProposal();
}

// Whether presets are to be selected by a card that is not there yet, or no longer.
bool NetConnectSettingUILogic::isCardAwaited() { return followsIMSI() && HasIMSIPresets() && !m_bIMSIRead; }

// Whether the stored default waits for its card: the user chose it, and it is no profile of the user's.
bool NetConnectSettingUILogic::waitsForCard() {
    const NetConnectDefault stored = m_Store.storedDefault();
    return stored.isUserSet && isCardAwaited() && !HasUserProfile(stored.name);
}

// Whether the stored default is what the configuration proposed for the card that was there before: it will be again
// when the card comes back, so that a modem that comes and goes leaves the file alone.
bool NetConnectSettingUILogic::isOfAwaitedCard() {
    return isCardAwaited() && m_Store.storedDefault() == NetConnectDefault(m_strCardDefaultProfile, false) &&
           !m_strCardDefaultProfile.isEmpty();
}

// Makes the configuration's proposal the default. It is not stored over what another process has set meanwhile, nor
// into a file that may hold another one, for all we know.
void NetConnectSettingUILogic::replaceDefault(const QString& proposal, bool isFileRead) {
    if (m_Store.isFollowing() || waitsForCard() || isOfAwaitedCard()) return m_Store.proposeForNow(proposal);
    const NetConnectDefault stored = m_Store.storedDefault();
    const NetConnectOperation operation;
    if (m_Store.storedDefault() != stored) return;
    m_strDefaultProfile = proposal;
    if (!isFileRead || SetDefaultDialUpProfileName(proposal, false) != Success) return;
    m_strCardDefaultProfile = isCardAwaited() ? QString() : proposal;
}

bool NetConnectSettingUILogic::isAutomaticDefault() {
    m_Store.readAwaited();
    const bool isStandIn = m_Store.isProposalForNow() && m_Store.storedDefault().isUserSet;
    if (m_strDefaultProfile.isEmpty() || isStandIn || waitsForCard()) return false;
    const bool isIMSIListInForce = !m_IMSIProfileList.isEmpty() && followsIMSI();
    return m_strDefaultProfile == (isIMSIListInForce ? imsiProposal() : m_strAPNDefaultProfile);
}

void NetConnectSettingUILogic::ClearAutomaticDefault() {
    forgetForeignDefault();
    if (!isAutomaticDefault()) return;
    const NetConnectOperation operation;
    // The user may have chosen one in another process meanwhile.
    if (isAutomaticDefault()) SetDefaultDialUpProfileName(QLatin1String(""), false);
}

// The default that the configuration puts in the place of the stored one; null when that stays. The other names are
// those that are listed beside the user's profiles.
QString NetConnectSettingUILogic::replacementDefault(const QSet<QString>& otherNames) {
    const QString fromIMSI = imsiProposal();
    const bool hasIMSIProposal = fromIMSI.size() > 1;
    const bool isListed = otherNames.contains(m_strDefaultProfile) || HasUserProfile(m_strDefaultProfile);
    const bool isChosen = hasIMSIProposal ? (isListed && m_strDefaultProfile != m_strAPNDefaultProfile) ||
                                                m_IMSIProfileList.contains(m_strDefaultProfile)
                                          : isListed;
    if (isChosen && m_bIsUserSet) return QString();

    const QString proposal = hasIMSIProposal ? fromIMSI : m_strAPNDefaultProfile;
    if (proposal.isNull() || (!otherNames.contains(proposal) && !HasUserProfile(proposal))) return QString();
    const NetConnectDefault wanted(proposal, false);
    const bool isStored =
        m_Store.storedDefault() == wanted && NetConnectDefault(m_strDefaultProfile, m_bIsUserSet) == wanted;
    return isStored && m_pXMLParse->isModeDefault(wanted) ? QString() : proposal;
}
