// SPDX-License-Identifier: MIT
// The settings page as a host shows it: loads the plug-in, shows the page, and ends when it has been painted; with a
// second argument, when it has been painted with its list of profiles.

#include <QComboBox>
#include <QLoggingCategory>
#include <QPluginLoader>

#include "FirstPaint.h"
#include "ISettingUIPlugin.h"
#include "IUIPlugin.h"

int main(int argc, char** argv) {
    QLoggingCategory::setFilterRules("default.debug=false\ndefault.warning=false");
    QApplication application(argc, argv);
    QObject* const entry = QPluginLoader(application.arguments().value(1)).instance();
    IUIPlugin* const plugin = qobject_cast<IUIPlugin*>(entry);
    QObject* service = nullptr;
    const unsigned int settingService = 4098;
    if (!plugin || plugin->Init() != 1 || plugin->QueryInterface(settingService, &service) != 1) return 1;

    QWidget window;
    QRect place(0, 0, 620, 480);
    ISettingUIPlugin* const setting = qobject_cast<ISettingUIPlugin*>(service);
    if (!setting || setting->ShowSettingDialog(&window, place) != 1) return 1;
    if (application.arguments().size() <= 2) return FirstPaint::of(&window);
    auto* const list = window.findChild<QComboBox*>("NetConnectSettingUIPlugin_ProfileCombobox");
    return FirstPaint::of(&window, list, [list] { return list->count() > 0; });
}
