// SPDX-License-Identifier: MIT
// Sentences about connections for a person, in the current language: what happened, and what to do.
//
// GUI thread, or the one of a program without windows, as for Change. Names may hold any characters.
#ifndef ORBISDIAL_CONNECTIONTEXT_H
#define ORBISDIAL_CONNECTIONTEXT_H

#include <QString>
#include <QStringList>

struct BalanceQuery;
struct DataConnection;
struct DialupProfile;

namespace ConnectionText {

// The text of a string ID of these sentences; "%1" in it becomes the value.
QString text(const char* id, const QString& value = QString());

// Why the connection ended, or could not be made; empty for VRKS_FAILURE_NONE. Words stands for the modem's user
// (VRKS_FAILURE_IN_USE) and the member that can't be dialled with (VRKS_FAILURE_BAD_REQUEST).
QString failure(int failure, const QString& profileName, const QString& words = QString());

// The network's or the device SDK's own words for the connection's failure, to show as details; empty when there are
// none.
QString details(const DataConnection& connection);

// Which program's connection uses the modem; empty when none does but ours.
QString usedBy(const DataConnection& connection);

// How far dialling is; empty when nothing is dialled.
QString step(int step);

// A profile's field that can't be dialled with, as DialCall::badField() names it.
QString badField(const QString& attribute, const QString& profileName);

// What of the profile has no effect, a sentence for each; what DialCall::fieldsWithoutEffect() names.
QStringList notes(const DialupProfile& profile);

// The note on the address once the connection is up: empty unless the profile asks for one that it did not get.
QString addressNote(const DialupProfile& profile, const DataConnection& connection);

// Why a USSD command came to nothing, VRKS_USSD_FAILURE_...; empty for none.
QString ussdFailure(int failure);

// What to do by hand to learn the balance; empty for a USSD command, which the programs send.
QString balanceByHand(const BalanceQuery& query);

// 80 or 100 percent of the month's limit are used; empty for any other number.
QString usageWarning(int percent);

// What keeps the automatic connection from connecting: an AutoConnectHold; empty when nothing does.
QString automaticHold(int hold, const QString& profileName);

}  // namespace ConnectionText

#endif
