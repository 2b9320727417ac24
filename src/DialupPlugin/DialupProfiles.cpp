// SPDX-License-Identifier: MIT
#include "DialupProfiles.h"

#include <QVariant>

#include "INetConnectSetting.h"
#include "Startup.h"

namespace {

INetConnectSetting* settings() { return qobject_cast<INetConnectSetting*>(DialupProfiles::object()); }

bool isTrue(const QString& flag) { return flag == QLatin1String("true"); }

}  // namespace

QObject* DialupProfiles::object() { return findPeer<QObject>(ORBISDIAL_NETCONNECT_CLSID, NetConnectSettingKind); }

bool DialupProfiles::areAwaited() {
    const QObject* profiles = object();
    return profiles && profiles->property(ORBISDIAL_PROFILES_AWAITED).toBool();
}

bool DialupProfiles::find(const QString& name, DialupProfile* profile) {
    DialupProfile found;
    INetConnectSetting* profiles = settings();
    if (!profiles || profiles->GetDialUpProfile(name, &found) != 0 || found.name.isEmpty()) return false;
    *profile = found;
    return true;
}

QStringList DialupProfiles::names() {
    QStringList names;
    if (INetConnectSetting* profiles = settings()) profiles->GetAllDialUpProfile(&names);
    return names;
}

QString DialupProfiles::defaultName() {
    QString name;
    if (INetConnectSetting* profiles = settings()) profiles->GetDefaultDialUpProfileName(&name);
    return name;
}

bool DialupProfiles::mustAsk(const DialupProfile& profile) {
    INetConnectSetting* profiles = settings();
    if (!profiles || !isTrue(profile.popusername)) return false;
    const UserPrompt prompt = profiles->GetUserPromptInfo();
    return isTrue(prompt.promptPwd) && isTrue(prompt.userCheck);
}
