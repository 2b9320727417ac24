// SPDX-License-Identifier: MIT
// What the host core library offers to every plug-in: messages and windows here, settings, places and sealed texts in
// CommonUtilsBase. GUI thread, where the base says nothing else.
#ifndef ORBISDIAL_COMMONUTILS_H
#define ORBISDIAL_COMMONUTILS_H

#include <QDebug>
#include <QFontMetrics>
#include <QMessageBox>
#include <QString>
#include <QTime>
#include <QWidget>

#include "CommonUtilsBase.h"
#include "CommonUtilsElide.h"
#include "HostCoreExport.h"

class HOSTCORE_EXPORT CommonUtils : public CommonUtilsBase {
public:
    // What ShowMessage answers: for each button, in their order; none for a box that is closed without one of them
    // (Escape, the window's own cross, its parent's or the program's end) or can't be shown since there is no
    // QApplication. A caller that asks must then leave things as they are.
    enum MessageAnswer { NoAnswer = 0, FirstButton = 1024, SecondButton = 4194304, ThirdButton = 1048576 };

    // Shows a message box and waits for the answer. The caption and texts are shown as plain text. The button
    // labels are string IDs, translated here in the context "NetConnectPlugin" (an ID without a text is shown
    // itself); an empty label makes no button, but there is always one. The parent may be null and may be
    // destroyed while the box is up. A modal box blocks every window, any other one its parent's alone. The default
    // button is the one that Return presses; the first one where it is not shown.
    static int ShowMessage(QMessageBox::Icon icon, QWidget* parent, const QString& caption, const QString& text,
                           const QString& button1, const QString& button2 = QString(),
                           const QString& button3 = QString(), const QString& informativeText = QString(),
                           bool modal = true, Qt::WindowFlags flags = Qt::WindowCloseButtonHint,
                           MessageAnswer defaultButton = FirstButton);

    // A modal question with a box to tick below it, whose label is a string ID, too. Stores whether the box was ticked
    // when a button was pressed; without an answer it counts as not ticked.
    static int ShowMessage(QMessageBox::Icon icon, QWidget* parent, const QString& caption, const QString& text,
                           const QString& button1, const QString& button2, const QString& checkBox, bool* ticked);

    // Moves a window to the centre of its parent's window, or of the screen when that one is not shown; never
    // off the screen. Null and a widget that is no window are left alone.
    static void MoveCentre(QWidget* widget);

    // The host's main window, which SetMainWindow() names; null before and after its life.
    static QWidget* GetMainWindow();
    static void SetMainWindow(QWidget* window);

    // Shortens a widget's caption to a width in pixels and keeps the full text as its tool tip. Works on the
    // text that the widget holds: set the full text again before each call.
    template <class T>
    static void setElidedTextForWidgetText(T* widget, int width, Qt::TextElideMode mode);

    // The same for widgets with a title.
    template <class T>
    static void setElidedTextForWidgetTitle(T* widget, int width, Qt::TextElideMode mode);
};

template <class T>
void CommonUtils::setElidedTextForWidgetText(T* widget, int width, Qt::TextElideMode mode) {
    CommonUtilsElide::elide(widget, &T::text, &T::setText, width, mode, "setElidedTextForWidgetText");
}

template <class T>
void CommonUtils::setElidedTextForWidgetTitle(T* widget, int width, Qt::TextElideMode mode) {
    CommonUtilsElide::elide(widget, &T::title, &T::setTitle, width, mode, "setElidedTextForWidgetTitle");
}

#endif
