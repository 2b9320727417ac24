// The presets that the SIM's IMSI or the configuration selects.

#include <algorithm>

#include "NetConnectSettingUILogic.h"
#include "Trace.h"

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
    if (m_bIMSIDefaultForgotten.exchange(false)) m_strIMSIDefaultProfile = QLatin1String("");

    qDebug("%s: %s: in Net Connect VRKS_DevSrv_GetImsiInfo called", __FILE__, "getIMSIProfileList");
    const QString imsi = NetConnectDevice::imsi();
    if (imsi.isNull()) return FileMissing;
    if (!m_pIMSIHash || m_pIMSIHash->isEmpty()) return FileMissing;
    m_bIMSIRead = imsi.size() >= ShortestIMSI;

    const NetConnectIMSISelection selection = SelectByIMSI(imsi);
    m_strMatchedPrefix = selection.prefix;
    m_IMSIProfileList = selection.names;
    if (!selection.defaultProfile.isNull()) m_strIMSIDefaultProfile = selection.defaultProfile;
    return Success;
}

NetConnectIMSISelection NetConnectSettingUILogic::SelectByIMSI(const QString& imsi) {
    NetConnectIMSISelection selection;
    if (!m_pIMSIHash || imsi.size() < ShortestIMSI) return selection;
    selection.prefix = longestPrefix(imsi, *m_pIMSIHash);
    if (selection.prefix.isEmpty()) return selection;

    refreshLibraryNames();
    const QList<IMSIINFO> rows = m_pIMSIHash->values(selection.prefix);
    for (int i = 0; i < rows.size(); ++i) {
        const QString translation = translatedLibraryName(rows.at(i).name);
        const QString shown = translation.isEmpty() ? rows.at(i).name : translation;
        selection.names.append(shown);
        if (rows.at(i).value == QLatin1String(DefaultValue)) selection.defaultProfile = shown;
    }
    return selection;
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

bool NetConnectSettingUILogic::HasIMSIPresets() const { return m_pIMSIHash && !m_pIMSIHash->isEmpty(); }
