// SPDX-License-Identifier: MIT
// The preset profiles, and which of them a SIM card's network code selects.
#ifndef ORBISDIAL_PRESETCATALOGUE_H
#define ORBISDIAL_PRESETCATALOGUE_H

#include <NetConnectRecords.h>

#include <QList>
#include <QMap>
#include <QStringList>

#include "OperatorDatabase.h"

struct PresetCatalogue {
    QList<DialupProfile> profiles;             // by provider, in the database's order
    QMap<QString, QList<IMSIINFO>> imsiLists;  // by network code; one row of each is "default"
    QList<OperatorEntry> operators;            // those that have a profile, in the database's order
};

// One profile per provider and distinct APN, user name, password and method, named apart from the reserved names.
PresetCatalogue buildCatalogue(const QList<Provider>& providers, const QStringList& reservedNames);

#endif
