// SPDX-License-Identifier: MIT
// The least that any program must do for the same work with Qt's classes: what the figures are compared with.
#ifndef ORBISDIAL_REFERENCE_H
#define ORBISDIAL_REFERENCE_H

#include <QByteArray>
#include <QList>
#include <QString>
#include <vector>

#include "NetConnectRecords.h"

namespace Reference {

// One pass over the bytes; a value that equals the one of the profile before shares its text.
std::vector<DialupProfile> read(const QByteArray& content);

// One pass over a configuration's bytes: its items.
std::vector<IMSIINFO> readItems(const QByteArray& content);

// A profile file's bytes.
QByteArray write(const QList<DialupProfile>& profiles);

// The bytes written beside the file at once, flushed and renamed over it.
void save(const QString& path, const QList<DialupProfile>& profiles);

// Sorts by case-folded keys, each folded once.
void sort(QList<QString>* names);

}  // namespace Reference

#endif
