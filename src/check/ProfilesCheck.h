// SPDX-License-Identifier: MIT
// What is wrong with a profile file: the library, a template, an export that is handed out, a user's file.
#ifndef ORBISDIAL_CHECK_PROFILESCHECK_H
#define ORBISDIAL_CHECK_PROFILESCHECK_H

#include <NetConnectRecords.h>

#include "DocumentCheck.h"

class ProfilesCheck : public DocumentCheck {
public:
    // A user's file has a default, and passwords that are opened.
    ProfilesCheck(FileFindings* findings, bool isUsers);

    QStringList names() const { return m_Names; }

private:
    void start(const XmlElement& element) override;
    void checkProfile(const XmlElement& element);
    void checkPassword(const XmlElement& element, const DialupProfile& profile);
    void checkDefault(const XmlElement& element);

    const bool m_bUsers;
    QStringList m_Names;
    FirstPlaces m_Profiles;
    FirstPlaces m_Defaults;
};

// What of a template's field is wrong, as the configuration and the system file hold it; the name is a text's ID there.
QString templateFieldProblem(const DialupProfileField& field, const QString& value);

#endif
