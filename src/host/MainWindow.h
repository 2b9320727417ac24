// SPDX-License-Identifier: MIT
// The main window: the connection, the menus, the simulated modem's dock, and what can't be used.
#ifndef ORBISDIAL_MAINWINDOW_H
#define ORBISDIAL_MAINWINDOW_H

#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include "ConnectionPicture.h"
#include "PluginManager.h"

class BalanceDialog;
class ConnectionView;
class ModemPanel;
class NewProfileDialog;
class PresetsDialog;
class QDockWidget;
class QLabel;
class SettingsDialog;
class SettingsPages;
class UnlockDialog;

// Closing the window asks the open settings as their OK does; the window stays when a page refuses.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);

    // The settings dialog's; the first call makes the dialog.
    SettingsPages* pages();

    // The plug-ins have started: their pages, and why others can't be used. Until then the window says that it looks
    // for a modem, and asks nobody.
    void begin(const QVector<SettingsPage>& pages, const QVector<PluginProblem>& problems);

    // Drops all pages, without a question, before their plug-ins stop.
    void clearPages();

    void openSettings();

    ConnectionView* view() const { return m_View; }

    // Null when another modem than the simulated one is in use.
    ModemPanel* modemPanel() const { return m_ModemPanel; }

    const ConnectionPicture& picture() const { return m_Picture; }

    // Closing then leaves the program where it can be had back: in the tray.
    void setHidesOnClose(bool hides) { m_HidesOnClose = hides; }

    // Shows again what the plug-ins and the modem say.
    void refresh();

    // Sets every text in the current language.
    void retranslate();

    // Place and layout as they were left.
    void restore();

    // Comes to the front, from wherever it is.
    void present();

    // Comes to the front, and has the settings page of the profiles offer this file's for import, or tells why not.
    void offerImport(const QString& file);

    // Ends the program; false when a page or the user refuses.
    bool quit();

    // Undoes what is being edited, without a question: the session ends.
    void abandon();

    void unlock();
    void askBalance();

    // The world's presets, to connect with or to make profiles from.
    void openPresets();

    // A profile of the user's own from the one that the chooser stands at.
    void copyProfile();

    QSize sizeHint() const override;

signals:
    // The user was faster than the plug-ins: begin() is wanted at once.
    void beginWanted();

    // It says something else.
    void refreshed();

    // The window was closed for good.
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    struct Entry {
        QAction* action;
        const char* id;
    };

    void buildMenus();
    QAction* addEntry(QMenu* menu, const char* id, const QKeySequence& shortcut, void (MainWindow::*slot)());
    void addDock();
    void retranslateDock();
    void act();
    void openGuide();
    void showAbout();
    void closeForGood();
    bool agreesToEnd();
    void useProfile(const QString& name);
    void rememberConnection();
    void setPages(const QVector<SettingsPage>& pages);
    void requireBegun();
    QString problemText() const;
    QString importProblem(const QString& file);
    bool openPage(const QObject* page);

    ConnectionView* m_View;
    SettingsDialog* m_Settings = nullptr;
    QPointer<UnlockDialog> m_Unlock;
    QPointer<PresetsDialog> m_Presets;
    QPointer<NewProfileDialog> m_Copy;
    QPointer<BalanceDialog> m_Balance;
    ModemPanel* m_ModemPanel;
    QDockWidget* m_Dock = nullptr;
    QLabel* m_ProblemLabel;
    QMenu* m_ConnectionMenu = nullptr;
    QMenu* m_HelpMenu = nullptr;
    QAction* m_Action = nullptr;
    QAction* m_UnlockAction = nullptr;
    QVector<Entry> m_Entries;
    QVector<SettingsPage> m_Pages;
    QVector<PluginProblem> m_Problems;
    ConnectionPicture m_Picture;
    QTimer m_Settled;
    bool m_HasBegun = false;
    bool m_HidesOnClose = false;
    QByteArray m_LastPlace;
    bool m_IsEnding = false;
    bool m_IsConnectionRemembered = false;
};

#endif
