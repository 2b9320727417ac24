// SPDX-License-Identifier: MIT
#include "SimulatedBackend.h"

#include <ctime>

#include "../ModemChoice.h"

namespace {

using std::chrono::milliseconds;

const char* const Keys[] = {"/simulated/1", "/simulated/2"};
constexpr std::size_t NoModem = 2;

constexpr int AllPinAttempts = 3;
constexpr int AllPukAttempts = 10;

constexpr int Steps[] = {VRKS_STEP_REGISTERING, VRKS_STEP_CONNECTING, VRKS_STEP_ADDRESSING};
constexpr int UpstreamShare = 8;  // of what is received, one part in so many is sent

std::size_t indexOf(const std::string& key) {
    std::size_t index = 0;
    while (index < NoModem && key != Keys[index]) ++index;
    return index;
}

std::string textOf(const std::optional<std::string>& text) { return text.value_or(std::string()); }

bool isPresent(const SimulatedModem& modem) { return modem.present.value_or(0) != 0; }

bool isLocked(const SimulatedModem& modem) { return modem.lock.value_or(VRKS_LOCK_NONE) != VRKS_LOCK_NONE; }

// A modem that would be ready waits for its card to be unlocked.
std::optional<int> statusOf(const SimulatedModem& modem) {
    const bool waits = modem.status == VRKS_DEV_STATUS_READY && isLocked(modem);
    return waits ? std::optional<int>(VRKS_DEV_STATUS_LOCKED) : modem.status;
}

int attemptsOf(const SimulatedModem& modem) {
    if (modem.lock == VRKS_LOCK_PIN) return modem.pinAttempts.value_or(-1);
    return modem.lock == VRKS_LOCK_PUK ? modem.pukAttempts.value_or(-1) : -1;
}

// What only a modem that is ready can tell, with a card.
void addNetwork(ModemInfo* info, const SimulatedModem& modem) {
    info->registration = modem.registration.value_or(VRKS_REGISTRATION_UNKNOWN);
    info->ownNumber = textOf(modem.ownNumber);
    info->cardOperator = textOf(modem.cardOperator);
    info->gid1 = textOf(modem.gid1);
    if (info->registration != VRKS_REGISTRATION_HOME && info->registration != VRKS_REGISTRATION_ROAMING) return;
    info->generation = modem.generation.value_or(0);
    info->signal = modem.signal.value_or(-1);
    info->operatorName = textOf(modem.operatorName);
    info->operatorCode = textOf(modem.operatorCode);
    info->technology = textOf(modem.technology);
}

// The queries of the modem in use.
void addModem(Picture* picture, const SimulatedModem& modem) {
    picture->devStatus = statusOf(modem);
    picture->customizeName = modem.customizeName;
    picture->productType = modem.productType;
    if (!isLocked(modem)) picture->imsi = modem.imsi;
    if (modem.multiMode && modem.cardMode)
        picture->multiModeStatus =
            MultiModeStatus{static_cast<unsigned char>(*modem.multiMode), static_cast<unsigned int>(*modem.cardMode)};
    if (modem.systemMode && modem.systemSubMode)
        picture->systemMode = SystemMode{*modem.systemMode, *modem.systemSubMode};
    if (modem.user && modem.password) picture->dataServiceProfile = DataServiceProfile{*modem.user, *modem.password};
}

bool isAccepted(const std::optional<std::string>& accepted, const std::string& given) {
    return !accepted || *accepted == given;
}

}  // namespace

SimulatedBackend::SimulatedBackend(EventSink& events)
    : m_Settings(SimulatedSettings::fromEnvironment()), m_Picture(events) {
    m_Picture.replace(makePicture());
}

bool SimulatedBackend::set(const char* name, const char* value) {
    const Lock lock(m_Mutex);
    if (!m_Settings.set(name, value)) return false;
    m_Picture.replace(makePicture());
    return true;
}

bool SimulatedBackend::change(const char* name, const char* value) {
    const Lock lock(m_Mutex);
    if (!m_Settings.set(name, value)) return false;
    endWithoutModem();
    publish();
    return true;
}

bool SimulatedBackend::drop(int failure) {
    const Lock lock(m_Mutex);
    if (m_Connection.state == VRKS_CONNECTION_DOWN) return false;
    end(failure);
    return true;
}

std::vector<NamedValue> SimulatedBackend::values() {
    const Lock lock(m_Mutex);
    return m_Settings.values();
}

