// SPDX-License-Identifier: MIT
// The host's own settings page: the language, its switches, and the card's limit of data volume.
#ifndef ORBISDIAL_HOSTSETTINGSPAGE_H
#define ORBISDIAL_HOSTSETTINGSPAGE_H

#include <QPointer>
#include <QVector>

#include "ISettingUIPlugin.h"

class LimitBox;
class QCheckBox;
class QComboBox;
class QLabel;

// What is chosen is stored by OK, and not before; it waits while another page is on show.
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
    // A box, and the choice that it shows.
    struct Box {
        QCheckBox* widget;
        const char* text;
        bool (*isOn)();
        bool (*store)(bool);
    };

    void build();
    void load();
    bool store();
    bool storeLanguage();

    QPointer<QWidget> m_Widget;  // with the parent of the last show, which may delete it
    QLabel* m_LanguageLabel = nullptr;
    QComboBox* m_Language = nullptr;
    LimitBox* m_Limit = nullptr;
    QVector<Box> m_Boxes;
    bool m_IsOpen = false;  // there are choices that are not stored yet
};

#endif
