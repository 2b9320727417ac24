// SPDX-License-Identifier: MIT
// From a profile to what the SDK is asked to dial.
#ifndef ORBISDIAL_DIALCALL_H
#define ORBISDIAL_DIALCALL_H

#include <vrks.h>

#include <QByteArray>
#include <QStringList>

#include "NetConnectRecords.h"

class DialCall {
public:
    // The profile with its password in plain text, and the name by which other programs of ours know the connection.
    DialCall(const DialupProfile& profile, const QString& name, bool endsWithProcess);
    ~DialCall();

    // Its texts live as long as the call.
    VRKS_DialRequest request() const;

    // Begins to dial; the status of VRKS_NetConnectSrv_Dial.
    long dial() const;

    // The attribute of the profile's first field that can't be dialled with: "apn", "ip", "dns", "dnsalt", "user" or
    // "password"; empty when all can. To be asked before dialling, and where a profile is set.
    static QString badField(const DialupProfile& profile);

    // The attributes of the profile's fields that are set and have no effect on a call: "phonenumber", "ip", "wins",
    // "winsalt". The number is not among them when it is one that modems dial by themselves.
    static QStringList fieldsWithoutEffect(const DialupProfile& profile);

private:
    Q_DISABLE_COPY(DialCall)

    QByteArray m_Name, m_Number, m_Apn, m_User, m_Password, m_Dns, m_AlternativeDns;
    bool m_AllowsChap, m_AllowsPap, m_EndsWithProcess;
};

#endif
