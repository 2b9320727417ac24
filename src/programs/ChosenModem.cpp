// SPDX-License-Identifier: MIT
#include "ChosenModem.h"

#include <vrks_simulated.h>

#include "CommonUtilsBase.h"

namespace {

const QString Group = QStringLiteral("Modem");

QString settingsKey() { return QString::fromUtf8(vrks_backend_name(nullptr)); }

}  // namespace

QString ChosenModem::id() {
    const QString key = settingsKey();
    return key.isEmpty() ? QString() : CommonUtilsBase::GetSettings(Group, key);
}

bool ChosenModem::choose(const QString& id) {
    const QString key = settingsKey();
    if (key.isEmpty() || !CommonUtilsBase::SetSettings(Group, key, id)) return false;
    return VRKS_DevSrv_SelectModem(id.toUtf8().constData()) == 0;
}

void ChosenModem::use() {
    if (!qEnvironmentVariableIsEmpty("ORBISDIAL_MODEM")) return;
    const QString chosen = id();
    if (!chosen.isEmpty()) VRKS_DevSrv_SelectModem(chosen.toUtf8().constData());
}
