// SPDX-License-Identifier: MIT
// The connection settings page, and what the plug-in offers to the host and to other plug-ins.
//
// Its source is spread over topics:
//   NetConnectUIService.cpp             life, events, mark, peers
//   page/NetConnectUIService_Host.cpp        the host's settings dialog
//   page/NetConnectUIService_Profiles.cpp    profiles for other plug-ins
//   page/NetConnectUIService_Page.cpp        building the page
//   page/NetConnectUIService_Language.cpp    texts
//   page/NetConnectUIService_Viewing.cpp     list, selection, what may be done with a profile
//   page/NetConnectUIService_Editing.cpp     new, edit, save, undo, delete, default
//   page/NetConnectUIService_Validation.cpp  what a profile must be to be saved
//   page/NetConnectUIService_Transfer.cpp    the import/export dialog
//   page/NetConnectPageWatch.h               what happens around the page
//   page/NetConnectPresetLibrary.h           the world's presets for other plug-ins
#ifndef ORBISDIAL_NETCONNECTUISERVICE_H
#define ORBISDIAL_NETCONNECTUISERVICE_H

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QStringList>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "CommonUtils.h"
#include "ExtendDialog.h"
#include "ExtendLineEdit.h"
#include "IDialupUIService.h"
#include "INetConnectSetting.h"
#include "INotifyService.h"
#include "IPluginContainer.h"
#include "ISettingUIPlugin.h"
#include "NetConnectPasswordHint.h"

class NetConnectAdvancedSettingDlg;
class NetConnectPageWatch;
class NetConnectPresetLibrary;
class NetConnectReloadGate;
class NetConnectSettingUILogic;
class QStringListModel;

// One instance per process, made on first use. Everything is for the GUI thread.
//
// Any call may destroy the service while a message box or file dialog of it is up; whoever shows one looks
// again afterwards. An open edit survives everything but Save, Undo and the host's Cancel: no event, language
// change or other plug-in touches what was typed or moves the edit to another profile.
class CNetConnectUIService : public QObject, public ISettingUIPlugin, public INetConnectSetting {
    Q_OBJECT
    Q_INTERFACES(ISettingUIPlugin INetConnectSetting)

public:
    // The instance; null only when memory is out.
    static CNetConnectUIService* instance();

    static void Destroy();

    // Frees the page, its dialogs and the logic. The service can be initialised again.
    void OnDestroy();

    // Builds the page once; true also when it is there already. False when the logic can't be had.
    bool Init();

    void unSDKRegisterEvent();

    // True when a layout, the page, its tab widget or its tab is missing.
    bool isObjectMemoryAllocationFail() const;

    // Puts the page into the parent (when there is one) at the rectangle, without showing it. Answers 1.
    int ShowWindow(QWidget* parent, QRect& rect);

    void Hide();
    int Notify(unsigned int event, unsigned int param1, unsigned int param2);
    void setLanguage();

    int OnClickSettingOkButton() override;
    int OnClickSettingCancelButton() override;
    int ShowSettingDialog(QWidget* parent, QRect& rect) override;
    QString GetModuleName() override;
    int HideSetting() override;
    bool IsActiveSetting() override;

    int IsIMSIROAMEnable() override;
    int GetAllDialUpProfile(QList<QString>* names) override;
    int GetDialUpProfile(QString name, DialupProfile* profile) override;
    int SaveDialUpProfile(DialupProfile profile) override;
    int GetDefaultDialUpProfileName(QString* name) override;
    int SetDefaultDialUpProfileName(QString name) override;
    UserPrompt GetUserPromptInfo() override;
    int GetFunctionConfigStringValues(QString key, QString* values) override;

    // Shows the import dialog with all profiles of the file ticked; see ORBISDIAL_OFFER_IMPORT. A file that can't be
    // read to its end offers nothing.
    Q_INVOKABLE QString OfferImport(const QString& path);

signals:
    void SysModeChangedSignal();

private slots:
    void onClickNewProfileButton();
    bool onClickSaveButton();
    void onClickDeleteButton();
    void onClickEditButton();
    void onClickUndoButton();
    void onClickDefaultButton();
    void onClickDyanamicRadioButton();
    void onClickStaticRadioButton();
    void onClickAdvancedButton();
    void onClickImportButton();
    void onClickExportButton();
    void onClickImportExportOkButton();
    void onClickImportExportCancelButton();
    void onClickImportExportBrowseButton();
    void onSelectProfile(QString strProfile);
    void onFileSelected(QString path);
    void onClickDialupProfileItem(QTreeWidgetItem* pParent, int index);
    void onDeviceInitailize();
    void onProfileAdded(const QString& name);

private:
    friend class NetConnectPageWatch;
    friend class NetConnectProfileDelegate;
    friend class NetConnectUIServiceTestAccess;  // gives m_pAdvancedDlg the dialog that the page never opens

