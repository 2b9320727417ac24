// The C interface: fits what the backend answers into the caller's buffers.
#include "vrks.h"

#include <algorithm>
#include <cstring>
#include <exception>

#include "BackendSelection.h"
#include "EventDispatcher.h"
#include "UserDataDirectory.h"

namespace {

constexpr long Success = 0;
constexpr long Failure = -1;

constexpr std::size_t SystemModeOffset = 4;
constexpr std::size_t SystemSubModeOffset = 20;
constexpr std::size_t DataServiceTextSize = VRKS_DSPROFILE_SIZE / 2;

// Runs an operation that answers whether it succeeded; no exception may reach a C caller.
template <class Operation>
long statusOf(Operation operation) noexcept {
    try {
        return operation() ? Success : Failure;
    } catch (const std::exception&) {
        return Failure;
    }
}

// Asks the backend and, when it answers, hands the answer to the writer, which answers whether it fits.
template <class Answer, class Writer>
long ask(std::optional<Answer> (Backend::*query)(), Writer write) noexcept {
    return statusOf([&] {
        const std::optional<Answer> answer = (selectedBackend().backend->*query)();
        return answer && write(*answer);
    });
}

template <class Operation>
long withEvents(Operation operation) noexcept {
    return statusOf([&] {
        EventDispatcher* events = selectedBackend().backend->events();
        return events && operation(*events);
    });
}

// The longest start of a UTF-8 text that fits into so many bytes without halving a character.
std::size_t fittingLength(const std::string& text, std::size_t space) {
    if (text.size() <= space) return text.size();
    std::size_t length = space;
    while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80) --length;
    return length;
}

void writeText(char* place, const std::string& text, std::size_t space) {
    std::memcpy(place, text.data(), fittingLength(text, space));
}

void writeNumber(char* place, std::int32_t number) { std::memcpy(place, &number, sizeof number); }

bool writeInt(int* place, int number) {
    *place = number;
    return true;
}

}  // namespace

long VRKS_DevSrv_RegisterDevInitEventCallback(VRKS_DevInitEventCallback callback) {
    return withEvents([=](EventDispatcher& events) { return events.add(callback); });
}

long VRKS_DevSrv_UnRegisterDevInitEventCallback(VRKS_DevInitEventCallback callback) {
    return withEvents([=](EventDispatcher& events) { return events.remove(callback); });
}

long VRKS_DevSrv_GetDevStatus(int* status) {
    if (!status) return Failure;
    return ask(&Backend::devStatus, [=](int answer) { return writeInt(status, answer); });
}

long VRKS_DevSrv_GetCustomizeName(char* name) {
    if (!name) return Failure;
    return ask(&Backend::customizeName, [=](const std::string& answer) {
        const std::size_t length = fittingLength(answer, VRKS_CUSTOMIZE_NAME_SIZE - 1);
        std::memcpy(name, answer.data(), length);
        name[length] = '\0';
        return true;
    });
}

long VRKS_DevSrv_GetProductType(int* type) {
    if (!type) return Failure;
    return ask(&Backend::productType, [=](int answer) { return writeInt(type, answer); });
}

// An IMSI is never cut: a part of it is another card's.
long VRKS_DevSrv_GetImsiInfo(char* imsi) {
    if (!imsi) return Failure;
    return ask(&Backend::imsi, [=](const std::string& answer) {
        if (answer.size() >= VRKS_IMSI_SIZE) return false;
        std::memcpy(imsi, answer.c_str(), answer.size() + 1);
        return true;
    });
}

long VRKS_DevSrv_GetMultiModeCardStatus(unsigned char* isMultiMode, void*, void*, unsigned int* cardMode) {
    if (!isMultiMode || !cardMode) return Failure;
    return ask(&Backend::multiModeStatus, [=](const MultiModeStatus& answer) {
        *isMultiMode = answer.isMultiMode;
        *cardMode = answer.cardMode;
        return true;
    });
}

long VRKS_NetSrv_GetSysInfoEx(void* record) {
    if (!record) return Failure;
    return ask(&Backend::systemMode, [place = static_cast<char*>(record)](const SystemMode& answer) {
        std::memset(place, 0, VRKS_SYSINFO_SIZE);
        writeNumber(place + SystemModeOffset, answer.mode);
        writeNumber(place + SystemSubModeOffset, answer.subMode);
        return true;
    });
}

long VRKS_NetConnectSrv_DSGetProfile(void* record) {
    if (!record) return Failure;
    return ask(&Backend::dataServiceProfile, [place = static_cast<char*>(record)](const DataServiceProfile& answer) {
        std::memset(place, 0, VRKS_DSPROFILE_SIZE);
        writeText(place, answer.user, DataServiceTextSize);
        writeText(place + DataServiceTextSize, answer.password, DataServiceTextSize);
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
