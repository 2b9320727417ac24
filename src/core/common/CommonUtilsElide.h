// SPDX-License-Identifier: MIT
// What the elided-text templates of CommonUtils have in common.
#ifndef ORBISDIAL_COMMONUTILSELIDE_H
#define ORBISDIAL_COMMONUTILSELIDE_H

#include <QDebug>
#include <QFontMetrics>
#include <QLocale>
#include <QString>
#include <QTime>

namespace CommonUtilsElide {

inline void trace(const char* format, const char* function, int line) {
    const QString time = QLocale::c().toString(QTime::currentTime(), "hh:mm:ss:zzz");
    qDebug(format, time.toLatin1().constData(), __FILE__, function, line);
}

// Both templates are this one; they differ in how the widget's text is read and set.
template <class T, class Text, class SetText>
void elide(T* widget, Text text, SetText setText, int width, Qt::TextElideMode mode, const char* function) {
    trace("%s: %s: %s: %d: Enter", function, __LINE__);
    if (!widget) {
        trace("%s: %s: %s: %d: Exit NULL == pChildWidget", function, __LINE__);
        return;
    }
    const QFontMetrics metrics(widget->font());
    const QString full = (widget->*text)();
    const bool fits = metrics.boundingRect(full).width() <= width;
    widget->setToolTip(fits ? QString() : full);
    if (!fits) (widget->*setText)(metrics.elidedText(full, mode, width));
    trace("%s: %s: %s: %d: Exit", function, __LINE__);
}

}  // namespace CommonUtilsElide

#endif