    enum Operation { Idle = -1, EnteringNew, EditingExisting, Saving, Deleting, Undoing };
    enum { StatusNoLogic = 23 };

    // The edit that is open, from New or Edit to Save or Undo.
    struct OpenEdit {
        bool open = false;
        QString name;         // the bare name, as stored now, of the profile that is edited or was on show at New
        QString shownName;    // what the name field was filled with
        DialupProfile begun;  // the edited profile as it was stored when the edit began
        DialupProfile shown;  // the same as the page shows it
    };

    CNetConnectUIService();
    ~CNetConnectUIService() override;

    // --- life, texts, peers ---
    void forgetPage();
    QString tr(QString key) const;
    QString text(const char* id) const;
    NetConnectSettingUILogic* logic(bool initialise);
    IDialupUIService* GetDialUpPlugin();
    bool isProfileConnected(QString name);
    bool isConnectionUp();
    void findNotifyService();
    INotifyService* notifyService() const;
    void notifyProfilesChanged(const char* clsid) const;

    // The default mark, with the blank before it; empty when the language has none. It belongs to the entry at
    // m_nDefaultIndex alone: any other text that contains it is a profile's name.
    QString defaultMark() const;
    QString withoutMark(const QString& name) const;

    // Message boxes. After any of them, the service or its page may be gone. question answers yes (1024), no, or
    // nothing at all (0).
    void tell(const QString& message, QWidget* parent) const;
    int question(QMessageBox::Icon icon, const QString& message, QWidget* parent,
                 CommonUtils::MessageAnswer defaultAnswer = CommonUtils::FirstButton) const;

    // --- the host's settings dialog ---
    bool settleOpenEdit();
    void detachPage();
    void refreshDefaultItem();
    void showDefaultButton();

    // --- building the page ---
    void initailizeUI();
    void createLayouts();
    void createProfileNameUI();
    void createApnUI();
    void createAuthenticationUI();
    void createProtocolUI();
    void createProfileSettingButtons();
    void assemblePage();
    void setTabOrders();
    void fitHeights();
    ExtendLineEdit* createEdit(const char* name, int maximumLength);

    // --- texts ---
    void setGroupBoxLanguage();
    void setLabelLanguage();
    void setButtonLanguage();
    void setAccessibleNames();
    void setElidedTexts();

    // --- viewing ---
    void showAllProfiles();
    void selectDefaultProfile();
    void rebuildList();
    void rebuildListUnderSelection();
    void followUserFile();
    void markDefaultProfile(const QString& name);
    void unmarkDefaultProfile();
    void selectProfile(const QString& name);
    void selectEditedProfile();
    QString profileName(int index) const;
    bool isPreset(int index) const;
    int findProfile(const QString& name) const;
    QString currentProfileName() const;
    void showAPNSetting();
    void showAuthenticationSetting();
    void setProtocolSettings(DialupProfile* profile);
    void enableDisableUiWidget(bool editing);
    void enableDisableNamePasswordEdits(bool editing);
    void enableDisableUIButtons(bool editing);
    void enableDisableDefaultButton(bool enable);
    void applyProfileLocks();
    const char* profileLock();
    const char* defaultLock();
    bool tellLock(const char* reason);
    void lockButton(QPushButton* button, const char* reason);
    void showLock(const char* reason);
    void applySettingsFromConfigFile();
    bool isAPNGroupWanted();
    bool isFunctionOn(const char* key);

    // --- editing ---
    void beginEdit(Operation operation, const QString& shownName);
    DialupProfile enteredProfile();
    void endEdit();
    void forgetEdit();
    void showTemplate(DialupProfile* profile);
    QString enteredName() const;
    void putProfileData(DialupProfile* profile);
    int storeProfile(const DialupProfile& profile);
    void refuseSave(int status);
    void finishSave(const QString& name);
    void deleteProfile(const QString& name);

    // --- validation ---
    bool isValidProfile();
    int findMarked(const QString& name) const;
    int findShown(const QString& text) const;
    bool isProfileExist(int markedIndex, int plainIndex);
    bool refuse(const QString& message) const;  // tells why; always false

    // --- import and export ---
    void openTransferDialog(bool import);
    QString offerProblem(const QString& path);
    void finishTransfer();
    void initImportExportDialog();
    void createTransferWidgets();
    void initImportExportTree();
    void createTransferRoot();
    void readProfileFromFile(QString path);
    QStringList tickedProfiles();
    void importSelectedProfiles(QStringList* names);
    QString chooseImportFile();
    QString chooseExportFile();

    static CNetConnectUIService* m_pInstance;

