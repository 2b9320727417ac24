// SPDX-License-Identifier: MIT
#include "Dialler.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <ctime>
#include <utility>

#include "Probe.h"

namespace {

constexpr unsigned LookingMs = 5000;    // a modem reaches NetworkManager some tenths of a second after ModemManager
constexpr unsigned AnswerMs = 3000;     // of a modem that dials
constexpr unsigned EndingMs = 3000;     // of a connection, in NetworkManager's hands
constexpr unsigned RadioMs = 1000;      // until a switch of it is known
constexpr unsigned StartMs = 300;       // until it is known since when a connection is up
constexpr unsigned RevivingMs = 45000;  // of a modem that is looked for anew
constexpr auto HangUpTime = std::chrono::seconds(10);  // that a connection ends in once somebody hung up
constexpr unsigned PulseMs = 3000;                     // between two looks whether the daemons still answer
constexpr int PulseAnswerMs = 10000;                   // in which it must
constexpr unsigned RemovalMs = 3000;                   // from the hanging up of a modem that goes until it is gone
constexpr unsigned SettlingMs = 100;                   // two daemons tell of one failure, in any order
const char RadioIsOff[] = "Mobile broadband is switched off";
const char ModemHangs[] = "ModemManager does not answer";
constexpr auto RadioSettling = std::chrono::seconds(1);  // a radio that came on may be switched once more in this time

// Whose connection it is to be. Root needs no permission, and may have no session, without which a connection with an
// owner would not work.
std::string ownerName() {
    const uid_t user = ::geteuid();
    passwd entry;
    passwd* found = nullptr;
    char buffer[4096];
    if (user == 0 || ::getpwuid_r(user, &entry, buffer, sizeof buffer, &found) != 0 || !found) return {};
    return entry.pw_name;
}

void wipe(std::string& text) {
    ::explicit_bzero(text.data(), text.size());
    text.clear();
}

// A modem with a network interface takes a call back at any time; one that dials over a serial port does not.
bool dialsOverSerialPort(MMModem* modem) {
    const MMModemPortInfo* ports = nullptr;
    guint count = 0;
    return mm_modem_peek_ports(modem, &ports, &count) &&
           std::none_of(ports, ports + count, [](const auto& port) { return port.type == MM_MODEM_PORT_TYPE_NET; });
}

bool isTimeOver(const GError* error) { return g_error_matches(error, G_IO_ERROR, G_IO_ERROR_TIMED_OUT); }

bool isReadyToDial(NMDevice* device) { return device && nm_device_get_state(device) == NM_DEVICE_STATE_DISCONNECTED; }

}  // namespace

Dialler::Dialler(ConnectionHost& host)
    : m_Host(host),
      m_Modem([this] { updateSoon(); }),
      m_Patience(host.thread()),
      m_Settling(host.thread()),
      m_Beginning(host.thread()),
      m_Pulse(host.thread()) {}

void Dialler::busCame(GDBusConnection* bus) {
    m_Bus.reset(static_cast<GDBusConnection*>(g_object_ref(bus)));
    m_BearerErrors = std::make_unique<BearerErrors>(bus);
    m_HangUpSignal =
        std::make_unique<HangUpSignal>(bus, [this](const std::string& connection) { hungUpElsewhere(connection); });
    watchNetwork();
}

void Dialler::watchNetwork() {
    const auto begun = [this] {
        if (m_Phase == Phase::Idle) m_Watch->hasBeenCut() ? tellCut() : adoptEnding();
        update();
        const bool isStartAwaited = m_Phase == Phase::Up && m_Dialled.stamp && !m_Dialled.upSince;
        isStartAwaited ? m_Beginning.start(StartMs, [this] { tellKnown(); }) : tellKnown();
    };
    m_Watch = std::make_unique<NetworkWatch>(
        m_Bus.get(),
        NetworkWatch::Handlers{begun, [this] { updateSoon(); },
                               [this](NMDeviceState now, unsigned reason) { deviceStateChanged(now, reason); }});
}

void Dialler::busWent() {
    m_Cancellation.renew();
    forgetBus();
    if (m_Phase == Phase::Asking) m_Phase = Phase::Activating;  // there will be no answer
    update();
    tellKnown();
}

