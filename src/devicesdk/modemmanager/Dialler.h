// SPDX-License-Identifier: MIT
// Dials with NetworkManager, and tells of the connections that other processes of ours dialled.
//
// The machine behind it is in Dialler.cpp, what it tells in Dialler_Picture.cpp.
#ifndef ORBISDIAL_DIALLER_H
#define ORBISDIAL_DIALLER_H

#include <atomic>
#include <chrono>
#include <memory>
#include <optional>

#include "BearerErrors.h"
#include "ConnectionPart.h"
#include "HangUpSignal.h"
#include "InterfaceCounters.h"
#include "NetworkWatch.h"
#include "SessionStart.h"
#include "Timer.h"

struct Daemon;

class Dialler : public ConnectionPart {
public:
    explicit Dialler(ConnectionHost& host);

    void busCame(GDBusConnection* bus) override;
    void busWent() override;
    void modemChanged() override;
    void stop() override;

    bool dial(const DialRequest& request) override;
    bool hangUp() override;
    Traffic traffic() override;

private:
    using Clock = std::chrono::steady_clock;

    enum class Phase {
        Idle,
        Looking,     // for the device, until it can dial
        Asking,      // NetworkManager was asked to dial and has not answered
        Activating,  // there is an active connection that is not up
        Up,
        Ended  // what tells why may still be on its way
    };

    // Of the connection that this is about, until the next one.
    struct Dialled {
        DialRequest request;  // empty but for the name when another process dialled
        bool isOwn = false;
        bool endsWithProcess = false;
        bool isIpv4Only = false;
        bool isRepeated = false;  // it was ended by a radio that had just come on
        std::string stuckModem;   // its object's path when it hung in a call of before; it is looked for anew
        bool isHangingUp = false;
        bool isDeactivating = false;   // NetworkManager was asked to end it
        Failure refusal{};             // why it did not
        bool isAnswerMissing = false;  // whether it does
        bool wasUp = false;
        bool wasInDoubt = false;        // whether the radio was switched off
        bool wasRemovalLikely = false;  // and was waited for
        std::int64_t since = 0;
        std::optional<Clock::time_point> upSince;
        Clock::time_point endedAt;                  // or began to end
        std::optional<Clock::time_point> hungUpAt;  // by another process of ours
        bool isHangUpUnheard = false;               // by NetworkManager, which hangs
        std::optional<DialStamp> stamp;             // of another process that dialled
        DialStamp askedAt;                          // by this one
        bool isStartAsked = false;                  // since when that one is up
        Ending ending;
    };

    // Steps of the machine, all on the thread.
    void begin(const DialRequest& request);
    void watchNetwork();
    void update();
    void updateSoon();
    void followDevice();
    void followModem();
    void observe();
    void adopt(NMActiveConnection* connection);
    void adoptEnding();
    void tellCut();
    void look();
    void awaitRadio();
    bool isRadioSettling();
    void ask();
    static void onAsked(GObject* source, GAsyncResult* result, gpointer self);
    void asked(NMActiveConnection* connection, const Error& error);
    void watch();
    void comeUp();
    void askStart();
    void started(std::int64_t sessionStart);
    void tellKnown();
    void forgetBus();
    void end();
    void hungUpElsewhere(const std::string& connection);
    void awaitHungUp(const std::string& connection);
    void tellToStayDown();
    void stayDown();
    void giveBack();
    bool isAnswerDue() const;
    void deactivate();
    void stopWaiting();
    bool isUnderWay() const { return m_Phase == Phase::Asking || m_Phase == Phase::Activating; }
    void takePulse();
    void require(const Daemon& daemon, WorkerThread::Work answers, WorkerThread::Work hangs);
    void giveUpModem();
    void giveUpNetwork();
    void giveUpConnection();
    bool isGivenUp(NMActiveConnection* connection) const;
    void takeBack(NMActiveConnection* connection);
    void keepInSight(const Error& error);
    static void onTakenBack(GObject* source, GAsyncResult* result, gpointer self);
    static void onDeactivated(GObject* source, GAsyncResult* result, gpointer self);
    void deviceStateChanged(NMDeviceState now, unsigned reason);
    void waitForReason();
    void conclude();
    bool wasHungUpLate() const;
    bool wasHungUpElsewhere() const;
    bool isRadioInDoubt();
    bool isRemovalLikely();
    bool isDeviceGone() const { return !m_Watch->has(m_Watch->device()); }
    bool canRevive() const;
    void revive();
    void inhibit(bool isInhibited, GAsyncReadyCallback answered);
    static void onInhibited(GObject* source, GAsyncResult* result, gpointer self);
    static void onReleased(GObject* source, GAsyncResult* result, gpointer self);
    bool isAwaitingRevived() const;
    bool isWorthRepeating();
    Failure seenFailure() const;
    void fail(const Failure& failure);
    void finish(Failure failure);

    // What the picture shows.
    Connection described() const;
    void describeLink(Connection& connection) const;
    int step() const;
    bool isHangingUp() const { return m_Dialled.isHangingUp || m_WaitingHangUps > 0; }
    void publish();
    void publishUser(const std::string& usedBy);
    std::string modemPath() const;  // of the connection, or else of the modem in use
    std::string modemKey() const;

    ConnectionHost& m_Host;
    std::unique_ptr<NetworkWatch> m_Watch;
    std::unique_ptr<BearerErrors> m_BearerErrors;
    std::unique_ptr<HangUpSignal> m_HangUpSignal;
    SessionStart m_SessionStart;
    Ref<GDBusConnection> m_Bus;
    std::string m_Revived;  // the key of the modem that is looked for anew
    Follower<MMModem> m_Modem;
    Phase m_Phase = Phase::Idle;
    Dialled m_Dialled;
    Clock::time_point m_RadioOnAt;  // mobile broadband was switched on, or the computer woke up
    InterfaceCounters m_Counters;
    Timer m_Patience;
    Timer m_Settling;
    Timer m_Beginning;
    Timer m_Pulse;
    std::optional<DialStamp> m_GivenUp;  // of a connection that is over for us
    bool m_IsTakenBack = false;          // NetworkManager was asked to end that one
    bool m_IsUpdateDue = false;
    Cancellation m_Cancellation;
    std::atomic<int> m_WaitingDials{0};    // accepted, and not yet seen by the machine
    std::atomic<int> m_WaitingHangUps{0};  // in the same way
};

#endif