    QHBoxLayout* m_pNetConectLayout = nullptr;
    QVBoxLayout* m_pDialuptabLayout = nullptr;
    QVBoxLayout* m_pBtnOtherLayout = nullptr;
    QVBoxLayout* m_pGroupBoxLayout = nullptr;
    QHBoxLayout* m_pProfileNameLayout = nullptr;
    QFormLayout* m_pApngrpLayout = nullptr;
    QFormLayout* m_pSMSCgrpLayout = nullptr;
    QWidget* m_pNetConnectWidget = nullptr;  // the page; owned, unless the host destroys its parent first
    QTabWidget* m_pTabWidget = nullptr;
    QWidget* m_pDialupTabWidget = nullptr;

    // The page's widgets, owned by the page.
    struct PageWidgets {
        QGroupBox* profileGroup = nullptr;
        QComboBox* profiles = nullptr;
        QStringListModel* profileNames = nullptr;  // its list
        ExtendLineEdit* name = nullptr;
        QGroupBox* apnGroup = nullptr;
        QRadioButton* apnDynamic = nullptr;
        QRadioButton* apnStatic = nullptr;
        QLabel* apnLabel = nullptr;
        ExtendLineEdit* apn = nullptr;
        QGroupBox* authGroup = nullptr;
        QLabel* accessNumberLabel = nullptr;
        QLabel* userLabel = nullptr;
        QLabel* passwordLabel = nullptr;
        ExtendLineEdit* accessNumber = nullptr;
        ExtendLineEdit* user = nullptr;
        ExtendLineEdit* password = nullptr;
        QWidget* noticePlace = nullptr;  // kept free for either of the next two, so that nothing moves
        NetConnectPasswordHint* passwordHint = nullptr;
        QLabel* lockNotice = nullptr;
        QCheckBox* askUserName = nullptr;
        QGroupBox* protocolGroup = nullptr;
        QCheckBox* chap = nullptr;
        QCheckBox* pap = nullptr;
        QPushButton* newProfile = nullptr;
        QPushButton* deleteProfile = nullptr;
        QPushButton* edit = nullptr;
        QPushButton* save = nullptr;
        QPushButton* undo = nullptr;
        QPushButton* setDefault = nullptr;
        QPushButton* importProfiles = nullptr;
        QPushButton* exportProfiles = nullptr;
        QPushButton* advanced = nullptr;  // never made: the advanced dialog can't be opened from the page
    };
    PageWidgets m_Page;

    bool m_bEditExisting = false;
    QString m_strEditProfileName;                            // the edited profile's item text, mark included
    NetConnectSettingUILogic* m_pLogic = nullptr;            // not owned
    NetConnectAdvancedSettingDlg* m_pAdvancedDlg = nullptr;  // not owned; nothing sets it
    IPluginContainer* m_pPluginContainer = nullptr;
    QPointer<QObject> m_pNotifyServicePlugin;
    INotifyService* m_pNotifyService = nullptr;  // of m_pNotifyServicePlugin; see notifyService()
    DialupProfile m_CurrentProfile;              // on show, or what the edit began with
    AdvanceSetting m_AdvanceSetting;             // for the advanced dialog, which nothing opens from the page
    QString m_strProfileType;
    int m_nDefaultIndex = -1;
    QString m_strMarkedName;  // the bare name of the entry that carries the mark
    bool m_bActive = false;
    QString m_strReadOnly;
    QString m_strDefaultRemember;
    bool m_bHiddenWhileOpen = false;

    ExtendDialog* m_pImportExportDialog = nullptr;
    QWidget* m_pImportExportWidget = nullptr;
    QTreeWidget* m_pImportExportTree = nullptr;
    QTreeWidgetItem* m_pProfileRootItem = nullptr;
    QTreeWidgetItem* m_pCurrentItem = nullptr;
    QPushButton* m_pBtnImportExportOk = nullptr;
    QPushButton* m_pBtnImportExportCancel = nullptr;
    QPushButton* m_pBtnImportExportBrowse = nullptr;

    bool m_bClosedByButton = false;
    QStringList m_DefaultAPNProfileList;
    QStringList m_ImportExportList;
    bool m_bImport = false;
    int m_nOperation = Idle;

    OpenEdit m_Edit;
    NetConnectPresetLibrary* m_pPresetLibrary = nullptr;  // while there is a page
    NetConnectReloadGate* m_pReloadGate;                  // before onDeviceInitailize(), for the device's events
    QPointer<NetConnectPageWatch> m_pPageWatch;           // the page's
    int m_nShownRevision = 0;                             // of the user's file, as the list shows it
    bool m_bBrowsed = false;        // a file that may be imported from left its default in the logic
    bool m_bImporting = false;      // a clash question may be on screen
    bool m_bReloadPending = false;  // a reload that came meanwhile
    bool m_bListAwaited = false;    // the list is filled after the page's first paint
};

#endif
