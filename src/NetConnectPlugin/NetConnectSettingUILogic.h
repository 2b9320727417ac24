// SPDX-License-Identifier: MIT
// The plug-in's profile data in memory, and every operation on it.
//
// Its source is spread over topics:
//   NetConnectSettingUILogic.cpp           life, loading, device events
//   logic/NetConnectSettingUILogic_Store.cpp     list, fetch, add, delete, replace, template
//   logic/NetConnectSettingUILogic_Merge.cpp     edits that meet another program's
//   logic/NetConnectSettingUILogic_Default.cpp   the default profile
//   logic/NetConnectSettingUILogic_Lists.cpp     presets by IMSI and by configuration
//   logic/NetConnectSettingUILogic_Presets.cpp   the shipped library, operator by operator
//   logic/NetConnectSettingUILogic_Config.cpp    function configuration
//   logic/NetConnectSettingUILogic_Password.cpp  sealing of passwords
//   logic/NetConnectSettingUILogic_Transfer.cpp  import and export
//   logic/NetConnectSettingUILogic_Questions.cpp  what it asks on the screen (a library of its own)
//   store/UserStore.cpp                    the lists in step with the user's file
#ifndef ORBISDIAL_NETCONNECTSETTINGUILOGIC_H
#define ORBISDIAL_NETCONNECTSETTINGUILOGIC_H

#include <QHash>
#include <QList>
#include <QMap>
#include <QMultiHash>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QSharedPointer>
#include <QStringList>
#include <atomic>

#include "IPresetLibrary.h"
#include "NetConnectStorageProblem.h"
#include "NetConnectXMLParse.h"
#include "ProfileIndex.h"
#include "QtCompat.h"

class NetConnectOperation;
class QWidget;
class UserStore;

// Which presets a SIM selects.
struct NetConnectIMSISelection {
    QString prefix;          // the IMSI prefix that matched; empty when none did
    QStringList names;       // the presets, as shown
    QString defaultProfile;  // the proposed default; empty when no row is marked
    QString operatorName;    // whose the proposed default is, if the card's own name for its operator told
};

// An edit of a profile by somebody to whom a window showed it. Passwords are in plain text.
struct NetConnectProfileEdit {
    DialupProfile begun;    // what was stored when the edit began
    DialupProfile shown;    // the same in the form that the window gives it
    DialupProfile entered;  // what it has become
};

// Answers an import's question whether a profile of this name may be replaced.
class NetConnectClashPolicy {
public:
    virtual ~NetConnectClashPolicy() {}
    virtual bool replace(const QString& name) = 0;

    // The same, knowing how many names are still to be asked about, this one included: one may answer for all of them.
    virtual bool replaceFirstOf(const QString& name, int) { return replace(name); }
};

// One instance per process, made on first use. Everything is for the GUI thread, but OnDevInitEvent and
// ResetFlags, which the device SDK calls on its own thread.
//
// Status of the operations, where no other meaning is given: 0 success, 6 a file is not well-formed, 13 a
// needed object is missing, 23 a file is missing or an output is null, 25 a file can't be opened, written or
// locked; LastStorageProblem() then says which and why.
class NetConnectSettingUILogic : public QObject {
    Q_OBJECT

public:
    enum Status {
        Success = NetConnectStatus::Success,
        NoXMLParse = NetConnectStatus::NoXMLParse,
        ReadError = NetConnectStatus::ReadError,
        ObjectMissing = NetConnectStatus::ObjectMissing,
        FileMissing = NetConnectStatus::FileMissing,
        FileNotOpened = NetConnectStatus::FileNotOpened,
        NothingImported = NetConnectStatus::NothingImported,
        NameTaken = NetConnectStatus::NameTaken  // AddDialUpProfile and ReplaceDialUpProfile
    };

    // When a new instance reads the user's profiles. WhenNeeded postpones that for a file so large that reading it
    // would hold up a window that is about to be painted; the first operation that needs them then reads it.
    enum LoadMoment { AtOnce, WhenNeeded };

    static NetConnectSettingUILogic* GetInstance(LoadMoment moment = AtOnce);

    // Where there is no instance yet: begins to read the shipped files on another thread, so that making the instance
    // a little later takes less time.
    static void ReadAhead();

    // Clears an automatically chosen default from the user's file, stops the device's events and deletes the
    // instance and the XML singleton.
    static void Destroy();

