// SPDX-License-Identifier: MIT
// The part of the mobile-broadband operator database that presets are made of.
//
// The database is the public-domain serviceproviders.xml, format 2.0, of mobile-broadband-provider-info.
#ifndef ORBISDIAL_OPERATORDATABASE_H
#define ORBISDIAL_OPERATORDATABASE_H

#include <QList>
#include <QString>
#include <QStringList>

#include "OperatorIndex.h"

// What an access point is for, the likeliest for a computer's data connection first.
enum class Usage { Internet, Unstated, Other };

// One way to connect: an APN of a GSM network, or a CDMA network, which has no APN.
struct AccessPoint {
    bool cdma = false;
    Usage usage = Usage::Unstated;
    QString apn;
    QString label;  // the database's name for the plan or the access point, or empty
    QString plan;   // "prepaid" or "postpaid"; empty when none or both
    QString user;
    QString password;
    QString method;  // "chap", "pap" or empty
};

struct Provider {
    QString country;  // ISO 3166-1 alpha-2, lower case
    QString name;
    QStringList otherNames;    // in other languages
    bool primary = false;      // runs the network itself, where others only rent it
    QStringList networkCodes;  // MCC and MNC joined (3GPP TS 23.003, clause 2.2), each once
    QList<AccessPoint> accessPoints;
    QList<BalanceQuery> balanceQueries;
};

// Reads the providers in file order. Left out are access points for multimedia messages alone and, with a line in
// `warnings`, those whose APN could not be saved on the settings page, network codes that are not numbers and ways to
// ask for the balance that can't be sent. Throws PresetError when the file cannot be read to its end or is no such
// database.
QList<Provider> readOperatorDatabase(const QString& path, QStringList* warnings);

#endif
