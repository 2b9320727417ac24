// SPDX-License-Identifier: MIT
// Fixed measures that hold for the fonts of an ordinary desktop, and grow with larger ones.
#ifndef ORBISDIAL_NETCONNECTLEASTSIZE_H
#define ORBISDIAL_NETCONNECTLEASTSIZE_H

#include <QFontMetrics>
#include <QWidget>

// Twelve points at 96 dots per inch: the fixed measures are made for lines of up to so many pixels.
inline bool isFontLarge(const QWidget* widget) {
    const int tallestOrdinaryLine = 20;
    return widget->fontMetrics().height() > tallestOrdinaryLine;
}

// In the same measure as the font.
inline int grownWidth(const QWidget* widget, int least) {
    const int ordinaryLine = 16;
    return isFontLarge(widget) ? least * widget->fontMetrics().height() / ordinaryLine : least;
}

// With a large font, what the widget holds may need more.
inline void setLeastHeight(QWidget* widget, int least) {
    widget->setFixedHeight(isFontLarge(widget) ? qMax(least, widget->sizeHint().height()) : least);
}

inline void setLeastSize(QWidget* window, const QSize& least) {
    window->setFixedSize(isFontLarge(window) ? least.expandedTo(window->minimumSizeHint()) : least);
}

#endif
