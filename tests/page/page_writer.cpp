// Another process that changes the user's profiles while the page is open.
#include <QCoreApplication>

#include "NetConnectSettingUILogic.h"

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QString command = application.arguments().value(1);
    NetConnectSettingUILogic* logic = NetConnectSettingUILogic::GetInstance();
    DialupProfile profile;
    profile.name = application.arguments().value(2);
    profile.phonenumber = "other";
    int status = 1;
    if (command == "add") status = logic->AddDialUpProfile(profile);
    if (command == "delete") status = logic->DelDialUpProfile(profile.name);
    if (command == "default") status = logic->SetDefaultDialUpProfileName(profile.name, true);
    NetConnectSettingUILogic::Destroy();
    return status;
}
