// SPDX-License-Identifier: MIT
// The file layer: reads and writes the profile files, the profile template and the configuration.
//
// Its source is spread over topics:
//   NetConnectXMLParse.cpp           life, places, problems
//   logic/NetConnectXMLParse_Profiles.cpp  profile files
//   logic/NetConnectXMLParse_Config.cpp    NetConnectConfig.xml, Operators.xml
//   logic/NetConnectXMLParse_Template.cpp  SysProfile.prof
#ifndef ORBISDIAL_NETCONNECTXMLPARSE_H
#define ORBISDIAL_NETCONNECTXMLPARSE_H

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMultiHash>
#include <QString>
#include <QXmlStreamReader>

#include "FileReplacement.h"
#include "FileStamp.h"
#include "NetConnectConfigDocument.h"
#include "NetConnectDevice.h"
#include "NetConnectFileNames.h"
#include "NetConnectFilesAhead.h"
#include "NetConnectRecords.h"
#include "NetConnectStatus.h"
#include "NetConnectStorageProblem.h"
#include "OperatorIndex.h"
#include "ProfileDocument.h"

// What the file layer remembers between calls of the defaults in the user's file.
struct NetConnectRememberedDefaults {
    NetConnectDefault plain;
    NetConnectDefault cdma;
    NetConnectDefault wcdma;
};

// One instance per process, made on first use. GUI thread only; nothing here locks.
//
// Status: 0 success, 6 the file is not well-formed, 23 it is missing, 25 it can't be opened or written;
// lastProblem() then says which and why.
class NetConnectXMLParse {
public:
    static NetConnectXMLParse* GetInstance();
    static void Destroy();

    // --- profile files ---

    // Appends a file's profiles and stores its default. An empty name means the user's file, the bare name
    // "ProfileLib.prof" the shipped library, any other is a path. defaultName keeps its value when the file names
    // no default; isUserSet may be null. 23 also for a null list or default.
    int GetAllProfileFromUserDataXML(QList<DialupProfile>* profiles, QString* defaultName, QString fileName,
                                     bool* isUserSet);

    // The same of the shipped library, but leaves its profiles unread where they are in our own tools' form.
    int LookIntoLibrary(ProfileDocument* library, QString* defaultName);

    // The same from a reader: 0, or 6 at the first error; what was read before stays.
    int readXML(QXmlStreamReader& reader, QList<DialupProfile>* profiles, QString* defaultName, bool* isUserSet);

    // Replaces a file; the defaults go into the user's file (an empty name) alone. Or makes one that is new: then also
    // TargetAppeared, when another program was faster; nothing is written or reported in that case.
    enum { TargetAppeared = -1 };
    int SaveProfileToXML(QList<DialupProfile> profiles, QString defaultName, QString fileName, bool isUserSet,
                         FileReplacement::Placing placing = FileReplacement::OverOld);

    // --- configuration ---

    // Adds the items of one group and module to the containers; 23 also for a null argument, but a
    // null prompt leaves the prompt items aside.
    int GetSettingsFromXML(QString* group, QString* module, QHash<QString, NetConnectXML>* templates,
                           QHash<QString, NetConnectXML>* functions, QHash<QString, NetConnectXML>* profileList,
                           QMultiHash<QString, IMSIINFO>* imsiProfiles, UserPrompt* prompt);

    // Files the reader's current element: 0, or 23 for a null container.
    int getConfigData(QXmlStreamReader& reader, QHash<QString, NetConnectXML>* templates,
                      QHash<QString, NetConnectXML>* functions, QHash<QString, NetConnectXML>* profileList,
                      QMultiHash<QString, IMSIINFO>* imsiProfiles);

    // Takes the reader's current element as a prompt item, if it is one: 0, or 23 for a null prompt.
    int getUserPasswdPromptInfo(QXmlStreamReader& reader, UserPrompt* prompt);

    // Whose presets the library holds; empty when the shipped set does not say, or its file is damaged, which is
    // reported.
    OperatorIndex operatorIndex();

    // --- profile template ---

    // Fills the profile from the system file; langid and encrypttype stay.
    int GetProfileTemplateFromSysXML(DialupProfile* profile);

    // Rewrites the system file; 23 for no items (the file stays).
    int ModifyProfileTemplateToSysXML(QHash<QString, NetConnectXML>* templates);

    // Begins to read the configuration and the library on another thread; the next reading of each takes what came of
    // that, if the file did not change meanwhile.
    void readAhead() { m_Ahead.begin(configurationPath(), shippedPath(NetConnectFileNames::Library)); }

    // --- places ---

    // Ends with a slash; empty when the device SDK can't give it.
    QString getUserDataDirectory();

    // The user's profile file; empty when there is no user data directory.
    QString userProfilePath();

    // A file of the shipped set, by its bare name.
    static QString shippedPath(const char* fileName);

    // The configuration in force: the first in the configuration folders, readable or not, else the shipped one.
    static QString configurationPath();

    // --- state ---

    // Lives as long as the singleton.
    NetConnectDeviceInfo* GetCurrentDeviceInfo();

    NetConnectRememberedDefaults rememberedDefaults() const { return m_Remembered; }
    void setRememberedDefaults(const NetConnectRememberedDefaults& defaults) { m_Remembered = defaults; }

    // True when saving this default would leave the card mode's remembered one as it is.
    bool isModeDefault(const NetConnectDefault& value) const;

    // Counts the times that the library was really parsed, so that callers can keep what they derive from it.
    int libraryRevision() const { return m_Library.revision; }