    // Reads every file again. 23 is usual without a SIM card, and no failure.
    int Init();

    // Reads the configuration into the caches. What was read whole before stays when that fails.
    int getConfigData();

    // How that went last, and what was wrong with the file; no problem when it was just missing.
    int ConfigurationStatus() const { return m_nConfigStatus; }
    NetConnectStorageProblem ConfigurationProblem() const { return m_ConfigProblem; }

    static void RegisterDevice();
    static void UnRegisterDevice();

    // The device SDK's callback: 1 when the event was acted on. SDK thread.
    static int OnDevInitEvent(int event, void* data);

    // Forgets the default that the IMSI proposed. Any thread; takes no lock.
    void ResetFlags();

    // --- listing and changing profiles ---

    // Appends the names of all profiles in display order.
    int GetAllDialUpProfile(QList<QString>* names);
    int sortProfileNames(QList<QString>* names);

    // Fills the profile, its password in plain text; all fields are empty when there is none of that name.
    int GetDialUpProfile(QString name, DialupProfile* profile);

    // Adds a profile whose password is in plain text; does nothing when the user has one of that name.
    int SaveDialUpProfile(DialupProfile profile);

    // Deletes a user's profile, or takes a preset out of the lists in memory.
    int DelDialUpProfile(QString name);

    // SaveDialUpProfile, but 114 when the user has a profile of that name.
    int AddDialUpProfile(const DialupProfile& profile);

    // Puts a profile in the place of a user's profile, in one write: the default moves along with the flag
    // that it had, and a new name loses the langid. 114 when the new name is another profile's (nothing changes).
    int ReplaceDialUpProfile(const QString& oldName, const DialupProfile& profile);

    // DelDialUpProfile and SaveDialUpProfile in one write, for callers that know no more than the profile. A password
    // that can't be opened, which they get as empty, stays stored when they give it back so.
    int OverwriteDialUpProfile(const DialupProfile& profile);

    // ReplaceDialUpProfile for an edit that took its time: a field in which what was entered differs from what was
    // shown takes the entered value, every other one what the file holds now.
    int MergeDialUpProfile(const QString& name, const NetConnectProfileEdit& edit);

    int NewDialUpProfileTemplate(DialupProfile* profile);
    int updateProfileTemplate();

    // True when the user's file holds a profile of that name, as last read.
    bool HasUserProfile(const QString& name);

    // Counts how often the user's file was found as another program had left it.
    int UserFileRevision() const;

    // True when the user's file no longer is what it was at that revision, but for what was written here.
    bool IsUserFileNewer(int revision);

    // The user's file; empty when its folder can't be had.
    QString UserFilePath() const;

    // True while the user's profiles are still to be read.
    bool AreProfilesAwaited() const;

    // What another program stored is to be shown: until something is stored here, the files are read anew or the
    // language changes, listings store nothing, and a proposed default and translated names are for now. Two windows of
    // different languages would answer each other without an end.
    void Follow(bool follows);

    // --- the default profile ---

    int GetDefaultDialUpProfileName(QString* name);
    int SetDefaultDialUpProfileName(QString name, bool isUserSet);

    // Leaves no default when it is this profile, which goes. What it only stands in for stays stored.
    int ForgetDefault(const QString& name);

    // Takes a default that the configuration proposed out of the user's file, as Destroy() does. In an action of its
    // own, which then stores once, Destroy() finds nothing more to do.
    void ClearAutomaticDefault();

    // Whether the user chose the default.
    bool IsDefaultUserSet();

    // --- presets ---

    int getIMSIProfileList();
    QStringList getAPNListFromHash();
    QStringList getDefaultOrIMSIProfileList();
    QStringList GetDefaultAPNProfileList();
    bool IsIMSIROAMSettingEnable();
    bool IsEhrpdSubMode();

    // What a SIM with this IMSI selects, which calls its operator by this name or by none; the prefix is empty when no
    // section matches. The name tells an operator that shares another one's codes; it decides on the default alone.
    NetConnectIMSISelection SelectByIMSI(const QString& imsi, const QString& cardOperator = QString());

    // What is in force: the prefix that the present SIM matched (empty when none did), and the proposals.
    QString MatchedIMSIPrefix() const;
    QString ProposedDefault() const;

    // The operator that the proposal was made for by the card's own name for it; empty when that told nothing.
    QString ProposedOperator() const;