void SimulatedBackend::reset() {
    const Lock lock(m_Mutex);
    ++m_DialRun;
    ++m_UnlockRun;
    ++m_UssdRun;
    m_Settings = SimulatedSettings::fromEnvironment();
    m_Unlockings = {};
    m_Wanted.clear();
    m_InUse.clear();
    m_Connection = {};
    m_LastTraffic = {};
    m_Dialled.reset();
    m_Ussd = {};
    m_Picture.replace(makePicture());
}

std::shared_ptr<const DialRequest> SimulatedBackend::dialled() {
    const Lock lock(m_Mutex);
    return m_Dialled;
}

Traffic SimulatedBackend::traffic() {
    const Lock lock(m_Mutex);
    return trafficNow();
}

bool SimulatedBackend::selectModem(const std::string& id) {
    const Lock lock(m_Mutex);
    m_Wanted = id;
    endWithoutModem();
    publish();
    return true;
}

ModemInfo SimulatedBackend::infoOf(std::size_t index) const {
    const SimulatedModem& modem = m_Settings.modems[index];
    ModemInfo info;
    info.id = Keys[index];
    info.status = statusOf(modem).value_or(VRKS_DEV_STATUS_FAILED);
    info.card = modem.imsi ? VRKS_CARD_PRESENT : VRKS_CARD_NONE;
    info.lock = modem.lock.value_or(VRKS_LOCK_NONE);
    info.attempts = attemptsOf(modem);
    info.unlockResult = m_Unlockings[index].result;
    info.unlockWords = m_Unlockings[index].words;
    info.dialsAsCdma = modem.productType == VRKS_PRODUCT_TYPE_CDMA;
    info.hasUssd = modem.hasUssd.value_or(0) != 0;
    info.port = textOf(modem.port);
    info.manufacturer = textOf(modem.manufacturer);
    info.model = textOf(modem.model);
    info.imei = textOf(modem.imei);
    if (info.status == VRKS_DEV_STATUS_READY && info.card == VRKS_CARD_PRESENT) addNetwork(&info, modem);
    return info;
}

Picture SimulatedBackend::makePicture() {
    Picture picture;
    for (std::size_t i = 0; i < m_Settings.modems.size(); ++i) {
        const SimulatedModem& modem = m_Settings.modems[i];
        if (!isPresent(modem)) continue;
        picture.modems.push_back(infoOf(i));
        if (modem.imsi && !isLocked(modem)) picture.cards[Keys[i]] = *modem.imsi;
    }
    m_InUse = chooseModem(picture.modems, m_Wanted, m_InUse);
    picture.modemInUse = m_InUse;
    const std::size_t index = indexOf(m_InUse);
    if (index == NoModem) {
        picture.devStatus = VRKS_DEV_STATUS_NO_MODEM;
    } else {
        addModem(&picture, m_Settings.modems[index]);
    }
    picture.connection = m_Connection;
    if (m_Connection.state == VRKS_CONNECTION_DOWN) picture.connection.usedBy = textOf(m_Settings.network.usedBy);
    picture.ussd = m_Ussd;
    return picture;
}

template <class Task>
void SimulatedBackend::later(int ms, unsigned* run, Task task) {
    m_Later.run(milliseconds(ms), [this, run, own = *run, task] {
        const Lock lock(m_Mutex);
        if (*run == own) task();
    });
}

bool SimulatedBackend::enterPin(const std::string& pin) {
    const Lock lock(m_Mutex);
    return beginUnlocking(VRKS_LOCK_PIN, [pin](SimulatedModem* modem) { return isPinRight(modem, pin); });
}

bool SimulatedBackend::enterPuk(const std::string& puk, const std::string& newPin) {
    const Lock lock(m_Mutex);
    return beginUnlocking(VRKS_LOCK_PUK,
                          [puk, newPin](SimulatedModem* modem) { return isPukRight(modem, puk, newPin); });
}

template <class Check>
bool SimulatedBackend::beginUnlocking(int lock, Check check) {
    const std::size_t index = indexOf(m_InUse);
    if (index == NoModem || m_Settings.modems[index].lock != lock) return false;
    if (m_Unlockings[index].result == VRKS_UNLOCK_PENDING) return false;
    m_Unlockings[index] = {VRKS_UNLOCK_PENDING, {}};
    publish();
    later(m_Settings.network.unlockMs.value_or(0), &m_UnlockRun, [this, index, check] {
        m_Unlockings[index] = unlock(&m_Settings.modems[index], check);
        publish();
    });
    return true;
}

template <class Check>
SimulatedBackend::Unlocking SimulatedBackend::unlock(SimulatedModem* modem, Check check) {
    switch (m_Settings.network.unlock.value_or(UnlockChecks)) {
        case UnlockNotAllowed:
            return {VRKS_UNLOCK_NOT_ALLOWED, {}};
        case UnlockOther:
            return {VRKS_UNLOCK_OTHER, "SIM failure"};
        default:
            break;
    }
    if (!check(modem)) return {VRKS_UNLOCK_WRONG, {}};
    modem->lock = VRKS_LOCK_NONE;
    modem->pinAttempts = AllPinAttempts;
    modem->pukAttempts = AllPukAttempts;
    return {VRKS_UNLOCK_DONE, {}};
}

