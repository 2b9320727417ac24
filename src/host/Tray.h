// SPDX-License-Identifier: MIT
// The icon in the desktop's tray: the state, and a menu.
#ifndef ORBISDIAL_TRAY_H
#define ORBISDIAL_TRAY_H

#include <QMenu>
#include <QSystemTrayIcon>

#include "ConnectionPicture.h"
#include "Notices.h"

// To be made only where QSystemTrayIcon::isSystemTrayAvailable().
class Tray : public QObject {
    Q_OBJECT

public:
    explicit Tray(QObject* parent = nullptr);

    void refresh(const ConnectionPicture& picture);
    void retranslate();

    // Shows a message at the icon, where the desktop has no other place for it.
    void say(const Notice& notice);

    // Tests look into it.
    QMenu* menu() { return &m_Menu; }

signals:
    void windowWanted();  // the icon, or a message, was clicked
    void acted();         // the menu's first entry, which does what the window's button does
    void connectWanted(const QString& profile);
    void quitWanted();

private:
    void listProfiles();
    void addProfiles(const QStringList& names);

    QSystemTrayIcon m_Icon;
    QMenu m_Menu;
    QAction* m_State;
    QAction* m_Action;
    QMenu* m_Profiles;
    QAction* m_Show;
    QAction* m_Quit;
    ConnectionPicture m_Picture;
};

#endif