    // The proposal of the configuration's own list, for SIMs that select nothing; empty when it makes none.
    QString APNDefault() const { return m_strAPNDefaultProfile; }

    // True when the configuration names presets by IMSI at all; a customised configuration may empty them.
    bool HasIMSIPresets() const;

    // --- the shipped library ---

    // Whose its presets are; last, without a country and a name, those of nobody knows whom.
    QList<PresetOperator> Operators();

    // A shipped preset as it is, whatever the user has under its name; false when there is none.
    bool GetLibraryProfile(const QString& name, DialupProfile* profile);

    bool HasUserProfiles() const;

    // --- function configuration ---

    int GetFunctionConfigValue(QString key, bool* on);
    int GetFunctionConfigValue(QString key, int& value, int defaultValue);
    int GetFunctionConfigStringValues(QString key, QString* value);
    UserPrompt GetUserNamePasswdPromptInfo();
    QString isLangidDefine(QString name);

    // Every configured key, sorted.
    QStringList FunctionConfigKeys() const;

    // --- passwords ---

    QString XorEncrypt(QString password, QString encryptType);
    QString XorDecrypt(QString stored, QString encryptType);

    // --- import and export ---

    int GetDialUpProfileFromFile(QList<QString>* names, QString path);

    // Imports by the user's answers in message boxes over the parent. 0 also when the file could not be
    // written; 113 when nothing was imported.
    int ImportDialupProfiles(QStringList* names, QWidget* parent);

    // Imports by the policy's answers; answers the status of the write.
    int ImportChosenProfiles(const QStringList& names, NetConnectClashPolicy* policy);

    // Always 0 but for 13; ExportChosenProfiles answers the status of the write, and 25 for a path that must
    // not be written: an empty one, the user's own file, a file that can't be opened.
    int ExportSelectedProfilesToFile(QStringList* names, QString path);
    int ExportChosenProfiles(const QStringList& names, const QString& path);

    // The profiles that were last read for an import.
    const QList<DialupProfile>& ImportCandidates() const;

    // --- problems ---

    // The last file that could not be read or written, until it can again; null when all is well.
    NetConnectStorageProblem LastStorageProblem() const;

    // Keeps the dynamic properties that INetConnectSetting.h names up to date on an object, so that a host which knows
    // only that object can show them. The object stays the caller's.
    void PublishStatus(QObject* object);

signals:
    // The device has finished initialising. Emitted on the SDK's thread.
    void DeviceInit();

private:
    class Hold;
    friend class Hold;

    explicit NetConnectSettingUILogic(LoadMoment moment);
    ~NetConnectSettingUILogic() override;

    // loading
    void attachStore();
    int readConfigPair(QString group, QString module, UserPrompt* prompt);
    void keepConfiguration();
    void reportKept(const QString& path);
    static bool isUserFileLarge();
    void readLibrary(QString* defaultName);
    int readForeignFile(QList<DialupProfile>* profiles, QString* defaultName, const QString& fileName);
    void forgetForeignDefault();
    bool isOn(const char* key);
    bool followsIMSI();
    static QString translated(const QString& langid);
    static bool translateName(QList<DialupProfile>* profiles, int index);

    // the user's file
    const QList<DialupProfile>& library();
    int findLibraryProfile(const QString& name);
    bool fetchLibraryProfile(const QString& name, DialupProfile* profile);
    bool sealPassword(DialupProfile* profile);
    bool translateUserProfiles();
    void gatherNames(QList<QString>* names, QSet<QString>* otherNames);
    bool openPassword(DialupProfile* profile);
    void reportUnopened(const DialupProfile& profile);
    int putInPlaceOf(const QString& oldName, const DialupProfile& profile, NetConnectOperation* operation);
    void keepUnopened(const DialupProfile& before, const DialupProfile& after);
    void fillFromDevice(DialupProfile* profile, const char* function);
    void removePreset(const QString& name);
    void undoWithAction();

    // the default profile
    QString imsiProposal() const;
    QString replacementDefault(const QSet<QString>& otherNames);
    void replaceDefault(const QString& proposal, bool isFileRead);
    void renameDefault(const QString& name);
    bool isProposed(const QString& name);
    bool isAutomaticDefault();
    bool isCardAwaited();
    bool waitsForCard();
    bool isOfAwaitedCard();

