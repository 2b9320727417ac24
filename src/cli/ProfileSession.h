// SPDX-License-Identifier: MIT
// The profile logic during one command.
#ifndef ORBISDIAL_CLI_PROFILESESSION_H
#define ORBISDIAL_CLI_PROFILESESSION_H

#include <QStringList>
#include <optional>

#include "NetConnectSettingUILogic.h"
#include "NetConnectStoreAction.h"

// Loads everything when made and ends the logic when it goes. All operations throw a CommandError on failure.
class ProfileSession {
public:
    enum Kind {
        Reading,    // the user's file stays as it is
        Exporting,  // the same, but other processes are locked out
        Changing    // what is done is stored by finish(), in one write
    };

    // A change needs the configuration, which says how passwords are stored, and the data folder; the others do with
    // what is readable.
    explicit ProfileSession(Kind kind);

    NetConnectSettingUILogic* operator->() const { return m_pLogic; }

    // Of all profiles, in display order.
    const QStringList& names() const { return m_Names; }

    QString defaultName() const;
    bool isOn(const QString& function) const;

    bool hasProfile(const QString& name) const;

    // A profile of this very name, its password in plain text.
    DialupProfile profile(const QString& name) const;

    // The same, but refuses one whose sealed password can't be opened, which reads as empty.
    DialupProfile readableProfile(const QString& name) const;

    // Refuses when nobody can tell what the user's file holds, or whether there is one.
    void requireUserFile() const;

    // Refuses presets; the error says what to do instead.
    void requireOwn(const DialupProfile& profile) const;

    // The same for read-only profiles, too.
    void requireChangeable(const DialupProfile& profile) const;

    // Why no SIM card selects any preset although the configuration lets it; null when that is not so.
    QString presetsNote() const;

    // Lists the profiles anew, which puts the user's own default back after an import file was read.
    void loadNames();

    // Throws when the status of an operation is not 0; what names the thing that failed.
    void require(int status, const QString& what) const;

    // Stores the changes. Throws when something that was read is missing or damaged; after a change, which is
    // done then, it only warns.
    void finish();

private:
    struct LogicLife {
        ~LogicLife() {
            const NetConnectStoreAction nothing(NetConnectStoreAction::Browse);  // the command has stored, or failed
            NetConnectSettingUILogic::Destroy();
        }
    };

    QString configurationProblem() const;
    QString problem() const;
    std::optional<DialupProfile> fetch(const QString& name) const;

    const Kind m_Kind;
    NetConnectStoreAction m_Action;  // outlives the logic, so that the end of what was not stored writes nothing
    NetConnectSettingUILogic* m_pLogic;
    LogicLife m_LogicLife;
    QString m_FolderProblem;  // why the user's files can't be had
    QString m_ConfigurationProblem;
    QString m_Problem;  // of what was read
    QStringList m_Names;
};

#endif
