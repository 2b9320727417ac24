// SPDX-License-Identifier: MIT
// The presets of the world's operators, and the user's own profiles apart from them, as the settings plug-in offers
// them to the host and to other plug-ins beside INetConnectSetting.
#ifndef ORBISDIAL_IPRESETLIBRARY_H
#define ORBISDIAL_IPRESETLIBRARY_H

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include "NetConnectRecords.h"

// The class identifier and the kind under which the container finds the object. The settings plug-in puts it there
// while it is initialised.
#define ORBISDIAL_PRESETLIBRARY_CLSID "5B7A9E52-0C1D-4F6B-9D3E-2A6B4C81F077"
enum { PresetLibraryKind = 28690 };

// One way to connect with an operator: a profile of the shipped library.
struct OperatorPreset {
    QString name;     // the profile's; INetConnectSetting and IDialupUIService take a user's own of that name first
    QString plan;     // what the operator calls it; may be empty
    QString billing;  // "prepaid" or "postpaid"; empty when it is for both, or nobody says
    QString apn;      // empty when the network assigns it
};

struct PresetOperator {
    QString country;           // ISO 3166-1 alpha-2, lower case; empty for presets of nobody knows whom
    QStringList names;         // the usual one first; empty for the same
    QStringList networkCodes;  // MCC and MNC joined (3GPP TS 23.003, clause 2.2), sorted; those that select its presets
    QList<OperatorPreset> presets;  // the likeliest for the internet first; never empty
};

// All operations are called on the GUI thread. Status: 0 success, 13 a needed object is missing, 23 an argument is null
// or there is no such profile. Their order is part of the binary interface.
class IPresetLibrary {
public:
    virtual ~IPresetLibrary() {}

    // Appends every operator of the shipped library, country by country as the library has them.
    virtual int GetOperators(QList<PresetOperator>* operators) = 0;

    // Fills a shipped preset as it is, its password in plain text, whatever the user has under that name.
    virtual int GetPreset(QString name, DialupProfile* profile) = 0;

    // True when the user has a profile of his own.
    virtual bool HasOwnProfiles() = 0;

    // Appends the names of the user's own profiles in display order: they can be changed. All others are presets.
    virtual int GetOwnProfileNames(QList<QString>* names) = 0;

    // Stores the wish where it is a name that is allowed and that nobody has, else one that resembles it.
    virtual int ProposeProfileName(QString wish, QString* name) = 0;

    // Makes a profile of the user's own, its password in plain text; the settings page and the peers learn of it. 22
    // when its name can't be used or is taken, 25 when it can't be stored: then *reason, which may be null, says why,
    // for a person to read, in the current language, and nothing has changed.
    virtual int AddOwnProfile(DialupProfile profile, QString* reason) = 0;
};

Q_DECLARE_INTERFACE(IPresetLibrary, "com.kestra.orbisdial.plugin.IPresetLibrary")

#endif
