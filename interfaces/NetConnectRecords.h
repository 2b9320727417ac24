// SPDX-License-Identifier: MIT
// The plain value records that the settings plug-in, its host and its peers pass to one another.
//
// Every field of every record is text, exactly as it stands in the XML files, so that a record that is
// read and written back reproduces the file. A default-made record holds null texts. Thread: records are
// values; each thread works on its own copy.
#ifndef ORBISDIAL_NETCONNECTRECORDS_H
#define ORBISDIAL_NETCONNECTRECORDS_H

#include <QString>

// One dial-up profile. Flags are "true" or "false"; addresses are dotted text, empty meaning dynamic.
struct DialupProfile {
    QString name;         // shown in the list; the key by which profiles are found
    QString type;         // stored and returned unchanged
    QString readonly;     // "true": the user may neither change nor delete the profile
    QString device;       // the modem that the profile belongs to
    QString user;         // user name for CHAP (RFC 1994) or PAP (RFC 1334)
    QString password;     // sealed, base64 or plain, as encrypttype says
    QString phonenumber;  // access number, e.g. *99# (3GPP TS 27.007, +CGDATA's dial string)
    QString autoapn;      // "true": the network assigns the access point name
    QString apn;          // access point name (3GPP TS 23.003, clause 9)
    QString chap;
    QString pap;
    QString ip;
    QString dns;
    QString dnsalt;
    QString wins;
    QString winsalt;
    QString popusername;  // "true": ask for user name and password when connecting
    QString Remember;     // remember-password flag, stored and returned unchanged
    QString langid;       // a string ID whose translation replaces the name, or empty
    QString encrypttype;  // how the password is stored: "1", "0" or empty base64, anything else keyed
};

// One row of the field table: the attribute of the profile file and the member that holds it.
struct DialupProfileField {
    const char* attribute;
    QString DialupProfile::*member;
};

// The twenty fields in the order in which the record declares and the file holds them. Readers, writers,
// the command line and the tests go through this table.
inline const DialupProfileField DialupProfileFields[] = {
    {"name", &DialupProfile::name},
    {"type", &DialupProfile::type},
    {"readonly", &DialupProfile::readonly},
    {"device", &DialupProfile::device},
    {"user", &DialupProfile::user},
    {"password", &DialupProfile::password},
    {"phonenumber", &DialupProfile::phonenumber},
    {"autoapn", &DialupProfile::autoapn},
    {"apn", &DialupProfile::apn},
    {"chap", &DialupProfile::chap},
    {"pap", &DialupProfile::pap},
    {"ip", &DialupProfile::ip},
    {"dns", &DialupProfile::dns},
    {"dnsalt", &DialupProfile::dnsalt},
    {"wins", &DialupProfile::wins},
    {"winsalt", &DialupProfile::winsalt},
    {"popusername", &DialupProfile::popusername},
    {"Remember", &DialupProfile::Remember},
    {"langid", &DialupProfile::langid},
    {"encrypttype", &DialupProfile::encrypttype},
};

enum { DialupProfileFieldCount = int(sizeof(DialupProfileFields) / sizeof(DialupProfileFields[0])) };

static_assert(sizeof(DialupProfile) == DialupProfileFieldCount * sizeof(QString),
              "every field of DialupProfile stands once in DialupProfileFields");

// How the page and the dialler deal with user name and password; each field is "true" or anything else.
struct UserPrompt {
    QString promptPwd;       // configuration item "PromptPwd"
    QString userCheck;       // configuration item "UserCheck"
    QString checkNamePwd;    // configuration item "CheckNamePwd"
    QString disableNamePwd;  // configuration item "DisableNamePwd"
};

// One preset that a SIM's IMSI (3GPP TS 23.003, clause 2.2) selects. The IMSI prefix is not a field but
// the key under which the row is filed.
struct IMSIINFO {
    QString name;
    QString value;  // "default" marks the proposed default
    QString type;
};

// One item of the configuration file; its name is the key under which it is filed.
struct NetConnectXML {
    QString value;
    QString type;
};

// The device that the settings are for.
struct NetConnectDeviceInfo {
    QString name;
    QString type;
};

// The advanced settings of one profile.
struct AdvanceSetting {
    QString ip;
    QString pap;
    QString chap;
    QString dns;
    QString dnsalt;
    QString wins;
    QString winsalt;
};

#endif
