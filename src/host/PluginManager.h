// SPDX-License-Identifier: MIT
// Loads the plug-ins, starts and stops them, and knows what they offer to the host.
#ifndef ORBISDIAL_PLUGINMANAGER_H
#define ORBISDIAL_PLUGINMANAGER_H

#include <QPointer>
#include <QVector>

#include "IBasePlugin.h"
#include "INotify.h"
#include "INotifyService.h"
#include "ISettingUIPlugin.h"

// Why a plug-in can't be used.
struct PluginProblem {
    QString file;        // full path
    const char* reason;  // string ID
    QString detail;      // replaces "%1" in the reason

    // The reason alone, in the current language.
    QString text() const;
};

// A page for the host's window. The page is the object's interface.
struct SettingsPage {
    QPointer<QObject> object;
    ISettingUIPlugin* page;
    QString pluginName;
    bool keepsUntilOk = false;  // its changes wait for OK also while another page is on show
};

class PluginManager {
public:
    explicit PluginManager(INotifyService* notifyService);
    ~PluginManager();

    PluginManager(const PluginManager&) = delete;
    PluginManager& operator=(const PluginManager&) = delete;

    // Loads every plug-in in the sub-folders of the folder, in alphabetical order, and starts those that it
    // can; problems() tells about the others. A library that does not name one of our interfaces in its
    // metadata is not even loaded.
    void start(const QString& folder);

    // Every plug-in stops listening to the device SDK and frees what it holds. Their libraries stay loaded,
    // since texts and types of theirs may still be in use.
    void stop();

    // Passes an event to every plug-in that takes events.
    void notifyAll(unsigned int event, unsigned int param1 = 0, unsigned int param2 = 0) const;

    const QVector<SettingsPage>& pages() const { return m_Pages; }
    const QVector<PluginProblem>& problems() const { return m_Problems; }

private:
    struct Plugin {
        QString file;
        QPointer<QObject> object;
        IBasePlugin* base;
    };

    // Steps on the way into the list; each answers false, and has reported why, when the plug-in can't be used.
    bool load(Plugin* plugin);
    bool enlist(const Plugin& plugin);
    bool init(const Plugin& plugin);
    bool reject(const Plugin& plugin, const char* reason);
    bool report(const QString& file, const char* reason, const QString& detail = QString());

    void takeInterfaces(const Plugin& plugin);
    void discard(const Plugin& plugin);

    INotifyService* m_NotifyService;
    QVector<Plugin> m_Plugins;
    QVector<SettingsPage> m_Pages;
    QVector<PluginProblem> m_Problems;
};

#endif