    // The stamp of the user's file as last read or written here.
    FileStamp userFileStamp() const { return m_User.stamp; }

    NetConnectStorageProblem lastProblem() const { return m_Problem; }
    void reportProblem(const QString& file, const Reason& reason, qint64 line = 0, qint64 column = 0);

    // Forgets the last problem if it was this file's.
    void clearProblem(const QString& file);

private:
    // A profile file that is kept, so that it is parsed again only when it changed.
    struct KeptFile {
        KeptFile() : isComplete(false), revision(0) {}
        bool isCurrent(const QString& file, const FileStamp& now) const {
            return (isComplete || isTold()) && path == file && stamp.settled && stamp.exists() && stamp == now;
        }
        // A reader tells of damage in the language of the moment, so that it is asked again in another one.
        bool isTold() const;
        // Whether the document is that of these bytes, which were just read from the file.
        bool isOf(const QString& file, const QByteArray& bytes) const {
            return isComplete && path == file && !content.isEmpty() && content == bytes;
        }

        QString path;
        FileStamp stamp;  // taken before the file was read, or after it was written
        bool isComplete;  // read or written to its end
        ProfileDocument document;
        NetConnectStorageProblem damage;  // why it could not be read to its end; the document is then a part
        QString language;                 // of the damage
        QByteArray content;  // the file's bytes as long as its stamp can't vouch for them; empty after that
        int revision;
    };

    // The configuration as last read whole.
    struct KeptConfig {
        QString path;
        FileStamp stamp;  // taken before the file was read
        NetConnectConfigDocument document;
    };

    // The operators as last read.
    struct KeptOperators {
        QString path;
        FileStamp stamp;  // taken before the file was read
        OperatorIndex index;
    };

    // Where the configuration's elements go.
    struct ConfigTargets {
        QHash<QString, NetConnectXML>* templates;
        QHash<QString, NetConnectXML>* functions;
        QHash<QString, NetConnectXML>* profileList;
        QMultiHash<QString, IMSIINFO>* imsiProfiles;
    };

    NetConnectXMLParse() : m_bUserFileRead(false), m_Section(NetConnectConfigElement::Other), m_bKeepProblem(false) {}
    ~NetConnectXMLParse() {}
    Q_DISABLE_COPY(NetConnectXMLParse)

    QString profilePath(const QString& fileName);
    KeptFile* keptFile(const QString& fileName);
    int openDocument(const QString& fileName, bool leavesProfiles, ProfileDocument* document);
    int loadDocument(const QString& path, KeptFile* kept, ProfileDocument* document);
    int parseDocument(const QString& path, const QByteArray& content, bool leavesProfiles, ProfileDocument* document);
    void applyDocument(const ProfileDocument& document, bool isComplete, QList<DialupProfile>* profiles,
                       QString* defaultName, bool* isUserSet);
    void applyDefault(const ProfileDefaultEntry& entry, const NetConnectCardMode& card, QString* defaultName,
                      bool* isUserSet);
    static QList<ProfileDefaultEntry> defaultEntries(const NetConnectDefault& value,
                                                     const NetConnectRememberedDefaults& remembered);
    NetConnectRememberedDefaults withModeDefault(const NetConnectDefault& value) const;
    int saveDocument(const QList<DialupProfile>& profiles, const NetConnectDefault& value, const QString& path,
                     bool isUserFile, FileReplacement::Placing placing);
    void reportOutOfMemory(const QString& path);
    bool prepareTarget(const QString& path, const KeptFile& kept, FileReplacement::Purpose purpose,
                       FileReplacement::DamagedCopy* copy);

    int writeOver(const QString& path, const QByteArray& content, FileReplacement::Purpose purpose,
                  FileReplacement::Placing placing, FileReplacement::DamagedCopy* damaged);

    int loadConfig(NetConnectConfigDocument* document);
    int keepConfig(const QString& path, const FileStamp& stamp, const NetConnectConfigDocument& document);
    void fileElement(const NetConnectConfigElement& element, const ConfigTargets& targets);
    void fileItem(const NetConnectConfigElement& item, const ConfigTargets& targets);
    void fileModeElement(const NetConnectConfigElement& element, const ConfigTargets& targets,
                         const NetConnectCardMode& card, QString* modeDefault);

    // Opens and reads a file whole: 0, 23 or 25, traced and reported.
    int readFile(const QString& path, QByteArray* content);

    // Reports a reader's error: 6. The trace comes where the reading meets it.
    int reportReadError(const QXmlStreamReader& reader, const QString& path);
    static void traceReadError(const char* function);

    // Writes a document that ProfileDocumentWriter finished: 0 or 25, traced and reported, or TargetAppeared.
    int writeFile(const QString& path, const QByteArray& content, FileReplacement::Purpose purpose,
                  FileReplacement::Placing placing);

    KeptFile m_User;
    KeptFile m_Library;
    bool m_bUserFileRead;
    KeptConfig m_Config;
    NetConnectFilesAhead m_Ahead;
    KeptOperators m_Operators;
    NetConnectRememberedDefaults m_Remembered;
    NetConnectConfigElement::Kind m_Section;  // in which the items stand
    QString m_strSpare;
    QString m_strCurrentIMSI;
    NetConnectDeviceInfo m_DeviceInfo;
    NetConnectStorageProblem m_Problem;
    bool m_bKeepProblem;  // the last problem tells of a damaged file put aside: no success outdates it
};

#endif
