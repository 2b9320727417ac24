// SPDX-License-Identifier: MIT
// The world's presets and the user's own profiles, as other plug-ins and the host find them in the container.
#ifndef ORBISDIAL_NETCONNECTPRESETLIBRARY_H
#define ORBISDIAL_NETCONNECTPRESETLIBRARY_H

#include "IPresetLibrary.h"

class NetConnectSettingUILogic;

// It is in the container as long as it lives.
class NetConnectPresetLibrary : public QObject, public IPresetLibrary {
    Q_OBJECT
    Q_INTERFACES(IPresetLibrary)

public:
    // The logic must live as long as the object.
    NetConnectPresetLibrary(NetConnectSettingUILogic* logic, QObject* parent);

    int GetOperators(QList<PresetOperator>* operators) override;
    int GetPreset(QString name, DialupProfile* profile) override;
    bool HasOwnProfiles() override;
    int GetOwnProfileNames(QList<QString>* names) override;
    int ProposeProfileName(QString wish, QString* name) override;
    int AddOwnProfile(DialupProfile profile, QString* reason) override;

signals:
    void added(const QString& name);

private:
    int longestName();
    QString refusal(const QString& name);
    QString storageProblem();
    bool isTaken(const QString& name);

    NetConnectSettingUILogic* m_pLogic;
};

#endif
