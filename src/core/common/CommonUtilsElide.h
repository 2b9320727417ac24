// The elided-text templates of CommonUtils; included at the end of CommonUtils.h.
#ifndef ORBISDIAL_COMMONUTILSELIDE_H
#define ORBISDIAL_COMMONUTILSELIDE_H

#include "CommonUtils.h"

namespace CommonUtilsElide {

inline void trace(const char* format, const char* function, int line) {
    qDebug(format, QTime::currentTime().toString("hh:mm:ss:zzz").toLatin1().constData(), __FILE__, function, line);
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

template <class T>
void CommonUtils::setElidedTextForWidgetText(T* widget, int width, Qt::TextElideMode mode) {
    CommonUtilsElide::elide(widget, &T::text, &T::setText, width, mode, "setElidedTextForWidgetText");
}

template <class T>
void CommonUtils::setElidedTextForWidgetTitle(T* widget, int width, Qt::TextElideMode mode) {
    CommonUtilsElide::elide(widget, &T::title, &T::setTitle, width, mode, "setElidedTextForWidgetTitle");
}

#endif
