// SPDX-License-Identifier: MIT
// The profiles, as the settings plug-in offers them to other plug-ins.
#ifndef ORBISDIAL_INETCONNECTSETTING_H
#define ORBISDIAL_INETCONNECTSETTING_H

#include <QList>
#include <QObject>
#include <QString>

#include "NetConnectRecords.h"

// The class identifier and the kind under which the host puts the object that offers this interface into the
// container; the plug-in itself has no class identifier.
#define ORBISDIAL_NETCONNECT_CLSID "761CCDE4-B4F2-45DE-A151-6C55F918DE2B"
enum { NetConnectSettingKind = 28689 };

// What the object may tell besides, each as a QObject property of this name that holds text; one that is not
// there has nothing to say. The last problem with a file of the profiles (empty when all is well), the leading
// digits by which the SIM's IMSI selected its presets (empty when none matched), the preset that they propose as the
// default, and the operator that it is proposed for, when the card's own name for its operator told one of those
// offered (empty otherwise).
#define ORBISDIAL_LAST_STORAGE_PROBLEM "lastStorageProblem"
#define ORBISDIAL_MATCHED_IMSI_PREFIX "matchedIMSIPrefix"
#define ORBISDIAL_PROPOSED_DEFAULT "proposedDefault"
#define ORBISDIAL_PROPOSED_OPERATOR "proposedOperator"

// The object may also be asked to offer a file's profiles for import, by an invokable operation of this name that takes
// the path and answers a QString: why it can't be done, in words for the user, or nothing when the choice is on screen.
// Its settings page must be on show. Nothing is imported before the user agrees.
#define ORBISDIAL_OFFER_IMPORT "OfferImport"

// A truth value: true while the user's profiles are still to be read. Many are read right after the page's first paint,
// or soon after the start when another page is shown. To ask for one, or for the default, has them read at once.
#define ORBISDIAL_PROFILES_AWAITED "profilesAwaited"

// All operations are called on the GUI thread. Status: 0 success, 13 a needed object is missing, 23 an
// output argument is null or the profiles can't be had, 25 a file can't be written. Their order is part
// of the binary interface.
class INetConnectSetting {
public:
    virtual ~INetConnectSetting() {}

    // 1 when the configuration switches roaming by IMSI on.
    virtual int IsIMSIROAMEnable() = 0;

    // Appends every profile name in display order.
    virtual int GetAllDialUpProfile(QList<QString>* names) = 0;

    // Fills the profile, its password in plain text; every field is empty when there is no such profile.
    virtual int GetDialUpProfile(QString name, DialupProfile* profile) = 0;

    // Adds the profile, or replaces the one of its name. The password is given in plain text.
    virtual int SaveDialUpProfile(DialupProfile profile) = 0;

    // The default profile's name; empty when there is none.
    virtual int GetDefaultDialUpProfileName(QString* name) = 0;

    // Makes the profile the default by the user's choice; an empty name changes nothing.
    virtual int SetDefaultDialUpProfileName(QString name) = 0;

    virtual UserPrompt GetUserPromptInfo() = 0;

    // A value of the function configuration; empty when the key is not configured.
    virtual int GetFunctionConfigStringValues(QString key, QString* value) = 0;
};

Q_DECLARE_INTERFACE(INetConnectSetting, "com.kestra.orbisdial.plugin.INetConnectSetting")

#endif
