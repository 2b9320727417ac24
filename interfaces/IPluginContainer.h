// SPDX-License-Identifier: MIT
// The host's plug-in container, in which plug-ins find one another.
#ifndef ORBISDIAL_IPLUGINCONTAINER_H
#define ORBISDIAL_IPLUGINCONTAINER_H

#include <QObject>
#include <QString>

// All operations are called on the GUI thread. Objects stay their owners'; one that is destroyed drops
// out by itself. The order of the operations is part of the binary interface.
class IPluginContainer {
public:
    virtual ~IPluginContainer() {}

    // Puts a plug-in object into the container; false for a null object or an identifier that is taken.
    virtual bool AddPlugin(QObject* plugin, QString clsid, int kind) = 0;

    virtual void RemovePlugin(QObject* plugin) = 0;
    virtual int GetPluginCount() = 0;

    // The plug-in at a place from 0 to GetPluginCount() - 1, in the order of adding; null beyond.
    virtual QObject* GetPluginAt(int index) = 0;

    // Identifier and kind of the plug-in at a place; null text and 0 beyond.
    virtual QString GetClassIdAt(int index) = 0;
    virtual int GetKindAt(int index) = 0;

    // True when the object is in the container.
    virtual bool Contains(QObject* plugin) = 0;

    // The plug-in with this class identifier and kind, to be asked for an interface with qobject_cast;
    // null when there is none.
    virtual QObject* FindPlugin(QString clsid, int kind) = 0;
};

#endif
