// device.

#include <cstring>

#include "Command.h"
#include "Commands.h"
#include "Output.h"
#include "ProfileSession.h"
#include "vrks_simulated.h"

namespace {

// What a query answers: null when it fails.
template <long (*Query)(int*)>
QJsonValue number() {
    int value = 0;
    return Query(&value) == 0 ? QJsonValue(value) : QJsonValue();
}

template <long (*Query)(char*), int Size>
QJsonValue text() {
    char value[Size] = {0};
    return Query(value) == 0 ? QJsonValue(QString::fromUtf8(value, int(qstrnlen(value, Size)))) : QJsonValue();
}

QJsonValue backend() { return vrks_backend_name(nullptr); }

QJsonValue isMultiMode() {
    unsigned char isMultiMode = 0;
    unsigned int mode = 0;
    if (VRKS_DevSrv_GetMultiModeCardStatus(&isMultiMode, nullptr, nullptr, &mode) != 0) return QJsonValue();
    return isMultiMode != 0;
}

QJsonValue cardMode() {
    unsigned char isMultiMode = 0;
    unsigned int mode = 0;
    if (VRKS_DevSrv_GetMultiModeCardStatus(&isMultiMode, nullptr, nullptr, &mode) != 0) return QJsonValue();
    return int(mode);
}

enum { SystemModeOffset = 4, SystemSubModeOffset = 20 };  // in bytes

template <int Offset>
QJsonValue systemInformation() {
    unsigned char record[VRKS_SYSINFO_SIZE] = {0};
    if (VRKS_NetSrv_GetSysInfoEx(record) != 0) return QJsonValue();
    int value = 0;
    std::memcpy(&value, record + Offset, sizeof(value));
    return value;
}

QJsonValue dataServiceUser() {
    const int textSize = 256;
    char record[VRKS_DSPROFILE_SIZE] = {0};
    if (VRKS_NetConnectSrv_DSGetProfile(record) != 0) return QJsonValue();
    return QString::fromUtf8(record, int(qstrnlen(record, textSize)));
}

struct DeviceRow {
    const char* key;
    const char* label;
    QJsonValue (*value)();
};

const DeviceRow DeviceRows[] = {
    {"backend", "backend", backend},
    {"status", "status (3 is ready)", number<VRKS_DevSrv_GetDevStatus>},
    {"customizeName", "customise name", text<VRKS_DevSrv_GetCustomizeName, VRKS_CUSTOMIZE_NAME_SIZE>},
    {"productType", "product type (1 is CDMA)", number<VRKS_DevSrv_GetProductType>},
    {"imsi", "IMSI", text<VRKS_DevSrv_GetImsiInfo, VRKS_IMSI_SIZE>},
    {"multiMode", "multi-mode card", isMultiMode},
    {"cardMode", "card mode (2 is CDMA)", cardMode},
    {"systemMode", "system mode", systemInformation<SystemModeOffset>},
    {"systemSubMode", "system sub-mode", systemInformation<SystemSubModeOffset>},
    {"user", "data-service user", dataServiceUser},
};

QString lineOf(const QString& label, const QJsonValue& value) {
    QString text = "-";
    if (value.isBool()) text = value.toBool() ? "yes" : "no";
    if (value.isDouble()) text = QString::number(value.toInt());
    if (value.isString()) text = value.toString();
    return QString("%1 %2").arg(label, -25).arg(text);
}

QJsonValue nullIfEmpty(const QString& text) { return text.isEmpty() ? QJsonValue() : text; }

}  // namespace

void showDevice(const Invocation&, Output& output) {
    ProfileSession session(ProfileSession::Reading);
    QJsonObject object;
    QStringList lines;
    const auto add = [&](const char* key, const char* label, const QJsonValue& value) {
        object[key] = value;
        lines.append(lineOf(label, value));
    };
    if (vrks_simulated_active()) lines.append("This is a simulated modem.");
    object["simulated"] = vrks_simulated_active() != 0;
    for (const DeviceRow& row : DeviceRows) add(row.key, row.label, row.value());
    add("prefix", "matched IMSI prefix", nullIfEmpty(session->MatchedIMSIPrefix()));
    add("proposedDefault", "proposed default", nullIfEmpty(session->ProposedDefault()));
    add("note", "note", nullIfEmpty(session.presetsNote()));
    output.result(object, lines);
    session.finish();
}
