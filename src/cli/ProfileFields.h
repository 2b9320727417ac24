// SPDX-License-Identifier: MIT
// FIELD=VALUE arguments, and what makes the profile that they lead to acceptable.
#ifndef ORBISDIAL_CLI_PROFILEFIELDS_H
#define ORBISDIAL_CLI_PROFILEFIELDS_H

#include <QList>
#include <QStringList>

#include "ProfileSession.h"

// The fields that add and set take, and whether one takes true or false alone.
QStringList settableFieldNames();
bool isFlagField(const QString& name);

class FieldAssignments {
public:
    // Reads the password from standard input for "password=-". Throws a CommandError: usage for what is no
    // assignment to a field that can be set, failed for a value that the field can't take.
    explicit FieldAssignments(const QStringList& arguments);

    bool contains(const char* field) const;
    void applyTo(DialupProfile* profile) const;

    // Warns, when it is so, that the command line holds a password, and of fields that have no effect.
    void warn() const;

private:
    struct Assignment {
        const DialupProfileField* field;
        QString value;
    };

    QList<Assignment> m_Assignments;
    bool m_bShowsPassword = false;
};

// Throws a CommandError for the first of the page's rules that the profile breaks. oldName is the one that the
// profile has now, null for a new profile.
void checkProfile(const ProfileSession& session, const DialupProfile& profile, const QString& oldName);

#endif
