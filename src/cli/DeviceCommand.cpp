// SPDX-License-Identifier: MIT
// device.

#include <cstring>

#include "Command.h"
#include "Commands.h"
#include "ConnectionReport.h"
#include "Message.h"
#include "ModemReport.h"
#include "Output.h"
#include "Platform.h"
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

template <int Offset>
QJsonValue systemInformation() {
    unsigned char record[VRKS_SYSINFO_SIZE] = {0};
    if (VRKS_NetSrv_GetSysInfoEx(record) != 0) return QJsonValue();
    int value = 0;
    std::memcpy(&value, record + Offset, sizeof(value));
    return value;
}

QJsonValue dataServiceUser() {
    char record[VRKS_DSPROFILE_SIZE] = {0};
    if (VRKS_NetConnectSrv_DSGetProfile(record) != 0) return QJsonValue();
    return QString::fromUtf8(record + VRKS_DSPROFILE_USER_OFFSET,
                             int(qstrnlen(record + VRKS_DSPROFILE_USER_OFFSET, VRKS_DSPROFILE_TEXT_SIZE)));
}

struct DeviceRow {
    const char* key;
    const char* label;
    QJsonValue (*value)();
};

const DeviceRow DeviceRows[] = {
    {"backend", QT_TRANSLATE_NOOP("Programs", "backend"), backend},
    {"status", QT_TRANSLATE_NOOP("Programs", "status (3 is ready)"), number<VRKS_DevSrv_GetDevStatus>},
    {"customizeName", QT_TRANSLATE_NOOP("Programs", "customise name"),
     text<VRKS_DevSrv_GetCustomizeName, VRKS_CUSTOMIZE_NAME_SIZE>},
    {"productType", QT_TRANSLATE_NOOP("Programs", "product type (1 is CDMA)"), number<VRKS_DevSrv_GetProductType>},
    {"imsi", QT_TRANSLATE_NOOP("Programs", "IMSI"), text<VRKS_DevSrv_GetImsiInfo, VRKS_IMSI_SIZE>},
    {"multiMode", QT_TRANSLATE_NOOP("Programs", "multi-mode card"), isMultiMode},
    {"cardMode", QT_TRANSLATE_NOOP("Programs", "card mode (2 is CDMA)"), cardMode},
    {"systemMode", QT_TRANSLATE_NOOP("Programs", "system mode"), systemInformation<VRKS_SYSINFO_MODE_OFFSET>},
    {"systemSubMode", QT_TRANSLATE_NOOP("Programs", "system sub-mode"), systemInformation<VRKS_SYSINFO_SUBMODE_OFFSET>},
    {"user", QT_TRANSLATE_NOOP("Programs", "data-service user"), dataServiceUser},
};

QJsonValue nullIfEmpty(const QString& text) { return text.isEmpty() ? QJsonValue() : text; }

// What a daemon that is not there, or hangs, keeps to itself was shown as unknown.
void requireAnswers() {
    if (!Platform::asksDaemons()) return;
    ModemReport::required();
    ConnectionReport::requireKnown();
}

// The modem in use, null where nothing can tell.
QJsonValue addModem(QStringList* lines) {
    VRKS_ModemInfo info;
    if (!ModemReport::current(&info)) return QJsonValue();
    lines->append(ModemReport::lines(info));
    return ModemReport::object(info);
}

QJsonValue addConnection(QStringList* lines) {
    const DataConnection connection = ConnectionReport::present();
    if (!connection.isKnown) return QJsonValue();
    lines->append(ModemReport::line(QT_TRANSLATE_NOOP("Programs", "connection"), ConnectionReport::line(connection)));
    return ConnectionReport::object(connection);
}

}  // namespace

void showDevice(const Invocation&, Output& output) {
    ProfileSession session(ProfileSession::Reading);
    QJsonObject object;
    QStringList lines;
    const auto add = [&](const char* key, const char* label, const QJsonValue& value) {
        object[key] = value;
        lines.append(ModemReport::line(label, value));
    };
    if (vrks_simulated_active()) lines.append(message("This is a simulated modem."));
    object["simulated"] = vrks_simulated_active() != 0;
    for (const DeviceRow& row : DeviceRows) add(row.key, row.label, row.value());
    object["modem"] = addModem(&lines);
    object["connection"] = addConnection(&lines);
    add("prefix", QT_TRANSLATE_NOOP("Programs", "matched IMSI prefix"), nullIfEmpty(session->MatchedIMSIPrefix()));
    add("proposedDefault", QT_TRANSLATE_NOOP("Programs", "proposed default"), nullIfEmpty(session->ProposedDefault()));
    add("proposedFor", QT_TRANSLATE_NOOP("Programs", "proposed for"), nullIfEmpty(session->ProposedOperator()));
    add("note", QT_TRANSLATE_NOOP("Programs", "note"), nullIfEmpty(session.presetsNote()));
    output.result(object, lines);
    session.finish();
    requireAnswers();
}
