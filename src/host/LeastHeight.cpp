// SPDX-License-Identifier: MIT
#include "LeastHeight.h"

#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <QWidget>

namespace {

void makeRoom(QWidget* widget) {
    QLayout* const layout = widget->layout();
    if (!layout || !layout->hasHeightForWidth()) return;
    const int most = widget->screen()->availableGeometry().height() * 9 / 10;
    const int least = qMin(layout->totalHeightForWidth(widget->width()), most);
    widget->setMinimumHeight(least);
    // Qt opens a window as high as it would be if it were as narrow as its texts allow.
    if (widget->isWindow() && !widget->isVisible()) widget->resize(widget->width(), least);
}

}  // namespace

LeastHeight::LeastHeight(QWidget* widget) : QObject(widget) { widget->installEventFilter(this); }

void LeastHeight::keep(QWidget* widget) { new LeastHeight(widget); }

// The layout has had these events before.
bool LeastHeight::eventFilter(QObject* watched, QEvent* event) {
    const bool changes = event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest;
    if (changes) makeRoom(static_cast<QWidget*>(watched));
    return QObject::eventFilter(watched, event);
}
