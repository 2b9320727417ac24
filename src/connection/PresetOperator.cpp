// SPDX-License-Identifier: MIT
#include "PresetOperator.h"

#include <QFile>

#include "CommonUtilsBase.h"
#include "NetConnectFileNames.h"

namespace {

QString indexPath() {
    return CommonUtilsBase::GetPluginLibraryPath() + "/plugins/NetConnectPlugin/" + NetConnectFileNames::Operators;
}

}  // namespace

std::optional<OperatorEntry> presetOperator(const QStringList& profiles) {
    QFile file(indexPath());
    if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
    QXmlStreamReader reader;
    OperatorIndex index;
    index.read(file.readAll(), &reader);
    for (const QString& profile : profiles)
        if (const OperatorEntry* entry = index.operatorOf(profile)) return *entry;
    return std::nullopt;
}

const BalanceQuery* balanceCommand(const OperatorEntry& entry) {
    for (const BalanceQuery& query : entry.balanceQueries)
        if (query.way == BalanceQuery::Ussd) return &query;
    return nullptr;
}
