// SPDX-License-Identifier: MIT
// A plug-in with a widget of its own.
#ifndef ORBISDIAL_IUIPLUGIN_H
#define ORBISDIAL_IUIPLUGIN_H

#include <QRect>
#include <QWidget>

#include "IBasePlugin.h"

// All operations are called on the GUI thread. Their order is part of the binary interface.
class IUIPlugin : public IBasePlugin {
public:
    // Puts the plug-in's widget into the parent, at the rectangle (pixels, in the parent's coordinates).
    virtual int ShowWindow(QWidget* parent, QRect& rect) = 0;

    virtual int DoModal() = 0;
    virtual void Hide() = 0;
    virtual void FitSize(QRect& rect) = 0;
    virtual bool IsReady() = 0;
    virtual bool ChangeLang(const QString& lang) = 0;
};

Q_DECLARE_INTERFACE(IUIPlugin, "com.kestra.orbisdial.plugin.IUIPlugin")

#endif
