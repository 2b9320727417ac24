// SPDX-License-Identifier: MIT
// Keeps texts whole that wrap: what comes later, such as a failure, and what a narrower window breaks into more lines.
#ifndef ORBISDIAL_LEASTHEIGHT_H
#define ORBISDIAL_LEASTHEIGHT_H

#include <QObject>

class QWidget;

class LeastHeight : public QObject {
    Q_OBJECT

public:
    // From now on the widget is never lower than its layout needs at its width, unless the screen is. Owned by the
    // widget.
    static void keep(QWidget* widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit LeastHeight(QWidget* widget);
};

#endif
