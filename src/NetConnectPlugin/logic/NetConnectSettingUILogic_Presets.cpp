// SPDX-License-Identifier: MIT
// The shipped library as a whole: whose its presets are, and which networks select them.

#include <algorithm>

#include "NetConnectLogicHold.h"
#include "NetConnectSettingUILogic.h"

namespace {

// The network codes that select each preset.
QHash<QString, QStringList> codesByPreset(const QMultiHash<QString, IMSIINFO>& rows) {
    QHash<QString, QStringList> codes;
    QMultiHash<QString, IMSIINFO>::const_iterator row = rows.constBegin();
    for (; row != rows.constEnd(); ++row) codes[row.value().name].append(row.key());
    return codes;
}

QStringList sortedOnce(QStringList texts) {
    texts.removeDuplicates();
    std::sort(texts.begin(), texts.end());
    return texts;
}

}  // namespace

bool NetConnectSettingUILogic::GetLibraryProfile(const QString& name, DialupProfile* profile) {
    const Hold hold(this);
    return fetchLibraryProfile(name, profile);
}

bool NetConnectSettingUILogic::HasUserProfiles() const { return !m_UserProfileList.isEmpty(); }

QList<PresetOperator> NetConnectSettingUILogic::Operators() {
    const Hold hold(this);
    QList<PresetOperator> operators;
    if (!m_pXMLParse) return operators;
    const QHash<QString, QStringList> codes = m_pIMSIHash ? codesByPreset(*m_pIMSIHash) : QHash<QString, QStringList>();
    QSet<QString> known;
    const QList<OperatorEntry> entries = m_pXMLParse->operatorIndex().operators();
    for (int i = 0; i < entries.size(); ++i) {
        const OperatorEntry& entry = entries.at(i);
        PresetOperator one;
        one.country = entry.country;
        one.names = entry.names;
        for (int j = 0; j < entry.presets.size(); ++j)
            addPreset(shownLibraryName(entry.presets.at(j)), entry.plans.at(j), &one);
        for (int j = 0; j < entry.presets.size(); ++j) one.networkCodes += codes.value(entry.presets.at(j));
        for (int j = 0; j < one.presets.size(); ++j) known.insert(one.presets.at(j).name);
        one.networkCodes = sortedOnce(one.networkCodes);
        if (!one.presets.isEmpty()) operators.append(one);
    }
    const QList<DialupProfile> all = library();
    PresetOperator nobody;
    for (int i = 0; i < all.size(); ++i)
        if (!known.contains(all.at(i).name)) addPreset(all.at(i).name, PresetPlan(), &nobody);
    if (!nobody.presets.isEmpty()) operators.append(nobody);
    return operators;
}

// A preset that the index has and the library has not is passed over.
void NetConnectSettingUILogic::addPreset(const QString& name, const PresetPlan& plan, PresetOperator* to) {
    const int index = findLibraryProfile(name);
    if (index < 0) return;
    const DialupProfile& profile = m_ProfileLibList.at(index);
    OperatorPreset preset;
    preset.name = name;
    preset.plan = plan.name;
    preset.billing = plan.billing;
    if (profile.autoapn != QLatin1String("true")) preset.apn = profile.apn;
    to->presets.append(preset);
}
