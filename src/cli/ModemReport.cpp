// SPDX-License-Identifier: MIT
#include "ModemReport.h"

#include <QJsonValue>

namespace {

const char* const Statuses[] = {"no-modem", "starting", "locked", "ready", "failed"};
const char* const Cards[] = {"unknown", "none", "present"};
const char* const Locks[] = {"none", "pin", "puk", "other"};
const char* const Registrations[] = {"unknown", "idle", "searching", "home", "roaming", "denied"};

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
    {"id", "modem", text<VRKS_MODEM_ID_SIZE, &Info::id>},
    {"status", "state", [](const Info& info) { return word(Statuses, info.status); }},
    {"manufacturer", "manufacturer", shortText<&Info::manufacturer>},
    {"model", "model", shortText<&Info::model>},
    {"imei", "IMEI", shortText<&Info::imei>},
    {"port", "port", shortText<&Info::port>},
    {"dialsAsCdma", "dials as CDMA", flag<&Info::dialsAsCdma>},
    {"hasUssd", "takes USSD commands", flag<&Info::hasUssd>},
    {"card", "card", [](const Info& info) { return word(Cards, info.card); }},
    {"lock", "lock", [](const Info& info) { return word(Locks, info.lock); }},
    {"attempts", "attempts to unlock", number<&Info::attempts, 0>},
    {"ownNumber", "own number", shortText<&Info::ownNumber>},
    {"cardOperator", "card's operator", shortText<&Info::cardOperator>},
    {"gid1", "GID1", shortText<&Info::gid1>},
    {"registration", "registration", [](const Info& info) { return word(Registrations, info.registration); }},
    {"operatorName", "network", shortText<&Info::operatorName>},
    {"operatorCode", "network's code", shortText<&Info::operatorCode>},
    {"technology", "technology", shortText<&Info::technology>},
    {"generation", "generation", number<&Info::generation, 1>},
    {"signal", "signal in percent", number<&Info::signal, 0>},
};

Info emptyInfo() {
    Info info{};
    info.size = sizeof info;
    return info;
}

}  // namespace

bool ModemReport::current(VRKS_ModemInfo* info) {
    *info = emptyInfo();
    return VRKS_DevSrv_GetModemInfo(info) == 0;
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

QJsonObject ModemReport::object(const VRKS_ModemInfo& info) {
    QJsonObject object;
    for (const Row& row : Rows) object[row.key] = row.value(info);
    return object;
}

QStringList ModemReport::lines(const VRKS_ModemInfo& info) {
    QStringList lines;
    for (const Row& row : Rows) lines.append(line(row.label, row.value(info)));
    return lines;
}

QString ModemReport::line(const QString& label, const QJsonValue& value) {
    QString text = "-";
    if (value.isBool()) text = value.toBool() ? "yes" : "no";
    if (value.isDouble()) text = QString::number(value.toInt());
    if (value.isString()) text = value.toString();
    return QString("%1 %2").arg(label, -25).arg(text);
}