void Dialler::forgetBus() {
    m_SessionStart.giveUp();
    m_Watch.reset();
    m_BearerErrors.reset();
    m_HangUpSignal.reset();
    m_Bus.reset();
}

void Dialler::tellKnown() {
    m_Beginning.stop();
    m_Host.change([](Picture& picture) { return !std::exchange(picture.isConnectionKnown, true); });
}

void Dialler::stop() { wipe(m_Dialled.request.password); }

void Dialler::modemChanged() {
    followModem();
    if (m_Modem.get() && m_Watch && !m_Watch->hasBegun()) m_SessionStart.prepare(m_Modem.get());
    updateSoon();
}

bool Dialler::dial(const DialRequest& request) {
    Refusal refusal{};
    bool isBusy = false;
    m_Host.change([&](Picture& picture) {
        isBusy = picture.connection.state != VRKS_CONNECTION_DOWN;
        if (isBusy) return false;
        refusal = refusalOf(request, picture);
        Connection connection;
        connection.name = request.name;
        connection.usedBy = picture.connection.usedBy;
        connection.failure = refusal.failure;
        connection.words = refusal.words;
        connection.isOwn = true;
        connection.endsWithProcess = request.endsWithProcess;
        if (refusal.failure == VRKS_FAILURE_NONE) {
            connection.state = VRKS_CONNECTION_DIALLING;
            connection.step = VRKS_STEP_PREPARING;
            m_Counters.forget();
            ++m_WaitingDials;
        }
        picture.connection = connection;
        picture.isConnectionKnown = true;  // what becomes of the call is
        return true;
    });
    if (isBusy || refusal.failure != VRKS_FAILURE_NONE) return false;
    m_Host.thread().invoke([this, request] { begin(request); });
    return true;
}

bool Dialler::hangUp() {
    const bool isOurs = m_Host.change([&](Picture& picture) {
        int& state = picture.connection.state;
        if (state != VRKS_CONNECTION_DIALLING && state != VRKS_CONNECTION_UP) return false;
        state = VRKS_CONNECTION_HANGING_UP;
        picture.connection.step = VRKS_STEP_NONE;
        ++m_WaitingHangUps;
        return true;
    });
    m_Host.thread().invoke([this, isOurs] { isOurs ? end() : tellToStayDown(); });
    return isOurs;
}

// There may be a process of ours that is about to dial by itself.
void Dialler::tellToStayDown() {
    if (m_Phase == Phase::Idle && m_HangUpSignal) m_HangUpSignal->send(HangUpSignal::Nothing);
}

void Dialler::hungUpElsewhere(const std::string& connection) {
    if (connection == HangUpSignal::Nothing) return stayDown();
    NMActiveConnection* active = m_Watch ? m_Watch->connection() : nullptr;
    if (!active || connection != nm_object_get_path(NM_OBJECT(active))) return;
    m_Dialled.hungUpAt = Clock::now();
    if (!std::exchange(m_Dialled.isHangUpUnheard, true)) awaitHungUp(connection);
}

// A NetworkManager that hangs does it when it answers again: it takes what it is asked one after the other.
void Dialler::awaitHungUp(const std::string& connection) {
    probe(m_Bus.get(), NetworkManagerDaemon, ProbeWithoutEnd, m_Cancellation.get(), [=](const GError*) {
        NMActiveConnection* active = m_Watch ? m_Watch->connection() : nullptr;
        if (!active || connection != nm_object_get_path(NM_OBJECT(active))) return;
        m_Dialled.isHangUpUnheard = false;
        m_Dialled.hungUpAt = Clock::now();
    });
}

// Who was to dial next takes it as the end of a connection.
void Dialler::stayDown() {
    m_Host.change([](Picture& picture) {
        Connection& connection = picture.connection;
        if (connection.state != VRKS_CONNECTION_DOWN || connection.failure == VRKS_FAILURE_HUNG_UP) return false;
        connection.failure = VRKS_FAILURE_HUNG_UP;
        connection.words.clear();
        return true;
    });
}

Traffic Dialler::traffic() { return m_Counters.get(); }

