// SPDX-License-Identifier: MIT
// The host: brings the plug-ins, the notification service and the window together.
#ifndef ORBISDIAL_HOST_H
#define ORBISDIAL_HOST_H

#include <QTimer>
#include <memory>

#include "DesktopMessages.h"
#include "DeviceEvents.h"
#include "HostSettingsPage.h"
#include "INotify.h"
#include "MainWindow.h"
#include "NetworkKind.h"
#include "NotifyService.h"
#include "PluginManager.h"
#include "Tray.h"

class Host : public QObject, public INotify {
    Q_OBJECT
    Q_INTERFACES(INotify)

public:
    // Starts the plug-ins of the library path. The language must be set before, and the device chosen.
    Host();

    // Stops the plug-ins, then takes the window away.
    ~Host() override;

    MainWindow* window() { return &m_Window; }

    // Shows the state in the desktop's tray, where there is one. Closing the window may then leave the program there.
    void useTray();

    // Makes a language current for the host and for every plug-in; false when it is not shipped.
    bool changeLanguage(const QString& code);

    // An event that a plug-in sent, whomever to. The window is brought up to date once the sender has finished.
    int Notify(unsigned int event, unsigned int param1, unsigned int param2) override;

    // Watches the properties by which the plug-ins tell of the SIM card, of storage problems and of the connection.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void watchPlugins();

    DeviceEvents m_DeviceEvents;
    NetworkKind m_NetworkKind;
    NotifyService m_NotifyService;
    PluginManager m_Plugins;
    HostSettingsPage m_SettingsPage;
    MainWindow m_Window;
    DesktopMessages m_Messages;
    std::unique_ptr<Tray> m_Tray;
    QTimer m_Refresh;
};

#endif
