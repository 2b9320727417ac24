// SPDX-License-Identifier: MIT
// The host's touch on the desktop's style, by the object names that the plug-ins' pages keep.
#ifndef ORBISDIAL_HOSTSTYLE_H
#define ORBISDIAL_HOSTSTYLE_H

#include <QProxyStyle>

// The application's style from before the pages are built, since a box asks only once how its list opens. A style sheet
// would come too late for that, and slow the painting of every other widget down.
class HostStyle : public QProxyStyle {
    Q_OBJECT

public:
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                  QStyleHintReturn* data = nullptr) const override;

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
};

#endif