void Dialler::begin(const DialRequest& request) {
    m_Dialled = {};
    m_Dialled.request = request;
    m_Dialled.isOwn = true;
    m_Dialled.endsWithProcess = request.endsWithProcess;
    m_Phase = Phase::Looking;
    --m_WaitingDials;
    m_Patience.start(LookingMs, [this] {
        if (m_Phase != Phase::Looking) return;
        if (m_Watch && !m_Watch->hasBegun()) return fail({VRKS_FAILURE_NO_NETWORK_SERVICE, NetworkHangs});
        fail({VRKS_FAILURE_NOT_READY, "NetworkManager can't use the modem now"});
    });
    update();
}

// Changes come in swarms; one look afterwards is enough.
void Dialler::updateSoon() {
    if (m_IsUpdateDue) return;
    m_IsUpdateDue = true;
    m_Host.thread().invoke([this] { update(); });
}

void Dialler::update() {
    m_IsUpdateDue = false;
    followDevice();
    followModem();
    switch (m_Phase) {
        case Phase::Idle:
            return observe();
        case Phase::Looking:
            return look();
        case Phase::Asking:
            return publish();
        case Phase::Activating:
        case Phase::Up:
            return watch();
        case Phase::Ended:
            if (m_Dialled.wasRemovalLikely && m_Watch && isDeviceGone()) conclude();
            return;
    }
}

// A connection's own device stays followed until it is over.
void Dialler::followDevice() {
    if (!m_Watch || m_Phase > Phase::Looking) return;
    m_Watch->follow(m_Watch->deviceOf(modemPath()));
}

// And so does its modem, whichever is in use meanwhile.
void Dialler::followModem() {
    MMObject* modem = m_Host.modemAt(modemPath());
    m_Modem.follow(modem ? mm_object_peek_modem(modem) : nullptr);
}

void Dialler::observe() {
    if (m_WaitingDials > 0) return;
    NMActiveConnection* marked = m_Watch ? m_Watch->markedConnection(NetworkWatch::Lasting) : nullptr;
    if (marked && isGivenUp(marked)) return takeBack(marked);
    if (marked) return adopt(marked);
    NMDevice* device = m_Watch ? m_Watch->device() : nullptr;
    NMActiveConnection* foreign = device ? nm_device_get_active_connection(device) : nullptr;
    publishUser(foreign && m_Watch->has(foreign) && !isEnding(foreign) ? textOf(nm_active_connection_get_id(foreign))
                                                                       : std::string());
}

// Another process of ours made it.
void Dialler::adopt(NMActiveConnection* connection) {
    const DialMark mark = markOf(connection);
    m_Dialled = {};
    m_Dialled.request.name = mark.name;
    m_Dialled.endsWithProcess = mark.endsWithProcess;
    m_Dialled.stamp = mark.dialled;
    if (m_BearerErrors) m_BearerErrors->clear();
    m_Watch->follow(connection);
    const GPtrArray* devices = nm_active_connection_get_devices(connection);
    if (devices && devices->len > 0) m_Watch->follow(static_cast<NMDevice*>(devices->pdata[0]));
    m_Counters.forget();
    m_Phase = Phase::Activating;
    followModem();
    takePulse();
    watch();
}

// There may have been a connection.
void Dialler::tellCut() {
    m_Host.change([this](Picture& picture) {
        if (m_WaitingDials > 0 || picture.connection.failure != VRKS_FAILURE_NONE) return false;
        picture.connection.failure = VRKS_FAILURE_NO_NETWORK_SERVICE;
        return true;
    });
}

// NetworkManager may take a minute to end one when the modem does not answer. Who has it ended, and why, is not known.
void Dialler::adoptEnding() {
    NMActiveConnection* ending = m_Watch->markedConnection(NetworkWatch::Ending);
    if (!ending || isGivenUp(ending) || m_WaitingDials > 0) return;
    adopt(ending);
    m_Dialled.wasUp = m_Dialled.isHangingUp = m_Dialled.isDeactivating = true;
}