bool SimulatedBackend::isPinRight(SimulatedModem* modem, const std::string& pin) {
    if (modem->pin == pin) return true;
    modem->pinAttempts = modem->pinAttempts.value_or(1) - 1;
    if (*modem->pinAttempts <= 0) modem->lock = VRKS_LOCK_PUK;
    return false;
}

// After the last wrong PUK nothing opens the card any more.
bool SimulatedBackend::isPukRight(SimulatedModem* modem, const std::string& puk, const std::string& newPin) {
    if (modem->puk == puk) {
        modem->pin = newPin;
        return true;
    }
    modem->pukAttempts = modem->pukAttempts.value_or(1) - 1;
    if (*modem->pukAttempts <= 0) modem->lock = VRKS_LOCK_OTHER;
    return false;
}

bool SimulatedBackend::dial(const DialRequest& request) {
    const Lock lock(m_Mutex);
    if (m_Connection.state != VRKS_CONNECTION_DOWN) return false;
    const Refusal refusal = refusalOf(request, *m_Picture.get());
    m_Connection = {};
    m_Connection.name = request.name;
    m_Connection.failure = refusal.failure;
    m_Connection.words = refusal.words;
    if (!refusal.failure) {
        m_Connection.state = VRKS_CONNECTION_DIALLING;
        m_Connection.step = VRKS_STEP_PREPARING;
        m_Connection.isOwn = true;
        m_Connection.modem = m_InUse;
        m_Connection.endsWithProcess = true;  // whatever was asked for: the modem itself does
        m_Dialled = std::make_shared<const DialRequest>(request);
        m_LastTraffic = {};
        scheduleSteps();
    }
    publish();
    return !refusal.failure;
}

void SimulatedBackend::scheduleSteps() {
    ++m_DialRun;
    const int ms = m_Settings.network.dialMs.value_or(0);
    constexpr int Count = sizeof Steps / sizeof *Steps;
    for (int i = 0; i < Count; ++i) {
        later(ms / (Count + 1) * (i + 1), &m_DialRun, [this, step = Steps[i]] {
            m_Connection.step = step;
            publish();
        });
    }
    later(ms, &m_DialRun, [this] { finishDialling(); });
}

int SimulatedBackend::outcome() const {
    const SimulatedNetwork& network = m_Settings.network;
    if (const int failure = network.dial.value_or(VRKS_FAILURE_NONE)) return failure;
    if (!isAccepted(network.acceptedApn, m_Dialled->apn)) return VRKS_FAILURE_APN;
    const bool known =
        isAccepted(network.acceptedUser, m_Dialled->user) && isAccepted(network.acceptedPassword, m_Dialled->password);
    return known ? VRKS_FAILURE_NONE : VRKS_FAILURE_AUTHENTICATION;
}

void SimulatedBackend::finishDialling() {
    if (const int failure = outcome()) {
        end(failure);
    } else {
        connect();
    }
}

void SimulatedBackend::connect() {
    m_Connection.state = VRKS_CONNECTION_UP;
    m_Connection.step = VRKS_STEP_NONE;
    m_Connection.since = std::time(nullptr);
    m_Connection.upSince = std::chrono::steady_clock::now();
    m_Connection.interfaceName = "sim0";
    m_Connection.address = "192.0.2.10";  // of the networks for examples, RFC 5737 and RFC 3849
    m_Connection.address6 = "2001:db8::10";
    m_Connection.dns = m_Dialled->dns;
    if (m_Connection.dns.empty()) m_Connection.dns = {"192.0.2.53", "198.51.100.53"};
    publish();
    if (const int ms = m_Settings.network.dropMs.value_or(0))
        later(ms, &m_DialRun, [this] { end(VRKS_FAILURE_DROPPED); });
}

bool SimulatedBackend::hangUp() {
    const Lock lock(m_Mutex);
    const int refusal = m_Settings.network.refusesHangUp.value_or(0);
    if (m_Connection.state == VRKS_CONNECTION_DOWN || refusal == 1) return false;
    if (m_Connection.state == VRKS_CONNECTION_HANGING_UP) return true;
    const bool isRefused = isUp() && refusal != 0;
    const int failure = isUp() ? VRKS_FAILURE_NONE : VRKS_FAILURE_CANCELLED;
    m_LastTraffic = trafficNow();
    m_Connection.state = VRKS_CONNECTION_HANGING_UP;
    m_Connection.step = VRKS_STEP_NONE;
    ++m_DialRun;
    publish();
    later(m_Settings.network.hangUpMs.value_or(0), &m_DialRun,
          [this, failure, isRefused] { isRefused ? refuseHangUp() : end(failure); });
    return true;
}

