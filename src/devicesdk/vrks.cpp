// SPDX-License-Identifier: MIT
// The C interface: fits what the backend answers into the caller's buffers.
#include "vrks.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <exception>

#include "BackendSelection.h"
#include "EventDispatcher.h"
#include "Failures.h"
#include "UserDataDirectory.h"
#include "Utf8.h"

namespace {

constexpr long Success = 0;
constexpr long Failure = -1;

// Runs an operation that answers whether it succeeded; no exception may reach a C caller.
template <class Operation>
long statusOf(Operation operation) noexcept {
    try {
        return operation() ? Success : Failure;
    } catch (const std::exception&) {
        return Failure;
    }
}

// Asks the backend what it knows and, when it knows something, hands that to the reader, which answers whether it
// found what it wants.
template <class Reader>
long withPicture(Reader read) noexcept {
    return statusOf([&] {
        Backend* backend = answeringBackend().backend;
        const std::shared_ptr<const Picture> picture = backend->picture();
        return picture && read(*picture, *backend);
    });
}

// The same where the modems must be known.
template <class Reader>
long withModems(Reader read) noexcept {
    return withPicture(
        [=](const Picture& picture, Backend& backend) { return picture.areModemsKnown && read(picture, backend); });
}

// The same for one of its values that may be missing; the writer answers whether it fits.
template <class Answer, class Writer>
long ask(std::optional<Answer> Picture::*value, Writer write) noexcept {
    return withPicture([&](const Picture& picture, Backend&) { return picture.*value && write(*(picture.*value)); });
}

template <class Operation>
long withEvents(Operation operation) noexcept {
    return statusOf([&] {
        EventDispatcher* events = selectedBackend().events;
        return events && operation(*events);
    });
}

void writeText(char* place, const std::string& text, std::size_t space) {
    std::memcpy(place, text.data(), fittingLength(text, space));
}

// With the zero.
template <std::size_t Size>
void fill(char (&place)[Size], const std::string& text) {
    writeText(place, text, Size - 1);
}

void writeNumber(char* place, std::int32_t number) { std::memcpy(place, &number, sizeof number); }

bool writeInt(int* place, int number) {
    *place = number;
    return true;
}

bool isSizeKnown(unsigned int size) { return size >= 2 * sizeof(unsigned int); }

// As much of our record as the caller has place for, zeros where it has more.
template <class Record>
bool writeRecord(Record* place, const Record& record) {
    const std::size_t size = place->size;
    auto* bytes = reinterpret_cast<char*>(place);
    const std::size_t known = std::min(size, sizeof record);
    constexpr std::size_t Head = sizeof place->size;
    std::memcpy(bytes + Head, reinterpret_cast<const char*>(&record) + Head, known - Head);
    std::memset(bytes + known, 0, size - known);
    return true;
}

// The caller's record, whose members beyond its size are zero.
template <class Record>
Record readRecord(const Record* place) {
    Record record{};
    std::memcpy(&record, place, std::min<std::size_t>(place->size, sizeof record));
    return record;
}

VRKS_ModemInfo recordOf(const ModemInfo& modem, const Picture& picture) {
    VRKS_ModemInfo record{};
    record.status = modem.status;
    record.isSelected = !modem.id.empty() && modem.id == picture.modemInUse;
    record.card = modem.card;
    record.lock = modem.lock;
    record.attempts = modem.attempts;
    record.unlockResult = modem.unlockResult;
    record.registration = modem.registration;
    record.generation = modem.generation;
    record.signal = modem.signal;
    record.dialsAsCdma = modem.dialsAsCdma;
    record.hasUssd = modem.hasUssd;
    fill(record.id, modem.id);
    fill(record.port, modem.port);
    fill(record.manufacturer, modem.manufacturer);
    fill(record.model, modem.model);
    fill(record.imei, modem.imei);
    fill(record.ownNumber, modem.ownNumber);
    fill(record.cardOperator, modem.cardOperator);
    fill(record.gid1, modem.gid1);
    fill(record.operatorName, modem.operatorName);
    fill(record.operatorCode, modem.operatorCode);
    fill(record.technology, modem.technology);
    fill(record.unlockWords, modem.unlockWords);
    return record;
}

long long secondsSince(const std::optional<std::chrono::steady_clock::time_point>& start) {
    if (!start) return -1;
    return std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - *start).count();
}

