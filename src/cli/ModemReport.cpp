// SPDX-License-Identifier: MIT
#include "ModemReport.h"

#include <QJsonValue>

#include "CommandError.h"
#include "ConnectionReport.h"
#include "Message.h"
#include "Platform.h"
#include "TerminalText.h"

namespace {

const char* const Statuses[] = {QT_TRANSLATE_NOOP("Programs", "no-modem"), QT_TRANSLATE_NOOP("Programs", "starting"),
                                QT_TRANSLATE_NOOP("Programs", "locked"), QT_TRANSLATE_NOOP("Programs", "ready"),
                                QT_TRANSLATE_NOOP("Programs", "failed")};
const char* const Cards[] = {QT_TRANSLATE_NOOP("Programs", "unknown"), QT_TRANSLATE_NOOP("Programs", "none"),
                             QT_TRANSLATE_NOOP("Programs", "present")};
const char* const Locks[] = {QT_TRANSLATE_NOOP("Programs", "none"), QT_TRANSLATE_NOOP("Programs", "pin"),
                             QT_TRANSLATE_NOOP("Programs", "puk"), QT_TRANSLATE_NOOP("Programs", "other")};
const char* const Registrations[] = {
    QT_TRANSLATE_NOOP("Programs", "unknown"),   QT_TRANSLATE_NOOP("Programs", "idle"),
    QT_TRANSLATE_NOOP("Programs", "searching"), QT_TRANSLATE_NOOP("Programs", "home"),
    QT_TRANSLATE_NOOP("Programs", "roaming"),   QT_TRANSLATE_NOOP("Programs", "denied")};

template <std::size_t Count>
QJsonValue word(const char* const (&words)[Count], int value) {
    return value >= 0 && value < int(Count) ? QJsonValue(words[value]) : QJsonValue();
}

using Info = VRKS_ModemInfo;

template <int Size, char (Info::*Member)[Size]>
QJsonValue text(const Info& info) {
    const char* value = info.*Member;
    return *value ? QJsonValue(QString::fromUtf8(value)) : QJsonValue();
}

template <char (Info::*Member)[VRKS_TEXT_SIZE]>
QJsonValue shortText(const Info& info) {
    return text<VRKS_TEXT_SIZE, Member>(info);
}

// A number from the least that means something.
template <int Info::*Member, int Least>
QJsonValue number(const Info& info) {
    return info.*Member >= Least ? QJsonValue(info.*Member) : QJsonValue();
}

template <int Info::*Member>
QJsonValue flag(const Info& info) {
    return info.*Member != 0;
}

struct Row {
    const char* key;
    const char* label;
    QJsonValue (*value)(const Info& info);
};

const Row Rows[] = {
    {"id", QT_TRANSLATE_NOOP("Programs", "modem"), text<VRKS_MODEM_ID_SIZE, &Info::id>},
    {"status", QT_TRANSLATE_NOOP("Programs", "state"), [](const Info& info) { return word(Statuses, info.status); }},
    {"manufacturer", QT_TRANSLATE_NOOP("Programs", "manufacturer"), shortText<&Info::manufacturer>},
    {"model", QT_TRANSLATE_NOOP("Programs", "model"), shortText<&Info::model>},
    {"imei", QT_TRANSLATE_NOOP("Programs", "IMEI"), shortText<&Info::imei>},
    {"port", QT_TRANSLATE_NOOP("Programs", "port"), shortText<&Info::port>},
    {"dialsAsCdma", QT_TRANSLATE_NOOP("Programs", "dials as CDMA"), flag<&Info::dialsAsCdma>},
    {"hasUssd", QT_TRANSLATE_NOOP("Programs", "takes USSD commands"), flag<&Info::hasUssd>},
    {"card", QT_TRANSLATE_NOOP("Programs", "card"), [](const Info& info) { return word(Cards, info.card); }},
    {"lock", QT_TRANSLATE_NOOP("Programs", "lock"), [](const Info& info) { return word(Locks, info.lock); }},
    {"attempts", QT_TRANSLATE_NOOP("Programs", "attempts to unlock"), number<&Info::attempts, 0>},
    {"ownNumber", QT_TRANSLATE_NOOP("Programs", "own number"), shortText<&Info::ownNumber>},
    {"cardOperator", QT_TRANSLATE_NOOP("Programs", "card's operator"), shortText<&Info::cardOperator>},
    {"gid1", QT_TRANSLATE_NOOP("Programs", "GID1"), shortText<&Info::gid1>},
    {"registration", QT_TRANSLATE_NOOP("Programs", "registration"),
     [](const Info& info) { return word(Registrations, info.registration); }},
    {"operatorName", QT_TRANSLATE_NOOP("Programs", "network"), shortText<&Info::operatorName>},
    {"operatorCode", QT_TRANSLATE_NOOP("Programs", "network's code"), shortText<&Info::operatorCode>},
    {"technology", QT_TRANSLATE_NOOP("Programs", "technology"), shortText<&Info::technology>},
    {"generation", QT_TRANSLATE_NOOP("Programs", "generation"), number<&Info::generation, 1>},
    {"signal", QT_TRANSLATE_NOOP("Programs", "signal in percent"), number<&Info::signal, 0>},
};

// Those that hold a word of this program's.
bool isWord(const Row& row) {
    static const QStringList keys{"status", "card", "lock", "registration"};
    return keys.contains(row.key);
}

QJsonValue inLanguage(const QJsonValue& word) {
    return word.isString() ? QJsonValue(message(word.toString().toLatin1())) : word;
}

Info emptyInfo() {
    Info info{};
    info.size = sizeof info;
    return info;
}

}  // namespace

