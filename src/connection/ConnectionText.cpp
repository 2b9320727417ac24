// SPDX-License-Identifier: MIT
#include "ConnectionText.h"

#include "AutoConnectPolicy.h"
#include "Change.h"
#include "DataConnection.h"
#include "DeviceText.h"
#include "DialCall.h"
#include "DialupNotes.h"
#include "OperatorIndex.h"
#include "TextValues.h"

namespace {

// String IDs by VRKS_FAILURE_...
const char* const Failures[] = {
    nullptr,
    "IDS_DIALUP_CANCELLED",
    nullptr,  // says which field
    "IDS_DIALUP_NO_MODEM",
    "IDS_DIALUP_NOT_READY",
    "IDS_DIALUP_IN_USE",
    "IDS_DIALUP_AUTHENTICATION_FAILED",
    "IDS_DIALUP_NOT_SUBSCRIBED",
    "IDS_DIALUP_REFUSED",
    "IDS_DIALUP_DROPPED",
    "IDS_DIALUP_LINK",
    "IDS_DIALUP_NO_CARRIER",
    "IDS_DIALUP_BUSY",
    "IDS_DIALUP_NO_DIAL_TONE",
    "IDS_DIALUP_NO_ANSWER",
    "IDS_DIALUP_APN_REFUSED",
    "IDS_DIALUP_NOT_REGISTERED",
    "IDS_DIALUP_REGISTRATION_DENIED",
    "IDS_DIALUP_NO_CARD",
    "IDS_DIALUP_LOCKED",
    "IDS_DIALUP_WRONG_CARD",
    "IDS_DIALUP_WRONG_PIN",
    "IDS_DIALUP_MODEM_GONE",
    "IDS_DIALUP_NO_MODEM_SERVICE",
    "IDS_DIALUP_NO_NETWORK_SERVICE",
    "IDS_DIALUP_SUSPENDED",
    "IDS_DIALUP_TAKEN",
    "IDS_DIALUP_CREDENTIALS_MISSING",
    "IDS_DIALUP_ENDED_OUTSIDE",
    "IDS_DIALUP_NOT_ALLOWED",
    "IDS_DIALUP_OTHER",
    "IDS_DIALUP_HUNG_UP",
    "IDS_DIALUP_STUCK",
};
static_assert(sizeof Failures / sizeof *Failures == VRKS_FAILURE_COUNT, "each failure has a sentence");

// By VRKS_STEP_...
const char* const Steps[] = {nullptr, "IDS_DIALUP_STEP_PREPARING", "IDS_DIALUP_STEP_REGISTERING",
                             "IDS_DIALUP_STEP_CONNECTING", "IDS_DIALUP_STEP_ADDRESSING"};

// By AutoConnectHold.
const char* const Holds[] = {nullptr,
                             nullptr,
                             "IDS_DIALUP_AUTO_HUNG_UP",
                             "IDS_DIALUP_AUTO_NOT_READY",
                             "IDS_DIALUP_AUTO_NOT_REGISTERED",
                             "IDS_DIALUP_AUTO_ROAMING",
                             "IDS_DIALUP_AUTO_IN_USE",
                             "IDS_DIALUP_AUTO_PAUSE",
                             "IDS_DIALUP_AUTO_REFUSED",
                             "IDS_DIALUP_AUTO_FAILED",
                             "IDS_DIALUP_AUTO_MUST_ASK"};
static_assert(sizeof Holds / sizeof *Holds == AutoConnectMustAsk + 1, "each hold has its place");

// By VRKS_USSD_FAILURE_...
const char* const UssdFailures[] = {nullptr,
                                    "IDS_DIALUP_USSD_NOT_SUPPORTED",
                                    "IDS_DIALUP_USSD_REFUSED",
                                    "IDS_DIALUP_USSD_NO_ANSWER",
                                    "IDS_DIALUP_USSD_CANCELLED",
                                    "IDS_DIALUP_USSD_NOT_ALLOWED",
                                    "IDS_DIALUP_USSD_FAILED",
                                    "IDS_DIALUP_MODEM_GONE",
                                    "IDS_DIALUP_NO_MODEM_SERVICE"};
static_assert(sizeof UssdFailures / sizeof *UssdFailures == VRKS_USSD_FAILURE_NO_MODEM_SERVICE + 1,
              "each failure has its place");

// By the profile's attribute, and by what the SDK calls the member where that differs.
const struct {
    const char* field;
    const char* id;
} BadFields[] = {{"name", "IDS_DIALUP_BAD_NAME"}, {"number", "IDS_DIALUP_BAD_NUMBER"},
                 {"apn", "IDS_DIALUP_BAD_APN"},   {"ip", "IDS_DIALUP_BAD_ADDRESS"},
                 {"dns", "IDS_DIALUP_BAD_DNS"},   {"dnsalt", "IDS_DIALUP_BAD_DNS_ALTERNATIVE"},
                 {"user", "IDS_DIALUP_BAD_USER"}, {"password", "IDS_DIALUP_BAD_PASSWORD"}};

template <std::size_t Count>
const char* at(const char* const (&ids)[Count], int index) {
    return index >= 0 && index < int(Count) ? ids[index] : nullptr;
}

template <std::size_t Count>
QString textAt(const char* const (&ids)[Count], int index, const QString& value = QString()) {
    const char* id = at(ids, index);
    return id ? ConnectionText::text(id, value) : QString();
}

}  // namespace