// An IMSI is never cut: a part of it is another card's.
void fillImsi(char (&place)[VRKS_IMSI_SIZE], const std::string& imsi) {
    if (imsi.size() < sizeof place) fill(place, imsi);
}

VRKS_Connection recordOf(const Picture& picture, const Traffic& traffic) {
    const Connection& connection = picture.connection;
    VRKS_Connection record{};
    record.state = connection.state;
    record.step = connection.step;
    record.failure = connection.failure;
    record.isOwn = connection.isOwn;
    record.endsWithProcess = connection.endsWithProcess;
    record.since = connection.since;
    record.seconds = secondsSince(connection.upSince);
    record.received = traffic.received;
    record.sent = traffic.sent;
    fill(record.name, connection.name);
    fill(record.usedBy, connection.usedBy);
    fill(record.words, connection.words);
    fill(record.interfaceName, connection.interfaceName);
    fill(record.address, connection.address);
    fill(record.address6, connection.address6);
    const std::size_t servers = std::min<std::size_t>(connection.dns.size(), VRKS_DNS_COUNT);
    for (std::size_t i = 0; i < servers; ++i) fill(record.dns[i], connection.dns[i]);
    fillImsi(record.imsi, picture.connectionImsi());
    return record;
}

VRKS_Ussd recordOf(const Ussd& ussd) {
    VRKS_Ussd record{};
    record.state = ussd.state;
    record.failure = ussd.failure;
    fill(record.text, ussd.text);
    fill(record.words, ussd.words);
    return record;
}

std::string textOf(const char* text) { return text ? text : ""; }

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool isCode(const std::string& text, std::size_t least, std::size_t most) {
    return text.size() >= least && text.size() <= most && std::all_of(text.begin(), text.end(), isDigit);
}

bool isPin(const std::string& text) { return isCode(text, 4, 8); }

bool isPuk(const std::string& text) { return isCode(text, 8, 8); }

bool isUssdText(const std::string& text) {
    constexpr std::size_t Longest = 182;  // characters
    return !text.empty() && isUtf8(text) && characterCount(text) <= Longest;
}

bool asksFor(const Picture& picture, int lock) {
    const ModemInfo& modem = picture.modem();
    return modem.lock == lock && modem.unlockResult != VRKS_UNLOCK_PENDING;
}

bool isSessionOpen(const Picture& picture) {
    return picture.ussd.state == VRKS_USSD_SENT || picture.ussd.state == VRKS_USSD_ASKS;
}

// An address that stands for none, as profiles have it, is left out.
void addAddress(std::vector<std::string>* addresses, const char* text) {
    const std::string address = textOf(text);
    if (!address.empty() && address != "0.0.0.0") addresses->push_back(address);
}

DialRequest requestOf(const VRKS_DialRequest& record) {
    DialRequest request;
    request.name = textOf(record.name);
    request.number = textOf(record.number);
    request.apn = textOf(record.apn);
    request.user = textOf(record.user);
    request.password = textOf(record.password);
    addAddress(&request.dns, record.dns);
    addAddress(&request.dns, record.alternativeDns);
    request.allowsChap = record.allowsChap != 0;
    request.allowsPap = record.allowsPap != 0;
    request.endsWithProcess = record.endsWithProcess != 0;
    return request;
}

}  // namespace

long VRKS_DevSrv_RegisterDevInitEventCallback(VRKS_DevInitEventCallback callback) {
    return withEvents([=](EventDispatcher& events) { return events.add({callback, nullptr, nullptr}); });
}