void Dialler::look() {
    if (!m_Watch || (m_Watch->hasBegun() && !m_Watch->isRunning())) return fail({VRKS_FAILURE_NO_NETWORK_SERVICE, {}});
    if (isAwaitingRevived()) return publish();
    if (m_Watch->isRadioOff()) return awaitRadio();
    NMDevice* device = m_Watch->device();
    NMActiveConnection* foreign = device ? nm_device_get_active_connection(device) : nullptr;
    if (foreign && m_Watch->has(foreign) && !isGivenUp(foreign) &&
        nm_device_get_state(device) > NM_DEVICE_STATE_DISCONNECTED &&
        nm_device_get_state(device) <= NM_DEVICE_STATE_ACTIVATED)
        return fail({VRKS_FAILURE_IN_USE, textOf(nm_active_connection_get_id(foreign))});
    if (isReadyToDial(device) && !isRadioSettling()) return ask();
    publish();
}

// That it was switched on just before may not be known yet.
void Dialler::awaitRadio() {
    publish();
    if (m_Settling.isRunning()) return;
    m_Settling.start(RadioMs, [this] {
        if (m_Phase != Phase::Looking || !m_Watch) return;
        m_Watch->isRadioOff() ? fail({VRKS_FAILURE_NOT_READY, RadioIsOff}) : update();
    });
}

// What is dialled now might be ended by the radio's switching.
bool Dialler::isRadioSettling() {
    const auto left = m_RadioOnAt + RadioSettling - Clock::now();
    if (left <= Clock::duration::zero()) return false;
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(left).count();
    m_Settling.start(unsigned(milliseconds) + 1, [this] { update(); });
    return true;
}

void Dialler::ask() {
    m_Patience.stop();
    m_Phase = Phase::Asking;
    m_Dialled.ending = {};
    m_BearerErrors->clear();
    m_Counters.beginAnew();
    NMDevice* device = m_Watch->device();
    const DialTarget target{
        (nm_device_modem_get_current_capabilities(NM_DEVICE_MODEM(device)) &
         (NM_DEVICE_MODEM_CAPABILITY_GSM_UMTS | NM_DEVICE_MODEM_CAPABILITY_LTE | NM_DEVICE_MODEM_CAPABILITY_5GNR)) == 0,
        m_Dialled.isIpv4Only, ownerName(), m_Dialled.askedAt = DialStamp::now()};
    const Ref<NMConnection> settings = dialSettings(m_Dialled.request, target);
    const Variant options = activationOptions(m_Dialled.request);
    nm_client_add_and_activate_connection2(m_Watch->client(), settings.get(), device, nullptr, options.get(),
                                           m_Cancellation.get(), onAsked, this);
    takePulse();
    publish();
}

void Dialler::onAsked(GObject* source, GAsyncResult* result, gpointer self) {
    GError* error = nullptr;
    const Ref<NMActiveConnection> connection(
        nm_client_add_and_activate_connection2_finish(NM_CLIENT(source), result, nullptr, &error));
    const Error failure(error);
    if (!isCancelled(failure)) static_cast<Dialler*>(self)->asked(connection.get(), failure);
}

// What failed at once is over before the answer is here: then the device knows why.
void Dialler::asked(NMActiveConnection* connection, const Error& error) {
    if (m_Phase != Phase::Asking) return;
    if (!connection) {
        const bool isOver = isHangingUp() || m_Dialled.ending.reason != NM_DEVICE_STATE_REASON_NONE;
        return isOver ? waitForReason() : fail(failureOf(error.get()));
    }
    m_Watch->follow(connection);
    m_Phase = Phase::Activating;
    if (m_Dialled.isHangingUp) giveBack();
    watch();
}

void Dialler::watch() {
    NMActiveConnection* connection = m_Watch ? m_Watch->connection() : nullptr;
    if (!connection || !m_Watch->has(connection)) return waitForReason();
    if (m_Dialled.isHangingUp && !m_Dialled.isDeactivating && !isAnswerDue()) deactivate();
    if (isEnding(connection) && !m_Patience.isRunning()) m_Patience.start(EndingMs, [this] { stopWaiting(); });
    if (m_Phase == Phase::Activating &&
        nm_active_connection_get_state(connection) == NM_ACTIVE_CONNECTION_STATE_ACTIVATED)
        comeUp();
    if (m_Phase == Phase::Up && !m_Dialled.isOwn) askStart();
    publish();
}

