// SPDX-License-Identifier: MIT
// The icon in the desktop's tray: the state, a menu, and messages about changes.
#ifndef ORBISDIAL_TRAY_H
#define ORBISDIAL_TRAY_H

#include <QMenu>
#include <QSystemTrayIcon>

#include "ConnectionPicture.h"

// To be made only where QSystemTrayIcon::isSystemTrayAvailable().
class Tray : public QObject {
    Q_OBJECT

public:
    explicit Tray(QObject* parent = nullptr);

    void refresh(const ConnectionPicture& picture);
    void retranslate();

    // Unless the user switched messages off.
    void say(const QString& title, const QString& text, bool isWarning);

    // Tests look into it.
    QMenu* menu() { return &m_Menu; }

signals:
    void windowWanted();  // the icon, or a message, was clicked
    void acted();         // the menu's first entry, which does what the window's button does
    void connectWanted(const QString& profile);
    void quitWanted();

private:
    void listProfiles();

    QSystemTrayIcon m_Icon;
    QMenu m_Menu;
    QAction* m_State;
    QAction* m_Action;
    QMenu* m_Profiles;
    QAction* m_Show;
    QAction* m_Quit;
    ConnectionPicture m_Picture;
    bool m_IsFirst = true;
};

#endif
