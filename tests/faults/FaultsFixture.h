// SPDX-License-Identifier: MIT
// The profile logic in this process and orbisctl in another, on the same folders.
#ifndef ORBISDIAL_TESTS_FAULTSFIXTURE_H
#define ORBISDIAL_TESTS_FAULTSFIXTURE_H

#include <QDirIterator>

#include "FaultySystem.h"
#include "LogicFixture.h"
#include "OrbisctlFixture.h"

// What unfinished saves left in a folder and below.
inline QStringList temporaryFiles(const QString& folder) {
    QStringList found;
    QDirIterator files(folder, {"*.tmp-*"}, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) found.append(files.next());
    return found;
}

class FaultsFixture : public OrbisctlFixture {
public:
    FaultsFixture() {
        vrks_simulated_reset();
        restart();
    }
    ~FaultsFixture() { LogicFixture::end(); }

    static NetConnectSettingUILogic* logic() { return LogicFixture::logic(); }
    static NetConnectSettingUILogic* restart() { return LogicFixture::restart(); }

    // Without the presets.
    static QStringList userNames() {
        QStringList result;
        for (const QString& name : LogicFixture::names())
            if (logic()->HasUserProfile(name)) result.append(name);
        return result;
    }
};

#endif
