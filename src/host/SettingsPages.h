// The settings pages of the main window: a list on the left, the chosen page on the right, OK and Cancel below.
//
// The window stays when a page is done: OK takes its changes, Cancel drops them, and either shows the page
// again. A page that refuses (its changes can't be saved) stays as it is, whether OK was pressed, another page
// was chosen, or the window is to be closed.
#ifndef ORBISDIAL_SETTINGSPAGES_H
#define ORBISDIAL_SETTINGSPAGES_H

#include <QWidget>

#include "PluginManager.h"

class QListWidget;
class QPushButton;
class QVBoxLayout;

class SettingsPages : public QWidget {
    Q_OBJECT

public:
    explicit SettingsPages(QWidget* parent = nullptr);

    // Shows these pages and the first of them.
    void setPages(const QVector<SettingsPage>& pages);

    // Drops all pages, without a question, before their plug-ins stop.
    void clear();

    // Goes to the page of this module name or plug-in name; false when there is none, or the present page
    // refuses to go.
    bool showPage(const QString& name);

    // The names by which showPage() finds the pages.
    QStringList pageNames() const;

    // Asks the present page as OK does; false when it refuses to go.
    bool finish();

    // Undoes what is being edited, without a question: the session ends.
    void abandon();

    // Sets every text again.
    void retranslate();

signals:
    // A page was left, saved or undone: what the profiles say may have changed.
    void acted();

private:
    using Answer = int (ISettingUIPlugin::*)();

    void onClickOk();
    void onClickCancel();
    void onCurrentRowChanged(int row);

    QWidget* makeButtons();
    bool moveTo(int row);
    bool ask(Answer answer);
    void showCurrent();
    void selectCurrentRow();

    QVector<SettingsPage> m_Pages;
    int m_Current = -1;
    bool m_Asking = false;  // a page has the word, perhaps with a message on screen
    QListWidget* m_List;
    QWidget* m_Frame;
    QVBoxLayout* m_FrameLayout;
    QPushButton* m_Ok;
    QPushButton* m_Cancel;
};

#endif
