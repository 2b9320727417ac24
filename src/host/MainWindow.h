// The main window: the bar, the settings pages, the simulated modem's panel, and what can't be used.
#ifndef ORBISDIAL_MAINWINDOW_H
#define ORBISDIAL_MAINWINDOW_H

#include <QWidget>

#include "PluginManager.h"

class ConnectionBar;
class ModemPanel;
class QLabel;
class SettingsPages;

// Closing the window asks the present page as OK does; the window stays when the page refuses.
class MainWindow : public QWidget {
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);

    SettingsPages* pages() const { return m_Pages; }

    // Null when another modem than the simulated one is in use.
    ModemPanel* modemPanel() const { return m_ModemPanel; }

    // Shows why plug-ins can't be used, below everything else.
    void setProblems(const QVector<PluginProblem>& problems);

    // Shows again what the plug-ins and the modem say.
    void refresh();

    // Sets every text in the current language.
    void retranslate();

    // Leaves a page room for long names.
    QSize sizeHint() const override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QString problemText() const;

    ConnectionBar* m_Bar;
    SettingsPages* m_Pages;
    ModemPanel* m_ModemPanel;
    QLabel* m_ProblemLabel;
    QVector<PluginProblem> m_Problems;
};

#endif
