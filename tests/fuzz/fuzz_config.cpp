// SPDX-License-Identifier: MIT
// The reader of the configuration, and the logic that asks it, for a card that serves two modes.

#include "FuzzFolder.h"
#include "NetConnectSettingUILogic.h"

static NetConnectSettingUILogic* makeLogic() {
    qputenv("ORBISDIAL_SIM_MULTI_MODE", "1");
    qputenv("ORBISDIAL_SIM_CARD_MODE", "2");
    qputenv("ORBISDIAL_SIM_CUSTOMIZE_NAME", "custom");
    return NetConnectSettingUILogic::GetInstance();
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const FuzzFolder folder;
    static NetConnectSettingUILogic* const logic = makeLogic();
    FuzzFolder::write(folder.pluginPath("NetConnectConfig.xml"), data, size);
    logic->getConfigData();
    for (const QString& key : logic->FunctionConfigKeys()) {
        bool on = false;
        int number = 0;
        QString text;
        logic->GetFunctionConfigValue(key, &on);
        logic->GetFunctionConfigValue(key, number, 1);
        logic->GetFunctionConfigStringValues(key, &text);
    }
    const NetConnectIMSISelection selection = logic->SelectByIMSI("262019876543210");
    require(selection.prefix.isEmpty() || QString("262019876543210").startsWith(selection.prefix));
    require(selection.defaultProfile.isEmpty() || !selection.names.isEmpty());
    logic->getAPNListFromHash();
    logic->getIMSIProfileList();
    logic->GetUserNamePasswdPromptInfo();
    return 0;
}
