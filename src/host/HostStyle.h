// SPDX-License-Identifier: MIT
// The host's touch on the desktop's style, by the object names that the plug-ins' pages keep.
#ifndef ORBISDIAL_HOSTSTYLE_H
#define ORBISDIAL_HOSTSTYLE_H

#include <QProxyStyle>
#include <QStyleOption>

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

private:
    // Draws the control as its option is after the change.
    template <class Option, class Change>
    void drawChanged(ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget,
                     Change change) const {
        const auto* const given = qstyleoption_cast<const Option*>(option);
        if (!given) return QProxyStyle::drawControl(element, option, painter, widget);
        Option changed(*given);
        change(&changed);
        QProxyStyle::drawControl(element, &changed, painter, widget);
    }
};

#endif
