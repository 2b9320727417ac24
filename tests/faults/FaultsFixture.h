// The profile logic in this process and orbisctl in another, on the same folders.
#ifndef ORBISDIAL_TESTS_FAULTSFIXTURE_H
#define ORBISDIAL_TESTS_FAULTSFIXTURE_H

#include <QDirIterator>

#include "FaultySystem.h"
#include "LogicFixture.h"
#include "OrbisctlFixture.h"

class FaultsFixture : public OrbisctlFixture {
public:
    FaultsFixture() {
        vrks_simulated_reset();
        restart();
    }
    ~FaultsFixture() { NetConnectSettingUILogic::Destroy(); }

    static NetConnectSettingUILogic* logic() { return NetConnectSettingUILogic::GetInstance(); }

    static NetConnectSettingUILogic* restart() {
        NetConnectSettingUILogic::Destroy();
        return logic();
    }

    // Without the presets.
    static QStringList userNames() {
        QList<QString> names;
        logic()->GetAllDialUpProfile(&names);
        QStringList result;
        for (const QString& name : names)
            if (logic()->HasUserProfile(name)) result.append(name);
        return result;
    }

    QStringList temporaryFiles() const {
        QStringList found;
        QDirIterator files(path(""), {"*.tmp-*"}, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) found.append(files.next());
        return found;
    }
};

#endif
