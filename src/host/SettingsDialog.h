// SPDX-License-Identifier: MIT
// The settings: the pages of the plug-ins and the program's own.
#ifndef ORBISDIAL_SETTINGSDIALOG_H
#define ORBISDIAL_SETTINGSDIALOG_H

#include <QWidget>

#include "PluginManager.h"

class SettingsPages;

// OK takes the changes, Cancel drops them, and either closes the dialog. Escape and the window's cross ask as OK does.
// A page that refuses (it can't be saved, or nobody answered its question) keeps the dialog open.
// No QDialog: there Return in a field of a page would press a button.
class SettingsDialog : public QWidget {
    Q_OBJECT

public:
    explicit SettingsDialog(QWidget* parent = nullptr);

    SettingsPages* pages() const { return m_Pages; }

    // Shows the dialog, or raises it.
    void open();

    // As the window's cross does; false when a page refuses.
    bool finish();

    // Undoes what is being edited, without a question.
    void abandon();

    void retranslate();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void makeRoom();

    SettingsPages* m_Pages;
};

#endif
