// SPDX-License-Identifier: MIT
#include "ModemReport.h"

#include <QJsonValue>

#include "Message.h"
#include "TerminalText.h"

namespace {

const char* const Statuses[] = {QT_TRANSLATE_NOOP("orbisctl", "no-modem"), QT_TRANSLATE_NOOP("orbisctl", "starting"),
                                QT_TRANSLATE_NOOP("orbisctl", "locked"), QT_TRANSLATE_NOOP("orbisctl", "ready"),
                                QT_TRANSLATE_NOOP("orbisctl", "failed")};
const char* const Cards[] = {QT_TRANSLATE_NOOP("orbisctl", "unknown"), QT_TRANSLATE_NOOP("orbisctl", "none"),
                             QT_TRANSLATE_NOOP("orbisctl", "present")};
const char* const Locks[] = {QT_TRANSLATE_NOOP("orbisctl", "none"), QT_TRANSLATE_NOOP("orbisctl", "pin"),
                             QT_TRANSLATE_NOOP("orbisctl", "puk"), QT_TRANSLATE_NOOP("orbisctl", "other")};
const char* const Registrations[] = {
    QT_TRANSLATE_NOOP("orbisctl", "unknown"),   QT_TRANSLATE_NOOP("orbisctl", "idle"),
    QT_TRANSLATE_NOOP("orbisctl", "searching"), QT_TRANSLATE_NOOP("orbisctl", "home"),
    QT_TRANSLATE_NOOP("orbisctl", "roaming"),   QT_TRANSLATE_NOOP("orbisctl", "denied")};

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
    {"id", QT_TRANSLATE_NOOP("orbisctl", "modem"), text<VRKS_MODEM_ID_SIZE, &Info::id>},
    {"status", QT_TRANSLATE_NOOP("orbisctl", "state"), [](const Info& info) { return word(Statuses, info.status); }},
    {"manufacturer", QT_TRANSLATE_NOOP("orbisctl", "manufacturer"), shortText<&Info::manufacturer>},
    {"model", QT_TRANSLATE_NOOP("orbisctl", "model"), shortText<&Info::model>},
    {"imei", QT_TRANSLATE_NOOP("orbisctl", "IMEI"), shortText<&Info::imei>},
    {"port", QT_TRANSLATE_NOOP("orbisctl", "port"), shortText<&Info::port>},
    {"dialsAsCdma", QT_TRANSLATE_NOOP("orbisctl", "dials as CDMA"), flag<&Info::dialsAsCdma>},
    {"hasUssd", QT_TRANSLATE_NOOP("orbisctl", "takes USSD commands"), flag<&Info::hasUssd>},
    {"card", QT_TRANSLATE_NOOP("orbisctl", "card"), [](const Info& info) { return word(Cards, info.card); }},
    {"lock", QT_TRANSLATE_NOOP("orbisctl", "lock"), [](const Info& info) { return word(Locks, info.lock); }},
    {"attempts", QT_TRANSLATE_NOOP("orbisctl", "attempts to unlock"), number<&Info::attempts, 0>},
    {"ownNumber", QT_TRANSLATE_NOOP("orbisctl", "own number"), shortText<&Info::ownNumber>},
    {"cardOperator", QT_TRANSLATE_NOOP("orbisctl", "card's operator"), shortText<&Info::cardOperator>},
    {"gid1", QT_TRANSLATE_NOOP("orbisctl", "GID1"), shortText<&Info::gid1>},
    {"registration", QT_TRANSLATE_NOOP("orbisctl", "registration"),
     [](const Info& info) { return word(Registrations, info.registration); }},
    {"operatorName", QT_TRANSLATE_NOOP("orbisctl", "network"), shortText<&Info::operatorName>},
    {"operatorCode", QT_TRANSLATE_NOOP("orbisctl", "network's code"), shortText<&Info::operatorCode>},
    {"technology", QT_TRANSLATE_NOOP("orbisctl", "technology"), shortText<&Info::technology>},
    {"generation", QT_TRANSLATE_NOOP("orbisctl", "generation"), number<&Info::generation, 1>},
    {"signal", QT_TRANSLATE_NOOP("orbisctl", "signal in percent"), number<&Info::signal, 0>},
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
