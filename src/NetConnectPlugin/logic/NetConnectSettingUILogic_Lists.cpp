// SPDX-License-Identifier: MIT
// The presets that the SIM's IMSI or the configuration selects.

#include "NetConnectSettingUILogic.h"

namespace {

const char DefaultValue[] = "default";
const int ShortestIMSI = 5;  // the country and network code

// The longest key that an IMSI begins with; null when there is none. An empty key stands for no network.
QString longestPrefix(const QString& imsi, const QMultiHash<QString, IMSIINFO>& rows) {
    for (int length = imsi.size(); length > 0; --length) {
        const QString prefix = imsi.left(length);
        if (rows.contains(prefix)) return prefix;
    }
    return QString();
}

}  // namespace

int NetConnectSettingUILogic::getIMSIProfileList() {
    m_IMSIProfileList.clear();
    m_strMatchedPrefix.clear();
    m_strProposedOperator.clear();
    if (m_bIMSIDefaultForgotten.exchange(false)) m_strIMSIDefaultProfile = QLatin1String("");

    qDebug("%s: %s: in Net Connect VRKS_DevSrv_GetImsiInfo called", __FILE__, "getIMSIProfileList");
    const QString imsi = NetConnectDevice::imsi();
    if (imsi.isNull()) return FileMissing;
    if (!m_pIMSIHash || m_pIMSIHash->isEmpty()) return FileMissing;
    m_bIMSIRead = imsi.size() >= ShortestIMSI;

    const NetConnectIMSISelection selection = SelectByIMSI(imsi, NetConnectDevice::cardOperator());
    m_strMatchedPrefix = selection.prefix;
    m_strProposedOperator = selection.operatorName;
    m_IMSIProfileList = selection.names;
    if (!selection.defaultProfile.isNull()) m_strIMSIDefaultProfile = selection.defaultProfile;
    return Success;
}

QString NetConnectSettingUILogic::shownLibraryName(const QString& name) {
    const QString translation = translatedLibraryName(name);
    return translation.isEmpty() ? name : translation;
}

NetConnectIMSISelection NetConnectSettingUILogic::SelectByIMSI(const QString& imsi, const QString& cardOperator) {
    NetConnectIMSISelection selection;
    if (!m_pIMSIHash || imsi.size() < ShortestIMSI) return selection;
    selection.prefix = longestPrefix(imsi, *m_pIMSIHash);
    if (selection.prefix.isEmpty()) return selection;

    refreshLibraryNames();
    const QList<IMSIINFO> rows = m_pIMSIHash->values(selection.prefix);
    for (int i = 0; i < rows.size(); ++i) {
        const QString shown = shownLibraryName(rows.at(i).name);
        selection.names.append(shown);
        if (rows.at(i).value == QLatin1String(DefaultValue)) selection.defaultProfile = shown;
    }
    proposeForOperator(cardOperator, rows, &selection);
    return selection;
}

// Operators without a network of their own use the codes of another's, whose preset would be proposed to their users.
void NetConnectSettingUILogic::proposeForOperator(const QString& cardOperator, const QList<IMSIINFO>& rows,
                                                  NetConnectIMSISelection* selection) {
    if (cardOperator.isEmpty() || !m_pXMLParse) return;
    QStringList offered;
    QString marked;
    for (int i = 0; i < rows.size(); ++i) {
        offered.append(rows.at(i).name);
        if (rows.at(i).value == QLatin1String(DefaultValue)) marked = rows.at(i).name;
    }
    const OperatorProposal proposal = m_pXMLParse->operatorIndex().proposalFor(cardOperator, offered, marked);
    if (proposal.preset.isEmpty()) return;
    selection->operatorName = proposal.operatorName;
    selection->defaultProfile = shownLibraryName(proposal.preset);
}

QStringList NetConnectSettingUILogic::getAPNListFromHash() {
    QStringList result;
    if (!m_pProfileListHash || m_pProfileListHash->isEmpty()) return result;
    refreshLibraryNames();
    QStringList items = m_pProfileListHash->keys();
    items.sort();
    for (int i = 0; i < items.size(); ++i) {
        const QString translation = translatedLibraryName(items.at(i));
        const QString shown = translation.isEmpty() ? items.at(i) : translation;
        if (!translation.isEmpty()) m_ProfileHash.insert(items.at(i), shown);
        result.append(shown);
        if (m_pProfileListHash->value(items.at(i)).value == QLatin1String(DefaultValue)) m_strAPNDefaultProfile = shown;
    }
    return result;
}

QStringList NetConnectSettingUILogic::getDefaultOrIMSIProfileList() {
    return followsIMSI() && !m_IMSIProfileList.isEmpty() ? m_IMSIProfileList : m_APNProfileList;
}

QStringList NetConnectSettingUILogic::GetDefaultAPNProfileList() { return m_IMSIProfileList + m_APNProfileList; }

bool NetConnectSettingUILogic::IsIMSIROAMSettingEnable() { return isOn("IMSIROAM"); }

bool NetConnectSettingUILogic::followsIMSI() { return isOn("IMSIAPN"); }

bool NetConnectSettingUILogic::IsEhrpdSubMode() {
    const NetConnectDevice::Caller caller = {__FILE__, "IsEhrpdSubMode"};
    return NetConnectDevice::isEhrpd(caller);
}

QString NetConnectSettingUILogic::imsiProposal() const {
    return m_bIMSIDefaultForgotten ? QString() : m_strIMSIDefaultProfile;
}

QString NetConnectSettingUILogic::MatchedIMSIPrefix() const { return m_strMatchedPrefix; }

QString NetConnectSettingUILogic::ProposedDefault() const {
    const QString fromIMSI = imsiProposal();
    return fromIMSI.size() > 1 ? fromIMSI : m_strAPNDefaultProfile;
}

QString NetConnectSettingUILogic::ProposedOperator() const {
    return imsiProposal().size() > 1 ? m_strProposedOperator : QString();
}

bool NetConnectSettingUILogic::HasIMSIPresets() const { return m_pIMSIHash && !m_pIMSIHash->isEmpty(); }
