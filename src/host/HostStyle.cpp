// SPDX-License-Identifier: MIT
#include "HostStyle.h"

#include <QPainter>
#include <QWidget>

#include "HostText.h"
#include "TextValues.h"

namespace {

bool isProfileList(const QWidget* widget) {
    return widget && widget->objectName() == QLatin1String("NetConnectSettingUIPlugin_ProfileCombobox");
}

bool isRadio(QStyle::PrimitiveElement element) { return element == QStyle::PE_IndicatorRadioButton; }

// Qt's own style draws rims darker than the window, which nobody sees on a dark one.
bool lacksRim(const QStyle* style, QStyle::PrimitiveElement element, const QStyleOption& option) {
    const bool hasRim =
        isRadio(element) || element == QStyle::PE_IndicatorCheckBox || element == QStyle::PE_FrameLineEdit;
    const QColor ground = option.palette.color(QPalette::Window), text = option.palette.color(QPalette::WindowText);
    return hasRim && ground.lightness() < text.lightness() && style->inherits("QFusionStyle");
}

void drawRim(QPainter* painter, const QStyleOption& option, bool isRound) {
    QColor colour = option.palette.color(QPalette::WindowText);
    colour.setAlphaF(0.55);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(colour);
    painter->setBrush(Qt::NoBrush);
    const QRectF rim = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    isRound ? painter->drawEllipse(rim) : painter->drawRoundedRect(rim, 2, 2);
    painter->restore();
}

// A menu's shortcut stands behind a tab. "Ctrl+," would show its comma first among words from right to left.
QString withDirectedKeys(const QString& text) {
    const int tab = text.indexOf(QLatin1Char('\t'));
    return tab < 0 ? text : text.left(tab + 1) + TextValues::isolated(text.mid(tab + 1));
}

// A name keeps its order, with the mark of the default behind it, which is a word of the language.
QString withDirectedName(const QString& text) {
    const QString mark = hostText("IDS_HOST_PROFILE_DEFAULT").remove(QLatin1String("%1"));
    if (!text.endsWith(mark)) return TextValues::isolated(text);
    return directed(TextValues::isolated(text.left(text.size() - mark.size())) + mark);
}

}  // namespace

int HostStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* data) const {
    // A list of as many entries as the page asks for, with a scroll bar, instead of a menu as high as the screen.
    if (hint == SH_ComboBox_Popup && isProfileList(widget)) return 0;
    // Windows with pictures on some of their buttons look unfinished.
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
}

void HostStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    const bool isMirrored = option && option->direction == Qt::RightToLeft;
    if (isMirrored && element == CE_MenuItem)
        return drawChanged<QStyleOptionMenuItem>(element, option, painter, widget,
                                                 [](auto* item) { item->text = withDirectedKeys(item->text); });
    if (isMirrored && element == CE_ItemViewItem)
        return drawChanged<QStyleOptionViewItem>(element, option, painter, widget,
                                                 [](auto* item) { item->text = withDirectedName(item->text); });
    if (isMirrored && element == CE_ComboBoxLabel)
        return drawChanged<QStyleOptionComboBox>(
            element, option, painter, widget, [](auto* box) { box->currentText = withDirectedName(box->currentText); });
    QProxyStyle::drawControl(element, option, painter, widget);
}

void HostStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (option && !(option->state & State_HasFocus) && lacksRim(baseStyle(), element, *option))
        drawRim(painter, *option, isRadio(element));
}