    // presets
    QString shownLibraryName(const QString& name);
    void proposeForOperator(const QString& cardOperator, const QList<IMSIINFO>& rows,
                            NetConnectIMSISelection* selection);
    void addPreset(const QString& name, const PresetPlan& plan, PresetOperator* to);
    void refreshLibraryNames();
    void collectLangids(const QList<DialupProfile>& library);
    QString translatedLibraryName(const QString& name);

    // import and export
    int refuseExportTo(const QString& path);
    struct ImportChoice;
    static QList<ImportChoice> importChoices(const QStringList& names);
    QList<int> openClashes(const QList<ImportChoice>& choices, const QSet<QString>& listed);
    bool addCandidates(const QList<ImportChoice>& choices);
    class ProfilesByName;
    int exportInto(const QString& path, const QStringList& names, const ProfilesByName& users,
                   const ProfilesByName& shipped);
    bool exportProfile(const QString& name, const ProfilesByName& target, const ProfilesByName& source);

    void publishStatus();
    void letGo();

    // The configuration as last read whole.
    struct KeptConfiguration {
        KeptConfiguration() : isKnown(false) {}

        bool isKnown;
        QHash<QString, NetConnectXML> templates;
        QHash<QString, NetConnectXML> functions;
        QHash<QString, NetConnectXML> profileList;
        QMultiHash<QString, IMSIINFO> imsiProfiles;
        UserPrompt prompt;
    };

    // What a listing gathered, and from what: as long as that is the same lists, so is the result.
    struct Listing {
        QList<DialupProfile> profiles;
        QStringList presets;
        QList<QString> names;       // in no order
        QSet<QString> presetNames;  // those of them that the user has no profile of
    };

    UserStore& m_Store;
    NetConnectXMLParse* m_pXMLParse;
    QHash<QString, NetConnectXML>* m_pProfileTemplateHash;
    QHash<QString, NetConnectXML>* m_pFunctionHash;
    QHash<QString, NetConnectXML>* m_pProfileListHash;
    QMultiHash<QString, IMSIINFO>* m_pIMSIHash;
    UserPrompt m_UserPrompt;
    KeptConfiguration m_KeptConfiguration;
    QStringList m_IMSIProfileList;
    QString m_strIMSIDefaultProfile;
    QStringList m_APNProfileList;
    QString m_strAPNDefaultProfile;
    QList<DialupProfile> m_UserProfileList;
    QString m_strDefaultProfile;
    bool m_bIsUserSet;
    QList<DialupProfile> m_ProfileLibList;  // see library()
    QStringList m_ProfileNameList;
    QList<DialupProfile> m_ImportList;
    QList<DialupProfile> m_ExportList;
    QHash<QString, QString> m_ProfileHash;
    QMap<QString, QString> m_ProfileMap;
    RecursiveMutex m_Mutex;

    // The device's event makes the IMSI's proposal void on its own thread, where the text must not be touched.
    std::atomic<bool> m_bIMSIDefaultForgotten;

    bool m_bLoading;                                 // Init has just read the library
    QSharedPointer<UnreadProfiles> m_UnreadLibrary;  // those that m_ProfileLibList is still to hold; null otherwise
    bool m_bLibraryWhole;                            // m_ProfileLibList is all that the library held
    int m_nConfigStatus;
    NetConnectStorageProblem m_ConfigProblem;
    QString m_strMatchedPrefix;
    QString m_strProposedOperator;    // told by the present card
    bool m_bIMSIRead;                 // from the card that is there now
    QString m_strCardDefaultProfile;  // the proposal that was last stored for a card
    bool m_bForeignDefault;           // m_strDefaultProfile came from a file that was browsed
    NetConnectDefault m_OwnDefault;   // what it was before

    Listing m_Listing;
    QList<DialupProfile> m_UntranslatableProfiles;  // the user's, when none of them has a langid

    QList<QString> m_UnsortedNames;  // what sortProfileNames was last given, and what it made of it
    QList<QString> m_SortedNames;
    ProfileIndex m_LibraryIndex;               // of m_ProfileLibList, by shown names
    int m_nLibraryRevision;                    // of m_LibraryLangids
    QHash<QString, QString> m_LibraryLangids;  // stored name to langid
    QHash<QString, QString> m_StoredNames;     // shown name to stored name, the inverse of m_ProfileMap
    QPointer<QObject> m_pStatusObject;
    int m_nHolds;  // how often m_Mutex is held
};

#endif