void Dialler::comeUp() {
    m_Phase = Phase::Up;
    m_Dialled.wasUp = true;
    wipe(m_Dialled.request.password);
    if (!m_Dialled.isOwn) return;
    m_Dialled.since = std::time(nullptr);
    m_Dialled.upSince = Clock::now();
}

// Since when another process has it the modem's data session tells; once, when the modem is known too.
void Dialler::askStart() {
    if (!m_Dialled.stamp || !m_Modem.get() || m_Dialled.isStartAsked) return;
    m_Dialled.isStartAsked = true;
    m_SessionStart.ask(m_Modem.get(), [this](std::int64_t start) { started(start); });
}

void Dialler::started(std::int64_t sessionStart) {
    if (m_Phase == Phase::Up && m_Dialled.stamp) {
        const DialStamp now = DialStamp::now();
        if (const auto seconds = secondsUp(*m_Dialled.stamp, sessionStart, now.bootTime)) {
            m_Dialled.since = now.unixTime - *seconds;
            m_Dialled.upSince = Clock::now() - std::chrono::seconds(*seconds);
        }
        publish();
    }
    if (m_Watch && m_Watch->hasBegun()) tellKnown();
}

void Dialler::end() {
    m_Dialled.isHangingUp = m_Phase != Phase::Idle;
    --m_WaitingHangUps;
    if (m_Phase == Phase::Looking) return finish({});
    if (m_Phase == Phase::Activating || m_Phase == Phase::Up) giveBack();
}

void Dialler::giveBack() {
    if (!isAnswerDue()) return deactivate();
    m_Patience.start(AnswerMs, [this] { deactivate(); });
}

// A call must not be taken back while a modem dials over its serial port. When the modem answers all the same,
// ModemManager takes the port for connected for ever after: nothing can be dialled until the modem is plugged in anew.
// And NetworkManager aborts when it learns of an answer that it no longer waits for. So the call is taken back when
// NetworkManager has the answer, or there will hardly be one. Before it is registered a modem does not dial.
bool Dialler::isAnswerDue() const {
    NMDevice* device = m_Watch ? m_Watch->device() : nullptr;
    MMModem* modem = m_Modem.get();
    return m_Phase == Phase::Activating && device && nm_device_get_state(device) <= NM_DEVICE_STATE_PREPARE && modem &&
           mm_modem_get_state(modem) >= MM_MODEM_STATE_REGISTERED && dialsOverSerialPort(modem);
}

void Dialler::deactivate() {
    m_Dialled.isDeactivating = true;
    m_Dialled.refusal = {};
    m_Patience.start(EndingMs, [this] { stopWaiting(); });
    m_Counters.get();
    m_HangUpSignal->send(nm_object_get_path(NM_OBJECT(m_Watch->connection())));
    nm_client_deactivate_connection_async(m_Watch->client(), m_Watch->connection(), m_Cancellation.get(), onDeactivated,
                                          this);
}

// NetworkManager has the device until the modem has answered, which may take a minute. Nothing will come of it, and
// without a link nothing is left of it.
void Dialler::stopWaiting() {
    NMDevice* device = m_Watch ? m_Watch->device() : nullptr;
    const bool hasLink = device && !textOf(nm_device_get_ip_iface(device)).empty();
    if (hasLink) return m_Patience.start(EndingMs, [this] { stopWaiting(); });
    m_GivenUp = m_Dialled.isOwn ? m_Dialled.askedAt : m_Dialled.stamp;
    m_IsTakenBack = true;
    waitForReason();
}

void Dialler::onDeactivated(GObject* source, GAsyncResult* result, gpointer self) {
    GError* error = nullptr;
    nm_client_deactivate_connection_finish(NM_CLIENT(source), result, &error);
    const Error failure(error);
    if (!failure || isCancelled(failure)) return;
    auto* dialler = static_cast<Dialler*>(self);
    if (dialler->m_Phase != Phase::Activating && dialler->m_Phase != Phase::Up) return dialler->keepInSight(failure);
    dialler->m_Patience.stop();
    dialler->m_Dialled.isHangingUp = false;
    dialler->m_Dialled.isDeactivating = false;
    dialler->m_Dialled.refusal = failureOf(failure.get());
    dialler->m_Dialled.isAnswerMissing = isTimeOver(failure.get());
    dialler->updateSoon();
}