long VRKS_DevSrv_UnRegisterDevInitEventCallback(VRKS_DevInitEventCallback callback) {
    return withEvents([=](EventDispatcher& events) { return events.remove({callback, nullptr, nullptr}); });
}

long VRKS_DevSrv_RegisterEventCallback(VRKS_EventCallback callback, void* data) {
    return withEvents([=](EventDispatcher& events) { return events.add({nullptr, callback, data}); });
}

long VRKS_DevSrv_UnRegisterEventCallback(VRKS_EventCallback callback, void* data) {
    return withEvents([=](EventDispatcher& events) { return events.remove({nullptr, callback, data}); });
}

long VRKS_DevSrv_GetDevStatus(int* status) {
    if (!status) return Failure;
    return ask(&Picture::devStatus, [=](int answer) { return writeInt(status, answer); });
}

long VRKS_DevSrv_GetCustomizeName(char* name) {
    if (!name) return Failure;
    return ask(&Picture::customizeName, [=](const std::string& answer) {
        const std::size_t length = fittingLength(answer, VRKS_CUSTOMIZE_NAME_SIZE - 1);
        std::memcpy(name, answer.data(), length);
        name[length] = '\0';
        return true;
    });
}

long VRKS_DevSrv_GetProductType(int* type) {
    if (!type) return Failure;
    return ask(&Picture::productType, [=](int answer) { return writeInt(type, answer); });
}

// An IMSI is never cut: a part of it is another card's.
long VRKS_DevSrv_GetImsiInfo(char* imsi) {
    if (!imsi) return Failure;
    return ask(&Picture::imsi, [=](const std::string& answer) {
        if (answer.size() >= VRKS_IMSI_SIZE) return false;
        std::memcpy(imsi, answer.c_str(), answer.size() + 1);
        return true;
    });
}

long VRKS_DevSrv_GetMultiModeCardStatus(unsigned char* isMultiMode, void*, void*, unsigned int* cardMode) {
    if (!isMultiMode || !cardMode) return Failure;
    return ask(&Picture::multiModeStatus, [=](const MultiModeStatus& answer) {
        *isMultiMode = answer.isMultiMode;
        *cardMode = answer.cardMode;
        return true;
    });
}

long VRKS_NetSrv_GetSysInfoEx(void* record) {
    if (!record) return Failure;
    return ask(&Picture::systemMode, [place = static_cast<char*>(record)](const SystemMode& answer) {
        std::memset(place, 0, VRKS_SYSINFO_SIZE);
        writeNumber(place + VRKS_SYSINFO_MODE_OFFSET, answer.mode);
        writeNumber(place + VRKS_SYSINFO_SUBMODE_OFFSET, answer.subMode);
        return true;
    });
}

long VRKS_NetConnectSrv_DSGetProfile(void* record) {
    if (!record) return Failure;
    return ask(&Picture::dataServiceProfile, [place = static_cast<char*>(record)](const DataServiceProfile& answer) {
        std::memset(place, 0, VRKS_DSPROFILE_SIZE);
        writeText(place + VRKS_DSPROFILE_USER_OFFSET, answer.user, VRKS_DSPROFILE_TEXT_SIZE);
        writeText(place + VRKS_DSPROFILE_PASSWORD_OFFSET, answer.password, VRKS_DSPROFILE_TEXT_SIZE);
        return true;
    });
}

long VRKS_GetUserDataDirectory(unsigned short** directory) {
    if (!directory) return Failure;
    return statusOf([=] {
        const std::optional<std::u16string> name = userDataDirectory();
        if (!name) return false;
        auto* text = new unsigned short[name->size() + 1];
        std::copy_n(name->c_str(), name->size() + 1, text);
        *directory = text;
        return true;
    });
}

