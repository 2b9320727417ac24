// SPDX-License-Identifier: MIT
#include "HostStyle.h"

#include <QWidget>

namespace {

bool isProfileList(const QWidget* widget) {
    return widget && widget->objectName() == QLatin1String("NetConnectSettingUIPlugin_ProfileCombobox");
}

}  // namespace

int HostStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* data) const {
    // A list of as many entries as the page asks for, with a scroll bar, instead of a menu as high as the screen.
    if (hint == SH_ComboBox_Popup && isProfileList(widget)) return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
}