QString ConnectionText::text(const char* id, const QString& value) {
    return Change::tr(QString::fromLatin1(id), QStringLiteral(ORBISDIAL_DIALUP_TEXTS))
        .replace(QLatin1String("%1"), TextValues::isolated(value));
}

QString ConnectionText::failure(int failure, const QString& profileName, const QString& words) {
    if (failure == VRKS_FAILURE_BAD_REQUEST) return badField(words, profileName);
    return textAt(Failures, failure, failure == VRKS_FAILURE_IN_USE ? words : profileName);
}

// For some failures the words are a part of the sentence.
QString ConnectionText::details(const DataConnection& connection) {
    const bool isSaid = connection.failure == VRKS_FAILURE_NONE || connection.failure == VRKS_FAILURE_IN_USE ||
                        connection.failure == VRKS_FAILURE_BAD_REQUEST;
    return isSaid ? QString() : DeviceText::inLanguage(connection.words);
}

QString ConnectionText::usedBy(const DataConnection& connection) {
    return connection.usedBy.isEmpty() ? QString() : text("IDS_DIALUP_USED_BY", connection.usedBy);
}

QString ConnectionText::step(int step) { return textAt(Steps, step); }

QString ConnectionText::badField(const QString& attribute, const QString& profileName) {
    for (const auto& row : BadFields)
        if (attribute == QLatin1String(row.field)) return text(row.id, profileName);
    return text("IDS_DIALUP_OTHER", profileName);
}

QStringList ConnectionText::notes(const DialupProfile& profile) {
    QStringList notes;
    for (const QString& field : DialCall::fieldsWithoutEffect(profile))
        notes.append(text(DialupNoteTextId(field).toLatin1()));
    notes.removeDuplicates();
    notes.removeAll(QString());  // the library has no texts
    return notes;
}

QString ConnectionText::addressNote(const DialupProfile& profile, const DataConnection& connection) {
    const bool isAsked = DialCall::fieldsWithoutEffect(profile).contains(QStringLiteral("ip"));
    if (!isAsked || !connection.isUp() || connection.address.isEmpty()) return QString();
    const bool isHad = profile.ip.trimmed() == connection.address;
    return isHad ? QString() : text("IDS_DIALUP_NOTE_OTHER_ADDRESS", connection.address);
}

QString ConnectionText::ussdFailure(int failure) { return textAt(UssdFailures, failure); }

QString ConnectionText::balanceByHand(const BalanceQuery& query) {
    if (query.way == BalanceQuery::Call) return text("IDS_DIALUP_BALANCE_CALL", query.number);
    if (query.way != BalanceQuery::Message) return QString();
    if (query.text.isEmpty()) return text("IDS_DIALUP_BALANCE_EMPTY_MESSAGE", query.number);
    return text("IDS_DIALUP_BALANCE_MESSAGE", query.number).replace(QLatin1String("%2"), query.text);
}

QString ConnectionText::usageWarning(int percent) {
    if (percent == 80) return text("IDS_DIALUP_USAGE_80");
    return percent == 100 ? text("IDS_DIALUP_USAGE_100") : QString();
}

QString ConnectionText::automaticHold(int hold, const QString& profileName) { return textAt(Holds, hold, profileName); }
