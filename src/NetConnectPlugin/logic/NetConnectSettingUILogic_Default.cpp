// The default profile.

#include "NetConnectLogicHold.h"
#include "NetConnectOperation.h"
#include "NetConnectSettingUILogic.h"
#include "Trace.h"

int NetConnectSettingUILogic::GetDefaultDialUpProfileName(QString* name) {
    const TraceScope trace(__FILE__, "GetDefaultDialUpProfileName", "%s : %s: %s: enter", "%s : %s: %s: exit");
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
    NetConnectOperation operation;
    m_bForeignDefault = false;
    m_strDefaultProfile = name;
    m_bIsUserSet = isUserSet;
    bool followsIMSI = false;
    GetFunctionConfigValue("IMSIAPN", &followsIMSI);

    // To choose what the configuration proposes is no choice: the configuration may replace it later.
    const bool isIMSIListEmpty = m_IMSIProfileList.isEmpty();
    if (!isIMSIListEmpty && followsIMSI && name == imsiProposal()) m_bIsUserSet = false;
    if (isIMSIListEmpty && name == m_strAPNDefaultProfile) m_bIsUserSet = false;
    return operation.store();
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