bool ModemReport::isServiceMissing() { return Platform::asksDaemons() && !ModemState::current().isKnown; }

bool ModemReport::current(VRKS_ModemInfo* info) {
    *info = emptyInfo();
    return VRKS_DevSrv_GetModemInfo(info) == 0;
}

VRKS_ModemInfo ModemReport::required() {
    VRKS_ModemInfo info;
    if (current(&info) && !isServiceMissing()) return info;
    throw ConnectionReport::silence(VRKS_FAILURE_NO_MODEM_SERVICE, message("nothing can tell of modems"));
}

QList<VRKS_ModemInfo> ModemReport::all() {
    QList<Info> modems;
    char id[VRKS_MODEM_ID_SIZE];
    for (unsigned int i = 0; VRKS_DevSrv_GetModemAt(i, id) == 0; ++i) {
        Info info = emptyInfo();
        if (VRKS_DevSrv_GetModemInfoOf(id, &info) == 0) modems.append(info);  // else it has just gone
    }
    return modems;
}

QString ModemReport::title(const VRKS_ModemInfo& info) {
    const QString title = QString("%1 %2").arg(QString::fromUtf8(info.manufacturer), QString::fromUtf8(info.model));
    return title == " " ? QString::fromUtf8(info.id) : title.trimmed();
}

QString ModemReport::status(const VRKS_ModemInfo& info) { return inLanguage(word(Statuses, info.status)).toString(); }

QJsonObject ModemReport::object(const VRKS_ModemInfo& info) {
    QJsonObject object;
    for (const Row& row : Rows) object[row.key] = row.value(info);
    return object;
}

QStringList ModemReport::lines(const VRKS_ModemInfo& info) {
    QStringList lines;
    for (const Row& row : Rows)
        lines.append(line(row.label, isWord(row) ? inLanguage(row.value(info)) : row.value(info)));
    return lines;
}

QString ModemReport::line(const char* label, const QJsonValue& value) {
    QString text = "-";
    if (value.isBool()) text = value.toBool() ? message("yes") : message("no");
    if (value.isDouble()) text = QString::number(value.toInt());
    if (value.isString()) text = value.toString();
    return TerminalText::padded(message(label), 25) + ' ' + text;
}
