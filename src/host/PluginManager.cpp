// SPDX-License-Identifier: MIT
#include "PluginManager.h"

#include <QDir>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>
#include <utility>

#include "HostText.h"
#include "INetConnectSetting.h"
#include "IUIPlugin.h"
#include "Message.h"
#include "StandardOutput.h"
#include "Startup.h"

namespace {

QStringList libraries(const QString& folder) {
    QStringList files;
    const QDir root(folder);
    for (const QString& name : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        const QDir place(root.filePath(name));
        for (const QString& file : place.entryList(QDir::Files, QDir::Name)) {
            if (QLibrary::isLibrary(file)) files.append(place.filePath(file));
        }
    }
    return files;
}

bool isOurs(const QString& iid) {
    return iid == QLatin1String(qobject_interface_iid<IBasePlugin*>()) ||
           iid == QLatin1String(qobject_interface_iid<IUIPlugin*>());
}

QObject* queried(IBasePlugin* plugin, int id) {
    QObject* object = nullptr;
    return plugin->QueryInterface(id, &object) ? object : nullptr;
}

}  // namespace

QString PluginProblem::text() const { return hostText(reason, {detail}); }

PluginManager::PluginManager(INotifyService* notifyService) : m_NotifyService(notifyService) {}

PluginManager::~PluginManager() { stop(); }

void PluginManager::start(const QString& folder) {
    QVector<Plugin> enlisted;
    for (const QString& file : libraries(folder)) {
        Plugin plugin{file, nullptr, nullptr};
        if (load(&plugin) && enlist(plugin)) enlisted.append(plugin);
    }
    // Only now, so that each finds its peers in the container.
    for (const Plugin& plugin : std::as_const(enlisted)) {
        if (init(plugin)) m_Plugins.append(plugin);
    }
    for (const Plugin& plugin : std::as_const(m_Plugins)) takeInterfaces(plugin);
}

void PluginManager::stop() {
    m_Pages.clear();
    const QVector<Plugin> plugins = std::move(m_Plugins);
    m_Plugins.clear();
    for (const Plugin& plugin : plugins) {
        if (plugin.object) plugin.base->UnSDKRegisterEvent();
    }
    for (const Plugin& plugin : plugins) {
        if (plugin.object) discard(plugin);
    }
}

void PluginManager::notifyAll(unsigned int event, unsigned int param1, unsigned int param2) const {
    const QVector<Plugin> plugins = m_Plugins;
    for (const Plugin& plugin : plugins) {
        if (auto* listener = qobject_cast<INotify*>(plugin.object)) listener->Notify(event, param1, param2);
    }
}

bool PluginManager::load(Plugin* plugin) {
    QPluginLoader loader(plugin->file);
    const QJsonObject metaData = loader.metaData();
    if (metaData.isEmpty()) return report(plugin->file, "IDS_HOST_PLUGIN_LOAD_FAILED", loader.errorString());
    const bool isCandidate = isOurs(metaData.value(QLatin1String("IID")).toString());
    if (!isCandidate) return report(plugin->file, "IDS_HOST_PLUGIN_FOREIGN");
    plugin->object = loader.instance();
    if (!plugin->object) return report(plugin->file, "IDS_HOST_PLUGIN_LOAD_FAILED", loader.errorString());
    plugin->base = qobject_cast<IBasePlugin*>(plugin->object);
    return plugin->base || report(plugin->file, "IDS_HOST_PLUGIN_FOREIGN");
}

bool PluginManager::enlist(const Plugin& plugin) {
    const QString clsid = plugin.base->GetCLSID();
    if (clsid.isEmpty()) return true;
    if (!Startup::GetPluginContainer()->AddPlugin(plugin.object, clsid, plugin.base->GetPluginType())) {
        return reject(plugin, "IDS_HOST_PLUGIN_TAKEN");
    }
    if (auto* listener = qobject_cast<INotify*>(plugin.object)) m_NotifyService->AddListener(clsid, listener);
    return true;
}

bool PluginManager::init(const Plugin& plugin) {
    return plugin.base->Init() != 0 || reject(plugin, "IDS_HOST_PLUGIN_INIT_FAILED");
}

bool PluginManager::reject(const Plugin& plugin, const char* reason) {
    report(plugin.file, reason);
    plugin.base->UnSDKRegisterEvent();
    discard(plugin);
    return false;
}

void PluginManager::takeInterfaces(const Plugin& plugin) {
    QObject* pageObject = queried(plugin.base, SettingPageInterface);
    if (auto* page = qobject_cast<ISettingUIPlugin*>(pageObject)) {
        m_Pages.append({pageObject, page, plugin.base->GetPluginName(), false});
    }
    QObject* profiles = queried(plugin.base, NetConnectSettingInterface);
    if (qobject_cast<INetConnectSetting*>(profiles) &&
        !Startup::GetPluginContainer()->AddPlugin(profiles, ORBISDIAL_NETCONNECT_CLSID, NetConnectSettingKind)) {
        report(plugin.file, "IDS_HOST_PLUGIN_TAKEN");
    }
}

void PluginManager::discard(const Plugin& plugin) {
    plugin.base->OnDestroy();
    if (!plugin.object) return;
    if (auto* listener = qobject_cast<INotify*>(plugin.object)) m_NotifyService->RemoveListener(listener);
    Startup::GetPluginContainer()->RemovePlugin(plugin.object);
    delete plugin.object;
}

bool PluginManager::report(const QString& file, const char* reason, const QString& detail) {
    m_Problems.append({file, reason, detail});
    StandardOutput::writeDiagnostic("orbisdial", withReason(QDir::toNativeSeparators(file), m_Problems.last().text()));
    return false;
}