// A daemon that hangs tells nothing, not even that it hangs; and NetworkManager waits minutes for ModemManager.
void Dialler::takePulse() {
    const auto lookAtModem = [this] {
        require(
            ModemManagerDaemon, [this] { takePulse(); }, [this] { giveUpModem(); });
    };
    m_Pulse.start(PulseMs, [=] { require(NetworkManagerDaemon, lookAtModem, [this] { giveUpNetwork(); }); });
}

// While a connection is on its way.
void Dialler::require(const Daemon& daemon, WorkerThread::Work answers, WorkerThread::Work hangs) {
    if (!isUnderWay() || !m_Bus) return;
    probe(m_Bus.get(), daemon, PulseAnswerMs, m_Cancellation.get(), [=](const GError* error) {
        if (!isUnderWay() || m_Pulse.isRunning()) return;
        isTimeOver(error) ? hangs() : answers();
    });
}

// Another process's connection is that one's to give up.
void Dialler::giveUpModem() {
    if (!m_Dialled.isOwn) return takePulse();
    giveUpConnection();
    fail({VRKS_FAILURE_NO_MODEM_SERVICE, ModemHangs});
}

// What there is then is asked anew.
void Dialler::giveUpNetwork() {
    m_Cancellation.renew();
    if (m_Dialled.isOwn) giveUpConnection();
    watchNetwork();
    fail({VRKS_FAILURE_NO_NETWORK_SERVICE, NetworkHangs});
}

// NetworkManager goes on with it when it can, unless it is taken back; what it has not answered yet only then.
void Dialler::giveUpConnection() {
    m_GivenUp = m_Dialled.askedAt;
    m_IsTakenBack = false;
    if (NMActiveConnection* connection = m_Watch->connection()) takeBack(connection);
}

bool Dialler::isGivenUp(NMActiveConnection* connection) const {
    return m_GivenUp && markOf(connection).dialled == m_GivenUp;
}

void Dialler::takeBack(NMActiveConnection* connection) {
    if (!std::exchange(m_IsTakenBack, true))
        nm_client_deactivate_connection_async(m_Watch->client(), connection, m_Cancellation.get(), onTakenBack, this);
}

void Dialler::onTakenBack(GObject* source, GAsyncResult* result, gpointer self) {
    GError* error = nullptr;
    nm_client_deactivate_connection_finish(NM_CLIENT(source), result, &error);
    const Error failure(error);
    if (failure && !isCancelled(failure)) static_cast<Dialler*>(self)->keepInSight(failure);
}

// A connection that was given up and can't be taken back.
void Dialler::keepInSight(const Error& error) {
    if (isTimeOver(error.get())) return;
    m_GivenUp.reset();
    updateSoon();
}

// The first reason tells; the states after it only clean up.
void Dialler::deviceStateChanged(NMDeviceState now, unsigned reason) {
    if (now == NM_DEVICE_STATE_DISCONNECTED && reason == NM_DEVICE_STATE_REASON_MODEM_AVAILABLE)
        m_RadioOnAt = Clock::now();
    const bool isEnd = now <= NM_DEVICE_STATE_DISCONNECTED || now >= NM_DEVICE_STATE_DEACTIVATING;
    if (m_Phase < Phase::Asking || !isEnd || m_Dialled.ending.reason != NM_DEVICE_STATE_REASON_NONE) return;
    m_Dialled.ending.reason = reason;
    m_Dialled.endedAt = Clock::now();
}

void Dialler::waitForReason() {
    m_Phase = Phase::Ended;
    m_Patience.stop();
    if (m_Dialled.ending.reason == NM_DEVICE_STATE_REASON_NONE) m_Dialled.endedAt = Clock::now();
    m_Counters.stop();
    m_Settling.start(SettlingMs, [this] { conclude(); });
}