// A key is never cut: a part of it is no modem's.
long VRKS_DevSrv_GetModemAt(unsigned int index, char* id) {
    if (!id) return Failure;
    return withPicture([=](const Picture& picture, Backend&) {
        if (index >= picture.modems.size()) return false;
        const std::string& key = picture.modems[index].id;
        if (key.size() >= VRKS_MODEM_ID_SIZE) return false;
        std::memcpy(id, key.c_str(), key.size() + 1);
        return true;
    });
}

long VRKS_DevSrv_SelectModem(const char* id) {
    return statusOf([=] {
        const std::string key = textOf(id);
        return key.size() < VRKS_MODEM_ID_SIZE && selectedBackend().backend->selectModem(key);
    });
}

long VRKS_DevSrv_GetModemInfo(VRKS_ModemInfo* info) {
    if (!info || !isSizeKnown(info->size)) return Failure;
    return withModems(
        [=](const Picture& picture, Backend&) { return writeRecord(info, recordOf(picture.modem(), picture)); });
}

long VRKS_DevSrv_GetModemInfoOf(const char* id, VRKS_ModemInfo* info) {
    if (!id || !info || !isSizeKnown(info->size)) return Failure;
    return withPicture([=](const Picture& picture, Backend&) {
        const ModemInfo* modem = picture.modem(id);
        return modem && writeRecord(info, recordOf(*modem, picture));
    });
}

long VRKS_DevSrv_EnterPin(const char* pin) {
    return withPicture([=](const Picture& picture, Backend& backend) {
        const std::string code = textOf(pin);
        return isPin(code) && asksFor(picture, VRKS_LOCK_PIN) && backend.enterPin(code);
    });
}

long VRKS_DevSrv_EnterPuk(const char* puk, const char* newPin) {
    return withPicture([=](const Picture& picture, Backend& backend) {
        const std::string code = textOf(puk);
        const std::string pin = textOf(newPin);
        return isPuk(code) && isPin(pin) && asksFor(picture, VRKS_LOCK_PUK) && backend.enterPuk(code, pin);
    });
}

long VRKS_NetConnectSrv_Dial(const VRKS_DialRequest* request) {
    if (!request || !isSizeKnown(request->size)) return Failure;
    return statusOf([=] { return answeringBackend().backend->dial(requestOf(readRecord(request))); });
}

long VRKS_NetConnectSrv_HangUp(void) {
    return statusOf([] { return answeringBackend().backend->hangUp(); });
}

long VRKS_NetConnectSrv_GetConnection(VRKS_Connection* connection) {
    if (!connection || !isSizeKnown(connection->size)) return Failure;
    return withPicture([=](const Picture& picture, Backend& backend) {
        return picture.isConnectionKnown && writeRecord(connection, recordOf(picture, backend.traffic()));
    });
}

long VRKS_NetConnectSrv_GetFailureName(int failure, const char** name) {
    const char* found = failureName(failure);
    if (!found || !name) return Failure;
    *name = found;
    return Success;
}

long VRKS_NetSrv_SendUssd(const char* command) {
    return withPicture([=](const Picture& picture, Backend& backend) {
        const std::string text = textOf(command);
        return isUssdText(text) && picture.devStatus == VRKS_DEV_STATUS_READY && !isSessionOpen(picture) &&
               backend.sendUssd(text);
    });
}

long VRKS_NetSrv_AnswerUssd(const char* answer) {
    return withPicture([=](const Picture& picture, Backend& backend) {
        const std::string text = textOf(answer);
        return isUssdText(text) && picture.ussd.state == VRKS_USSD_ASKS && backend.answerUssd(text);
    });
}

long VRKS_NetSrv_CancelUssd(void) {
    return withPicture(
        [](const Picture& picture, Backend& backend) { return isSessionOpen(picture) && backend.cancelUssd(); });
}

long VRKS_NetSrv_GetUssd(VRKS_Ussd* ussd) {
    if (!ussd || !isSizeKnown(ussd->size)) return Failure;
    return withPicture([=](const Picture& picture, Backend&) { return writeRecord(ussd, recordOf(picture.ussd)); });
}
