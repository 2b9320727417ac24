// SPDX-License-Identifier: MIT
#include "Tray.h"

#include <QSet>
#include <algorithm>
#include <utility>

#include "HostText.h"
#include "Plugins.h"
#include "StateSign.h"
#include "TextValues.h"

namespace {

constexpr int MostProfiles = 30;  // more don't fit a screen; the window has them all

// A menu is as wide as its longest text, and takes a single "&" for a mnemonic.
QString fitting(const QMenu& menu, const QString& text) {
    constexpr int MostLetters = 60;
    const QFontMetrics metrics = menu.fontMetrics();
    return metrics.elidedText(text, Qt::ElideRight, MostLetters * metrics.averageCharWidth())
        .replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace

Tray::Tray(QObject* parent) : QObject(parent) {
    m_State = m_Menu.addAction(QString());
    m_State->setEnabled(false);
    m_Menu.addSeparator();
    m_Action = m_Menu.addAction(QString(), this, &Tray::acted);
    m_Profiles = m_Menu.addMenu(QString());
    m_Menu.addSeparator();
    m_Show = m_Menu.addAction(QString(), this, &Tray::windowWanted);
    m_Quit = m_Menu.addAction(QString(), this, &Tray::quitWanted);
    connect(m_Profiles, &QMenu::aboutToShow, this, &Tray::listProfiles);
    connect(&m_Icon, &QSystemTrayIcon::messageClicked, this, &Tray::windowWanted);
    connect(&m_Icon, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick) emit windowWanted();
    });
    m_Icon.setContextMenu(&m_Menu);
    m_Icon.setIcon(StateSign::icon(m_Picture.sign));
    retranslate();
    m_Icon.show();
}

void Tray::refresh(const ConnectionPicture& picture) {
    if (picture.sign != m_Picture.sign) m_Icon.setIcon(StateSign::icon(picture.sign));
    m_Picture = picture;
    m_Icon.setToolTip(picture.headline + QLatin1Char('\n') + picture.detail);
    m_State->setText(fitting(m_Menu, picture.headline));
    m_Action->setText(fitting(m_Menu, ConnectionPicture::actionText(picture.action)));
    m_Action->setEnabled(picture.isActionAllowed);
    m_Profiles->setEnabled(picture.mayConnect());
}

void Tray::retranslate() {
    m_Profiles->setTitle(hostText("IDS_HOST_CONNECT_WITH"));
    m_Show->setText(hostText("IDS_HOST_SHOW_WINDOW"));
    m_Quit->setText(hostText("IDS_HOST_QUIT"));
}

void Tray::say(const Notice& notice) {
    m_Icon.showMessage(notice.title, notice.text,
                       notice.isWarning ? QSystemTrayIcon::Warning : QSystemTrayIcon::Information);
}

void Tray::listProfiles() {
    m_Profiles->clear();
    INetConnectSetting* const profiles = Plugins::profiles();
    if (!profiles) return;
    QList<QString> names, own, presets;
    profiles->GetAllDialUpProfile(&names);
    if (IPresetLibrary* const library = Plugins::presets()) library->GetOwnProfileNames(&own);
    const QSet<QString> mine(own.begin(), own.end());
    for (const QString& name : std::as_const(names))
        if (!mine.contains(name)) presets.append(name);
    addProfiles(own.mid(0, MostProfiles));
    if (!own.isEmpty() && !presets.isEmpty()) m_Profiles->addSeparator();
    addProfiles(presets.mid(0, std::max(0, MostProfiles - int(own.size()))));
}

void Tray::addProfiles(const QStringList& names) {
    QString standard;
    Plugins::profiles()->GetDefaultDialUpProfileName(&standard);
    for (const QString& name : names) {
        const QString text =
            name == standard ? hostText("IDS_HOST_PROFILE_DEFAULT", {name}) : TextValues::isolated(name);
        m_Profiles->addAction(fitting(m_Menu, text), this, [this, name] { emit connectWanted(name); });
    }
}
