// SPDX-License-Identifier: MIT
// The names of preset profiles, such as "DE Provider - Label".
#ifndef ORBISDIAL_PRESETNAMES_H
#define ORBISDIAL_PRESETNAMES_H

#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

// What one name is made of: the head says where and who, the rest tells a provider's profiles apart.
struct NameParts {
    QString country;
    QString provider;
    QString label;  // a plan's or an access point's name
    QString plan;
    QString apn;  // or another word for the way to connect
    QString user;
};

// One name for each of the parts, in their order. The names are unique without regard to case, also against the
// `reserved` ones, have no character that the settings page refuses, and are at most 48 UTF-16 units long: a name
// that is too long loses words of its head, and what tells it from another stays whole.
QStringList uniqueNames(const QVector<NameParts>& parts, const QStringList& reserved);

#endif
