// The host's own settings page: the language, and the switch that keeps the default profile.
#ifndef ORBISDIAL_HOSTSETTINGSPAGE_H
#define ORBISDIAL_HOSTSETTINGSPAGE_H

#include <QPointer>

#include "ISettingUIPlugin.h"

class QCheckBox;
class QComboBox;
class QLabel;

// What is chosen is stored by OK and by going to another page, and not before.
class HostSettingsPage : public QObject, public ISettingUIPlugin {
    Q_OBJECT
    Q_INTERFACES(ISettingUIPlugin)

public:
    ~HostSettingsPage() override;

    int OnClickSettingOkButton() override;
    int OnClickSettingCancelButton() override;
    int ShowSettingDialog(QWidget* parent, QRect& rect) override;
    QString GetModuleName() override;
    int HideSetting() override;
    bool IsActiveSetting() override;

    void retranslate();

signals:
    // Another language was chosen, and stored.
    void languageChosen(const QString& code);

private:
    void build();
    void load();
    bool store();

    QPointer<QWidget> m_Widget;  // with the parent of the last show, which may delete it
    QLabel* m_LanguageLabel = nullptr;
    QComboBox* m_Language = nullptr;
    QCheckBox* m_KeepDefault = nullptr;
};

#endif