void Dialler::conclude() {
    followModem();
    if (isHangingUp() || wasHungUpLate()) return finish({});
    if (wasHungUpElsewhere()) return finish({VRKS_FAILURE_HUNG_UP, {}});
    if (canRevive()) return revive();
    if (isRadioInDoubt() || isRemovalLikely()) return;
    if (!isWorthRepeating()) return finish(seenFailure());
    m_Phase = Phase::Looking;
    if (m_Watch) m_Watch->follow(static_cast<NMActiveConnection*>(nullptr));
    m_Patience.start(LookingMs, [this] {
        if (m_Phase == Phase::Looking) finish(seenFailure());
    });
    update();
}

// By this process, which has given up waiting for it.
bool Dialler::wasHungUpLate() const {
    return m_Dialled.isAnswerMissing && m_Dialled.ending.reason == NM_DEVICE_STATE_REASON_USER_REQUESTED;
}

bool Dialler::wasHungUpElsewhere() const {
    return m_Dialled.isHangUpUnheard || (m_Dialled.hungUpAt && m_Dialled.endedAt - *m_Dialled.hungUpAt < HangUpTime);
}

// A process that was killed while it dialled leaves a call that is taken back too soon, see isAnswerDue(). Then nobody
// has the modem, and yet it can't dial.
bool Dialler::canRevive() const {
    return m_Dialled.isOwn && m_Dialled.stuckModem.empty() && m_Bus && m_Modem.get() &&
           isStuck(m_BearerErrors->get()) && mm_modem_get_state(m_Modem.get()) < MM_MODEM_STATE_CONNECTED;
}

// ModemManager gives a modem up when it is asked to keep off it, and looks for it anew afterwards. Only an
// administrator may ask; others are told to plug the modem in anew.
void Dialler::revive() {
    m_Dialled.stuckModem = modemPath();
    m_Revived = modemKey();
    m_Phase = Phase::Looking;
    m_Watch->follow(static_cast<NMActiveConnection*>(nullptr));
    m_Patience.start(RevivingMs, [this] {
        if (m_Phase == Phase::Looking) finish(seenFailure());
    });
    inhibit(true, onInhibited);
    publish();
}

void Dialler::inhibit(bool isInhibited, GAsyncReadyCallback answered) {
    g_dbus_connection_call(m_Bus.get(), MM_DBUS_SERVICE, MM_DBUS_PATH, MM_DBUS_INTERFACE, "InhibitDevice",
                           g_variant_new("(sb)", m_Revived.c_str(), gboolean(isInhibited)), nullptr,
                           G_DBUS_CALL_FLAGS_NONE, -1, m_Cancellation.get(), answered, this);
}

// Also after a failure: an administrator who takes his time to agree must not leave the modem kept off.
void Dialler::onInhibited(GObject* source, GAsyncResult* result, gpointer self) {
    GError* error = nullptr;
    const Variant answer(g_dbus_connection_call_finish(G_DBUS_CONNECTION(source), result, &error));
    const Error failure(error);
    if (isCancelled(failure)) return;
    auto* dialler = static_cast<Dialler*>(self);
    dialler->inhibit(false, onReleased);
    if (failure && dialler->m_Phase == Phase::Looking) dialler->finish(dialler->seenFailure());
}

void Dialler::onReleased(GObject* source, GAsyncResult* result, gpointer) {
    const Variant ignored(g_dbus_connection_call_finish(G_DBUS_CONNECTION(source), result, nullptr));
}

// Another modem, which may be in use meanwhile, is not what was asked for.
bool Dialler::isAwaitingRevived() const {
    if (m_Dialled.stuckModem.empty()) return false;
    return modemKey() != m_Revived || modemPath() == m_Dialled.stuckModem;
}

// The device fails and becomes unavailable before NetworkManager says that it was switched off.
bool Dialler::isRadioInDoubt() {
    if (!m_Watch || !m_Watch->isRunning() || m_Watch->isRadioOff() || isDeviceGone() || m_Dialled.wasInDoubt)
        return false;
    const NMDeviceState state = nm_device_get_state(m_Watch->device());
    if (state != NM_DEVICE_STATE_UNAVAILABLE && state != NM_DEVICE_STATE_FAILED) return false;
    m_Settling.start(RadioMs, [this] { conclude(); });
    return m_Dialled.wasInDoubt = true;
}

