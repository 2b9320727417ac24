// SPDX-License-Identifier: MIT
// What every plug-in of the host offers.
#ifndef ORBISDIAL_IBASEPLUGIN_H
#define ORBISDIAL_IBASEPLUGIN_H

#include <QObject>
#include <QString>

#include "IBaseInterface.h"
#include "IDestroyEvent.h"

// The numbers that QueryInterface() of a settings plug-in answers.
enum QueryInterfaceId { SettingPageInterface = 4098, NetConnectSettingInterface = 28689 };

// All operations are called on the GUI thread. Their order is part of the binary interface.
class IBasePlugin : public IBaseInterface, public IDestroyEvent {
public:
    // Builds the plug-in once; a second call does nothing. Answers non-zero when the plug-in can be used.
    virtual int Init() = 0;

    virtual int GetPluginType() = 0;

    // The class identifier under which the container finds the plug-in; null for one that is not searched.
    virtual QString GetCLSID() = 0;

    virtual int GetVersion() = 0;
    virtual QString GetPluginName() = 0;
    virtual bool IsAllowRelease() = 0;

    // Stores in *out the object behind a numbered interface and answers 1, or answers 0 and leaves *out.
    // The object stays the plug-in's.
    virtual int QueryInterface(int id, QObject** out) = 0;
};

Q_DECLARE_INTERFACE(IBasePlugin, "com.kestra.orbisdial.plugin.IBasePlugin")

#endif
