// SPDX-License-Identifier: MIT
// A benchmark's own folders, with as many profiles and presets as asked for.
#ifndef ORBISDIAL_BENCHFOLDER_H
#define ORBISDIAL_BENCHFOLDER_H

#include <QByteArray>
#include <QList>
#include <QString>

#include "NetConnectRecords.h"
#include "NetConnectSettingUILogic.h"
#include "TestFolder.h"

class BenchFolder : public TestFolder {
public:
    BenchFolder();
    ~BenchFolder();

    // Profiles as users and operators name them, in no order. Names differ; other values repeat.
    static QList<DialupProfile> profiles(int count, const QString& prefix = "User");

    // A configuration whose sections by IMSI name the first presets of a library.
    static QByteArray configuration(int presets, const QList<DialupProfile>& library);

    // The library, configuration, template and operators that everyone has. A program is measured with these.
    void shipPresets() const;

    void writeUser(const QList<DialupProfile>& profiles) const;
    void shipLibrary(const QList<DialupProfile>& profiles) const;
    void shipConfiguration(int presets, const QList<DialupProfile>& library) const;

    // The logic, as a process that starts now would have it, with files that count as unchanged.
    static NetConnectSettingUILogic* restart();
};

#endif
