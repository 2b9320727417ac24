// SPDX-License-Identifier: MIT
// Connects by itself with the profile that the user chose for it, as AutoConnectPolicy decides.
#ifndef ORBISDIAL_AUTOCONNECTOR_H
#define ORBISDIAL_AUTOCONNECTOR_H

#include <QElapsedTimer>
#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include "AutoConnectPolicy.h"
#include "ConnectionSettings.h"
#include "NetConnectRecords.h"

class AutoConnector : public QObject {
    Q_OBJECT

public:
    explicit AutoConnector(QObject* parent = nullptr);

    // Begins once the event loop runs, when all plug-ins are there.
    void start();
    void stop();

    // What happened; each may end in wantsToDial().
    void connectionChanged(const DataConnection& connection);
    void modemChanged();
    void profilesChanged();  // or the settings, or the language

    // What the user and the dialler do, see AutoConnectPolicy.
    void userConnects(const QString& profileName);
    void userHangsUp();
    void dials(const DialupProfile& profile);
    void cannotDial();  // with the profile as it is

    // What keeps it from connecting, an AutoConnectHold, and with which profile.
    int hold() const { return m_Hold; }
    QString profileName() const { return m_Candidate.name; }

signals:
    void wantsToDial(const QString& profileName);
    void holdChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Rules = AutoConnectSettings::Rules;

    void read();
    void followProfiles();
    void followCredentials();
    void consider();
    AutoConnectPolicy::Candidate candidate(const Rules& rules) const;
    static AutoConnectPolicy::Candidate candidateNamed(const QString& name, const Rules& rules);
    void setHold(int hold);

    AutoConnectPolicy m_Policy;
    AutoConnectPolicy::Candidate m_Candidate;
    int m_Hold = AutoConnectIsOff;
    bool m_IsRunning = false;
    QFileSystemWatcher m_Settings;  // their folder, since a file that is replaced is watched no more
    QTimer m_Pause;
    QTimer m_Reading;  // many notices of changed profiles are one reading
    QElapsedTimer m_Clock;

    // What the profiles looked like at the last reading, and for whom.
    QStringList m_Names;
    QString m_ReadFor;
    QHash<QString, QString> m_Credentials;  // the marks, of the profiles that connect by themselves
    QString m_Tried;                        // the mark of what the window began to connect with; else empty
    QString m_ReadyCard;                    // null: no modem is ready
};

#endif
