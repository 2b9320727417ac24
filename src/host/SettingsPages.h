// SPDX-License-Identifier: MIT
// The settings pages: a list on the left, the chosen page on the right, OK and Cancel below.
//
// Nothing is asked of a page before it is shown. A page that refuses (its changes can't be saved) stays as it is,
// whether OK was pressed, another page was chosen, or the dialog is to be closed. The page that is left by OK or Cancel
// is the first one at the next time.
#ifndef ORBISDIAL_SETTINGSPAGES_H
#define ORBISDIAL_SETTINGSPAGES_H

#include <QWidget>

#include "PluginManager.h"

class QListWidget;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

class SettingsPages : public QWidget {
    Q_OBJECT

public:
    explicit SettingsPages(QWidget* parent = nullptr);

    // Takes these pages, the first of them as the current one.
    void setPages(const QVector<SettingsPage>& pages);

    // Shows the current page, the dialog being opened.
    void begin();

    // Sets the keyboard's focus into the page on show.
    void focusPage();

    // Goes to the page of this module name or plug-in name; false when there is none, or the present page
    // refuses to go.
    bool showPage(const QString& name);

    // The names by which showPage() finds the pages.
    QStringList pageNames() const;

    // Asks as OK does; false when a page refuses to go.
    bool finish();

    // Undoes what is being edited, without a question: the session ends.
    void abandon();

    // Sets every text again.
    void retranslate();

    QSize sizeHint() const override;

signals:
    // OK or Cancel was pressed, and the pages agreed.
    void done();

    // A page is on show, which may want more room than the one before.
    void shown();

    // A page was left, saved or undone: what the profiles say may have changed.
    void acted();

private:
    using Answer = int (ISettingUIPlugin::*)();

    void onClickOk();
    void onClickCancel();
    void onCurrentRowChanged(int row);

    QWidget* makeButtons();
    bool moveTo(int row);
    bool ask(int row, Answer answer);
    bool askEach(Answer answer);
    void showCurrent();
    void selectCurrentRow();

    QVector<SettingsPage> m_Pages;
    int m_Current = -1;
    bool m_IsShown = false;  // the current page was told to show itself
    bool m_Asking = false;   // a page has the word, perhaps with a message on screen
    QListWidget* m_List;
    QScrollArea* m_Scroll;
    QWidget* m_Frame;
    QVBoxLayout* m_FrameLayout;
    QPushButton* m_Ok;
    QPushButton* m_Cancel;
};

#endif
