// SPDX-License-Identifier: MIT
// The plug-ins that the host itself talks to, as the container finds them now.
#ifndef ORBISDIAL_PLUGINS_H
#define ORBISDIAL_PLUGINS_H

#include "IDialupUIService.h"
#include "INetConnectSetting.h"
#include "IPresetLibrary.h"
#include "Startup.h"

namespace Plugins {

// Each null when there is none.
inline QObject* dialerObject() { return findPeer<QObject>(ORBISDIAL_DIALUP_CLSID, DialupPluginKind); }
inline IDialupUIService* dialer() { return findPeer<IDialupUIService>(ORBISDIAL_DIALUP_CLSID, DialupPluginKind); }

inline QObject* profilesObject() { return findPeer<QObject>(ORBISDIAL_NETCONNECT_CLSID, NetConnectSettingKind); }
inline INetConnectSetting* profiles() {
    return findPeer<INetConnectSetting>(ORBISDIAL_NETCONNECT_CLSID, NetConnectSettingKind);
}

inline IPresetLibrary* presets() { return findPeer<IPresetLibrary>(ORBISDIAL_PRESETLIBRARY_CLSID, PresetLibraryKind); }

}  // namespace Plugins

#endif
