// SPDX-License-Identifier: MIT
// The host's dialog frame: hosts one main widget.
#ifndef ORBISDIAL_EXTENDDIALOG_H
#define ORBISDIAL_EXTENDDIALOG_H

#include <QDialog>
#include <QPointer>

#include "HostCoreExport.h"

class HOSTCORE_EXPORT ExtendDialog : public QDialog {
    Q_OBJECT

public:
    // The widget type is a hint for the host's style sheets (the dynamic property "widgetType").
    explicit ExtendDialog(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags(), int widgetType = 0);

    // Makes the widget fill the frame and takes it over; a previous main widget is handed back to its maker
    // hidden and without a parent. Null is ignored.
    void AddMainWidget(QWidget* widget);

    // Null before the first AddMainWidget() and after the widget's life.
    QWidget* MainWidget() const;

private:
    QPointer<QWidget> m_pMainWidget;
};

#endif
