// SPDX-License-Identifier: MIT
// The host's plug-in container.
#ifndef ORBISDIAL_PLUGINCONTAINER_H
#define ORBISDIAL_PLUGINCONTAINER_H

#include <QList>
#include <QPointer>

#include "IPluginContainer.h"

class PluginContainer : public IPluginContainer {
public:
    bool AddPlugin(QObject* plugin, QString clsid, int kind) override;
    void RemovePlugin(QObject* plugin) override;
    int GetPluginCount() override;
    QObject* GetPluginAt(int index) override;
    QString GetClassIdAt(int index) override;
    int GetKindAt(int index) override;
    bool Contains(QObject* plugin) override;
    QObject* FindPlugin(QString clsid, int kind) override;

private:
    struct Entry {
        QPointer<QObject> plugin;
        QString clsid;
        int kind = 0;
    };

    // The entries whose objects are still there.
    QList<Entry>& entries();

    QList<Entry> m_Entries;
};

#endif
