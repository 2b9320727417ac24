// SPDX-License-Identifier: MIT
#include "NetConnectDevice.h"

#include <string.h>

#include "Trace.h"
#include "vrks.h"

namespace {

// A 32-bit value of a record of the device's.
unsigned int valueAt(const unsigned char* record, int offset) {
    unsigned int value = 0;
    memcpy(&value, record + offset, sizeof(value));
    return value;
}

QString textAt(const char* record, int offset) {
    return QString::fromUtf8(record + offset, int(qstrnlen(record + offset, VRKS_DSPROFILE_TEXT_SIZE)));
}

bool askCardMode(NetConnectCardMode* card) {
    unsigned char isMultiMode = 0;
    unsigned int mode = 0;
    if (VRKS_DevSrv_GetMultiModeCardStatus(&isMultiMode, nullptr, nullptr, &mode) != 0) return false;
    card->isMultiMode = isMultiMode != 0;
    card->mode = mode;
    return true;
}

}  // namespace

namespace NetConnectDevice {

bool isReady() {
    int status = 0;
    return VRKS_DevSrv_GetDevStatus(&status) == 0 && status == VRKS_DEV_STATUS_READY;
}

NetConnectCardMode cardMode() {
    NetConnectCardMode card;
    askCardMode(&card);
    return card;
}

NetConnectCardMode cardMode(const Caller& caller) {
    NetConnectCardMode card;
    if (askCardMode(&card) && card.mode != NetConnectCardMode::None)
        qDebug("%s : %s: %s: Get MultiMode Status Success! dwCardMode: %d", traceTime().constData(), caller.file,
               caller.function, int(card.mode));
    return card;
}

QString customizeName() {
    char name[VRKS_CUSTOMIZE_NAME_SIZE] = {0};
    if (VRKS_DevSrv_GetCustomizeName(name) != 0) return QString();
    return QString::fromUtf8(name, int(qstrnlen(name, VRKS_CUSTOMIZE_NAME_SIZE - 1)));
}

QString customizeName(const Caller& caller) {
    char name[VRKS_CUSTOMIZE_NAME_SIZE] = {0};
    qDebug("%s : %s: %s:VRKS_DevSrv_GetCustomizeName() Calling:", traceTime().constData(), caller.file,
           caller.function);
    const long answer = VRKS_DevSrv_GetCustomizeName(name);
    qDebug("%s : %s: %s:VRKS_DevSrv_GetCustomizeName() Return: %li ", traceTime().constData(), caller.file,
           caller.function, answer);
    if (answer != 0) return QString();
    name[VRKS_CUSTOMIZE_NAME_SIZE - 1] = 0;
    qDebug("%s : %s: %s:VRKS_DevSrv_GetCustomizeName() Return: %s ", traceTime().constData(), caller.file,
           caller.function, name);
    qDebug("Device Name %s ==", name);
    return QString::fromUtf8(name);
}

bool isCustomized(const QString& customizeName) {
    return !customizeName.isEmpty() && customizeName != QLatin1String("common");
}

bool isCDMAProduct(const Caller& caller) {
    const int unknownType = 3;
    int type = unknownType;
    qDebug("%s : %s: %s:VRKS_DevSrv_GetProductType() Calling: %d ", traceTime().constData(), caller.file,
           caller.function, type);
    const long answer = VRKS_DevSrv_GetProductType(&type);
    if (answer == -1)
        qDebug("%s : %s: %s:VRKS_DevSrv_GetProductType() Return FAILURE ", traceTime().constData(), caller.file,
               caller.function);
    return answer == 0 && type == VRKS_PRODUCT_TYPE_CDMA;
}

QString imsi() {
    char digits[VRKS_IMSI_SIZE] = {0};
    if (VRKS_DevSrv_GetImsiInfo(digits) != 0) return QString();
    return QString::fromLatin1(digits, int(qstrnlen(digits, VRKS_IMSI_SIZE - 1)));
}

QString cardOperator() {
    VRKS_ModemInfo info;
    memset(&info, 0, sizeof(info));
    info.size = sizeof(info);
    if (VRKS_DevSrv_GetModemInfo(&info) != 0) return QString();
    return QString::fromUtf8(info.cardOperator, int(qstrnlen(info.cardOperator, VRKS_TEXT_SIZE)));
}

bool isEhrpd(const Caller& caller) {
    unsigned char record[VRKS_SYSINFO_SIZE] = {0};
    if (VRKS_NetSrv_GetSysInfoEx(record) != 0) {
        qDebug("<======== %s: %s: %s:\tVRKS_NetSrv_GetSysInfoEx Failed", traceTime().constData(), caller.file,
               caller.function);
        return false;
    }
    const unsigned int subMode = valueAt(record, VRKS_SYSINFO_SUBMODE_OFFSET);
    return valueAt(record, VRKS_SYSINFO_MODE_OFFSET) == VRKS_SYSTEM_MODE_CDMA &&
           subMode >= VRKS_SYSTEM_SUBMODE_EHRPD_FIRST && subMode <= VRKS_SYSTEM_SUBMODE_EHRPD_LAST;
}

bool credentials(QString* user, QString* password, const Caller& caller) {
    char record[VRKS_DSPROFILE_SIZE] = {0};
    qDebug("%s : %s: %s:VRKS_NetConnectSrv_DSGetProfile() Calling:", traceTime().constData(), caller.file,
           caller.function);
    const long answer = VRKS_NetConnectSrv_DSGetProfile(record);
    qDebug("%s : %s: %s:VRKS_NetConnectSrv_DSGetProfile() return: %li", traceTime().constData(), caller.file,
           caller.function, answer);
    if (answer != 0) return false;
    *user = textAt(record, VRKS_DSPROFILE_USER_OFFSET);
    *password = textAt(record, VRKS_DSPROFILE_PASSWORD_OFFSET);
    return true;
}

QString userDataDirectory(long* answer) {
    unsigned short* directory = nullptr;
    *answer = VRKS_GetUserDataDirectory(&directory);
    QString result;
    if (*answer == 0 && directory) result = QString(reinterpret_cast<const QChar*>(directory));
    delete[] directory;
    return result;
}

}  // namespace NetConnectDevice
