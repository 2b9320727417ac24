// SPDX-License-Identifier: MIT
// The files that the preset tool reads beside the database, and those it writes.
#ifndef ORBISDIAL_PRESETFILES_H
#define ORBISDIAL_PRESETFILES_H

#include <NetConnectRecords.h>

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

#include "OperatorIndex.h"

// Every function here throws PresetError when a file cannot be read to its end or written.
namespace PresetFiles {

// The profiles of a profile file.
QList<DialupProfile> readProfiles(const QString& path);

// A whole profile file that holds these profiles and no default.
QByteArray profileFile(const QList<DialupProfile>& profiles);

// The configuration at `templatePath` with the lists in place of its one <PresetSections/> element.
QByteArray configFile(const QString& templatePath, const QMap<QString, QList<IMSIINFO>>& imsiLists);

// The index of the operators whose presets these are.
QByteArray operatorFile(const QList<OperatorEntry>& operators);

// Writes the files, by path, each readable by everyone. No file is replaced before all of them are complete.
void write(const QMap<QString, QByteArray>& files);

}  // namespace PresetFiles

#endif
