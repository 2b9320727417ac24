// SPDX-License-Identifier: MIT
// The host: brings the plug-ins, the notification service and the window together.
//
// The window comes first: its plug-ins build whole pages, and a real modem's libraries take as long to load as the
// window takes to be painted. So the device SDK loads them on a thread, and the plug-ins start when that is done and
// the window has been painted.
#ifndef ORBISDIAL_HOST_H
#define ORBISDIAL_HOST_H

#include <QThread>
#include <QTimer>
#include <memory>
#include <optional>

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
    // Makes the window, and has the rest start behind its first paint. The language must be set before, and which kind
    // of device is wanted.
    Host();

    // Stops the plug-ins, then takes the window away.
    ~Host() override;

    MainWindow* window() { return &m_Window; }

    // Starts the plug-ins of the library path now, unless they have. Waits for what is being loaded.
    void start();

    // Shows the state in the desktop's tray, where there is one. Closing the window may then leave the program there.
    // Counts as painted.
    void useTray();

    // Makes a language current for the host and for every plug-in; false when it is not shipped.
    bool changeLanguage(const QString& code);

    // An event that a plug-in sent, whomever to. The window is brought up to date once the sender has finished.
    int Notify(unsigned int event, unsigned int param1, unsigned int param2) override;

    // Watches for the window's first paint, and the properties by which the plug-ins tell of the SIM card, of storage
    // problems and of the connection.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void started();

private:
    void startBehindPaint();
    void startWhenReady();
    void followDevice();
    void showSign();
    void watchPlugins();

    const std::unique_ptr<QThread> m_DeviceLoading;
    std::optional<DeviceEvents> m_DeviceEvents;
    NetworkKind m_NetworkKind;
    NotifyService m_NotifyService;
    PluginManager m_Plugins;
    HostSettingsPage m_SettingsPage;
    MainWindow m_Window;
    DesktopMessages m_Messages;
    std::unique_ptr<Tray> m_Tray;
    QTimer m_Refresh;
    QTimer m_LatestStart;
    bool m_IsSeen = false;
    bool m_HasStarted = false;
    std::optional<ConnectionPicture::Sign> m_ShownSign;
};

#endif
