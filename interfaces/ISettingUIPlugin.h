// SPDX-License-Identifier: MIT
// A page of the host's settings dialog.
#ifndef ORBISDIAL_ISETTINGUIPLUGIN_H
#define ORBISDIAL_ISETTINGUIPLUGIN_H

#include <QObject>
#include <QRect>
#include <QString>
#include <QWidget>

// All operations are called on the GUI thread. Their order is part of the binary interface.
class ISettingUIPlugin {
public:
    virtual ~ISettingUIPlugin() {}

    // OK of the dialog: 0 keeps the dialog open, since the page could not be saved.
    virtual int OnClickSettingOkButton() = 0;

    // Cancel of the dialog: an edit in progress is undone without a question.
    virtual int OnClickSettingCancelButton() = 0;

    // Shows the page inside the parent, at the rectangle (pixels, in the parent's coordinates).
    virtual int ShowSettingDialog(QWidget* parent, QRect& rect) = 0;

    // The page's title in the dialog's list, in the current language.
    virtual QString GetModuleName() = 0;

    // The dialog leaves the page for another one: 0 when the page refuses to go.
    virtual int HideSetting() = 0;

    virtual bool IsActiveSetting() = 0;
};

Q_DECLARE_INTERFACE(ISettingUIPlugin, "com.kestra.orbisdial.plugin.ISettingUIPlugin")

#endif
