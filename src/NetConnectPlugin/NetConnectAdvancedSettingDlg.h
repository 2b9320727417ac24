// SPDX-License-Identifier: MIT
// The advanced settings of one profile: addresses and authentication protocols.
//
// Its source is spread over topics:
//   NetConnectAdvancedSettingDlg.cpp       life, showing, texts
//   NetConnectAdvancedSettingDlg_Form.cpp  building the widgets
//   NetConnectAdvancedSettingDlg_Data.cpp  loading a profile, checking and taking what was typed
#ifndef ORBISDIAL_NETCONNECTADVANCEDSETTINGDLG_H
#define ORBISDIAL_NETCONNECTADVANCEDSETTINGDLG_H

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ExtendDialog.h"
#include "ExtendLineEdit.h"
#include "NetConnectRecords.h"
#include "QtCompatPage.h"

// One instance per process, made on first use. Everything is for the GUI thread.
//
// The widgets are built once and outlive the host dialog, which is made at each showing. The dialog works on a
// profile of its own, which OK changes; callers load it and read the result.
class NetConnectAdvancedSettingDlg : public QObject {
    Q_OBJECT

public:
    static NetConnectAdvancedSettingDlg* GetInstance();
    static void Destroy();

    // Builds the widgets; the page is not used, since they live in a dialog of their own.
    void InitAdvanceUI(QWidget* page);

    // Shows the dialog over the host's main window without waiting. False when it can't be made.
    bool ShowWindow(QWidget* parent, QRect& rect);

    // Loads a profile. The mode "NEW" enables every address field first.
    void SetProfileAdvanceSetting(DialupProfile profile, QString mode);

    // The settings as last loaded or accepted; a null pointer is ignored.
    void GetAdvanceSettings(AdvanceSetting* settings);

    // Locks the whole dialog, or unlocks it and lets the radio buttons decide.
    void EnableAdvanceSettingUI(bool enable);

    void SetLanguage();

private slots:
    void onClickIPDyanamicRadioButton();
    void onClickIPStaticRadioButton();
    void onClickDNSDyanamicRadioButton();
    void onClickDNSStaticRadioButton();
    void onClickWINSDyanamicRadioButton();
    void onClickWINSStaticRadioButton();
    void onClickOkAdvanceSetting();
    void onClickCancelAdvanceSetting();

private:
    // The widgets of one address group. The IP group has no secondary address.
    struct AddressGroup {
        QGroupBox* box = nullptr;
        QGridLayout* grid = nullptr;
        QRadioButton* dynamicRadio = nullptr;
        QRadioButton* staticRadio = nullptr;
        QLabel* primaryLabel = nullptr;
        ExtendLineEdit* primary = nullptr;
        QLabel* secondaryLabel = nullptr;
        ExtendLineEdit* secondary = nullptr;
    };

    // Which address of the result and of the profile a field holds.
    struct AddressPlace {
        QString AdvanceSetting::*setting;
        QString DialupProfile::*field;
    };

    NetConnectAdvancedSettingDlg();
    ~NetConnectAdvancedSettingDlg() override;

    // --- texts ---
    QString tr(QString key) const;
    QString text(const char* id) const;
    void setGroupBoxLanguage();
    void setLabelLanguage();
    void setButtonLanguage();

    // --- building ---
    void createIPSettingUI();
    void createProtocolSettingUI();
    void createDNSSettingUI();
    void createWNSSettingUI();
    QGroupBox* createBox(const char* role, QLayout* layout);
    void createAddressRadios(AddressGroup* group, const char* kind);
    void createAddressRow(AddressGroup* group, int row, const char* labelRole, const char* editRole);
    QPushButton* createButton(const char* role);
    void fitSizes();

    // --- showing ---
    bool createHostDialog();
    void closeHostDialog();

    // --- data ---
    void setIPSettings(DialupProfile profile);
    void setProtocolSettings(DialupProfile profile);
    void setDNSSettingsToUI(DialupProfile profile);
    void setWINSSettingsToUI(DialupProfile profile);
    void showAddresses(AddressGroup* group, const QString& primary, const QString& secondary);
    void clearAddresses(AddressGroup* group);
    void openPrimary(AddressGroup* group);
    void openSecondary(AddressGroup* group);
    bool isVailidIp(QString address);
    bool setIPSettingFromUI();
    bool setDNSIPSettingFromUI();
    bool setWINSIPSettingFromUI();
    bool takeAddress(ExtendLineEdit* edit, const AddressPlace& place, const char* messageId);

    static NetConnectAdvancedSettingDlg* m_pNetConnectAdvancedSettingDlg;

    QPointer<ExtendDialog> m_pDialog;  // while shown
    QPointer<QWidget> m_pMainWidget;   // holds all widgets below; null when they are not built, or are gone
    QVBoxLayout* m_pMainLayout = nullptr;
    QHBoxLayout* m_pProtocolLayout = nullptr;
    QHBoxLayout* m_pButtonLayout = nullptr;
    AddressGroup m_IP;
    AddressGroup m_DNS;
    AddressGroup m_WINS;
    QGroupBox* m_pProtocolGroup = nullptr;
    QCheckBox* m_pChap = nullptr;
    QCheckBox* m_pPap = nullptr;
    QPushButton* m_pBtnOk = nullptr;
    QPushButton* m_pBtnCancel = nullptr;
    PatternValidator* m_pValidator;
    AdvanceSetting m_AdvanceSetting;
    DialupProfile m_Profile;
    bool m_bArmed = true;  // static radios may enable and focus the primary field
};

#endif
