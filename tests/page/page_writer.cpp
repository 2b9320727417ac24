// Another process that changes the user's profiles while the page is open.
#include <QCoreApplication>

#include "NetConnectSettingUILogic.h"

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    NetConnectSettingUILogic* logic = NetConnectSettingUILogic::GetInstance();
    DialupProfile profile;
    profile.name = application.arguments().value(2);
    profile.phonenumber = "other";
    const bool adds = application.arguments().value(1) == "add";
    const int status = adds ? logic->AddDialUpProfile(profile) : logic->DelDialUpProfile(profile.name);
    NetConnectSettingUILogic::Destroy();
    return status;
}