void SimulatedBackend::refuseHangUp() {
    m_Connection.state = VRKS_CONNECTION_UP;
    m_Connection.failure = VRKS_FAILURE_NOT_ALLOWED;
    publish();
}

void SimulatedBackend::end(int failure) {
    ++m_DialRun;
    m_LastTraffic = trafficNow();
    Connection ended;
    ended.name = m_Connection.name;
    ended.failure = failure;
    if (failure && failure != VRKS_FAILURE_CANCELLED) ended.words = textOf(m_Settings.network.words);
    m_Connection = ended;
    publish();
}

// A USSD session is one with the modem in use.
void SimulatedBackend::endSessionWithoutModem() {
    if (!isSessionOpen()) return;
    const std::string before = m_InUse;
    const Picture picture = makePicture();
    const bool hasModem = picture.modemInUse == before && picture.devStatus == VRKS_DEV_STATUS_READY;
    if (!hasModem) endUssd(VRKS_USSD_FAILURE_MODEM_GONE);
}

// A connection does not outlive its modem's being ready; which modem is in use is all the same to it.
void SimulatedBackend::endWithoutModem() {
    endSessionWithoutModem();
    if (m_Connection.state == VRKS_CONNECTION_DOWN) return;
    const SimulatedModem& modem = m_Settings.modems[indexOf(m_Connection.modem)];
    if (!isPresent(modem)) return end(VRKS_FAILURE_MODEM_GONE);
    if (statusOf(modem) != VRKS_DEV_STATUS_READY) end(VRKS_FAILURE_DROPPED);
}

Traffic SimulatedBackend::trafficNow() const {
    if (!isUp()) return m_LastTraffic;
    const auto up = std::chrono::steady_clock::now() - *m_Connection.upSince;
    const auto ms = static_cast<std::uint64_t>(std::chrono::duration_cast<milliseconds>(up).count());
    const std::uint64_t received = ms * static_cast<std::uint64_t>(m_Settings.network.rate.value_or(0)) / 1000;
    return {received, received / UpstreamShare};
}

bool SimulatedBackend::sendUssd(const std::string&) {
    const Lock lock(m_Mutex);
    const std::size_t index = indexOf(m_InUse);
    if (index == NoModem || isSessionOpen()) return false;
    const bool isPossible = m_Settings.modems[index].hasUssd.value_or(0) != 0;
    const int outcome = m_Settings.network.ussd.value_or(UssdAnswers);
    beginUssd(isPossible ? outcome : VRKS_USSD_FAILURE_NOT_SUPPORTED);
    return true;
}

bool SimulatedBackend::answerUssd(const std::string&) {
    const Lock lock(m_Mutex);
    if (m_Ussd.state != VRKS_USSD_ASKS) return false;
    beginUssd(UssdAnswers);
    return true;
}

bool SimulatedBackend::cancelUssd() {
    const Lock lock(m_Mutex);
    if (!isSessionOpen()) return false;
    endUssd(VRKS_USSD_FAILURE_CANCELLED);
    return true;
}

void SimulatedBackend::beginUssd(int outcome) {
    ++m_UssdRun;
    m_Ussd = {VRKS_USSD_SENT, VRKS_USSD_FAILURE_NONE, {}, {}};
    publish();
    later(m_Settings.network.ussdMs.value_or(0), &m_UssdRun, [this, outcome] {
        const SimulatedNetwork& network = m_Settings.network;
        if (outcome == UssdAsks) return askForReply();
        if (outcome == UssdAnswers)
            m_Ussd = {VRKS_USSD_ANSWER, 0, textOf(network.ussdText), {}};
        else
            m_Ussd = {VRKS_USSD_FAILED, outcome, {}, {}};
        publish();
    });
}

void SimulatedBackend::askForReply() {
    m_Ussd = {VRKS_USSD_ASKS, 0, textOf(m_Settings.network.ussdQuestion), {}};
    publish();
    if (const int patience = m_Settings.network.ussdPatienceMs.value_or(0))
        later(patience, &m_UssdRun, [this] { endUssd(VRKS_USSD_FAILURE_NETWORK); });
}

void SimulatedBackend::endUssd(int failure) {
    ++m_UssdRun;
    m_Ussd = {VRKS_USSD_FAILED, failure, {}, {}};
    publish();
}