// ModemManager hangs a modem up and switches it off before it tells that it was unplugged, a second later. Meanwhile
// it looks as if somebody had ended the connection.
bool Dialler::isRemovalLikely() {
    MMModem* modem = m_Modem.get();
    const bool isLikely = m_Dialled.ending.reason == NM_DEVICE_STATE_REASON_USER_REQUESTED && m_Watch &&
                          m_Watch->isRunning() && !m_Watch->isRadioOff() && !isDeviceGone() &&
                          !m_Dialled.wasRemovalLikely &&
                          (!modem || mm_modem_get_state(modem) <= MM_MODEM_STATE_DISABLING);
    if (!isLikely) return false;
    m_Settling.start(RemovalMs, [this] { conclude(); });
    m_Dialled.wasRemovalLikely = true;
    publish();
    return true;
}

// A radio that comes on ends what it finds, in NetworkManager's hands; and a network may refuse PPP because of one
// version of IP without a word, which looks like wrong credentials unless there are none.
bool Dialler::isWorthRepeating() {
    if (!m_Dialled.isOwn || m_Dialled.wasUp || !m_Watch || !m_Watch->isRunning()) return false;
    const unsigned reason = m_Dialled.ending.reason;
    const bool isByRadio = m_Dialled.endedAt - m_RadioOnAt < 2 * RadioSettling;
    if (reason == NM_DEVICE_STATE_REASON_USER_REQUESTED && isByRadio && !m_Dialled.isRepeated) {
        m_RadioOnAt = Clock::now();  // it still settles
        return m_Dialled.isRepeated = true;
    }
    const bool mayBeIpVersion =
        reason == NM_DEVICE_STATE_REASON_IP_CONFIG_UNAVAILABLE ||
        reason == NM_DEVICE_STATE_REASON_IP_METHOD_UNSUPPORTED ||
        ((reason == NM_DEVICE_STATE_REASON_PPP_DISCONNECT || reason == NM_DEVICE_STATE_REASON_PPP_FAILED) &&
         m_Dialled.request.user.empty() && m_Dialled.request.password.empty());
    if (!mayBeIpVersion || m_Dialled.isIpv4Only) return false;
    return m_Dialled.isIpv4Only = true;
}

Failure Dialler::seenFailure() const {
    if (!m_Watch || !m_Watch->isRunning()) return {VRKS_FAILURE_NO_NETWORK_SERVICE, {}};
    if (m_Watch->isRadioOff()) return {VRKS_FAILURE_ENDED_OUTSIDE, RadioIsOff};
    Ending ending = m_Dialled.ending;
    ending.wasUp = m_Dialled.wasUp;
    ending.bearerErrors = m_BearerErrors->get();
    ending.isDeviceGone = isDeviceGone();
    return failureOf(ending);
}

void Dialler::fail(const Failure& failure) { finish(isHangingUp() ? Failure{} : failure); }

// Without a failure: it was hung up.
void Dialler::finish(Failure failure) {
    m_Patience.stop();
    m_Settling.stop();
    m_Pulse.stop();
    m_Phase = Phase::Idle;
    if (isHangingUp() || failure.kind == VRKS_FAILURE_NONE)
        failure = {m_Dialled.wasUp ? VRKS_FAILURE_NONE : VRKS_FAILURE_CANCELLED, {}};
    wipe(m_Dialled.request.password);
    m_Host.change([&](Picture& picture) {
        Connection connection;
        connection.name = m_Dialled.request.name;
        connection.isOwn = m_Dialled.isOwn;
        connection.endsWithProcess = m_Dialled.endsWithProcess;
        connection.failure = failure.kind;
        connection.words = failure.words;
        if (failure.kind == VRKS_FAILURE_MODEM_GONE && !picture.devStatus)
            connection.failure = VRKS_FAILURE_NO_MODEM_SERVICE;
        picture.connection = connection;
        return true;
    });
    m_Dialled = {};
    if (m_Watch) m_Watch->follow(static_cast<NMActiveConnection*>(nullptr));
    updateSoon();
}
