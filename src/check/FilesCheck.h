// SPDX-License-Identifier: MIT
// What is wrong with the files that an integrator ships.
#ifndef ORBISDIAL_CHECK_FILESCHECK_H
#define ORBISDIAL_CHECK_FILESCHECK_H

#include <QList>
#include <QStringList>

#include "Finding.h"

// Whether a configuration has the place where orbis-presets puts the presets by SIM card.
enum class PresetSections { Forbidden, Allowed, Required };

struct FilesToCheck {
    QStringList files;      // each is told by its root element
    QStringList libraries;  // whose names are looked for when there is no library among the files
    QStringList presets;    // further names that the library will have
    PresetSections presetSections = PresetSections::Forbidden;
};

// Every fault of every file, in the order of the files. A file that can't be read, is broken, too large or hostile is a
// finding, too. Memory and time stay in proportion to the files' sizes.
QList<Finding> checkFiles(const FilesToCheck& what);

#endif
