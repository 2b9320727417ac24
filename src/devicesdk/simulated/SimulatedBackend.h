// SPDX-License-Identifier: MIT
// Modems that exist only in the process's environment and memory.
#ifndef ORBISDIAL_SIMULATEDBACKEND_H
#define ORBISDIAL_SIMULATEDBACKEND_H

#include <mutex>

#include "../Backend.h"
#include "../CurrentPicture.h"
#include "Later.h"
#include "SimulatedSettings.h"

class SimulatedBackend : public Backend {
public:
    explicit SimulatedBackend(EventSink& events);

    // See vrks_simulated.h.
    bool set(const char* name, const char* value);
    bool change(const char* name, const char* value);
    bool drop(int failure);
    std::vector<NamedValue> values();
    void reset();

    // The last request that was dialled; nothing before the first.
    std::shared_ptr<const DialRequest> dialled();

    std::shared_ptr<const Picture> picture() override { return m_Picture.get(); }
    Traffic traffic() override;
    bool selectModem(const std::string& id) override;
    bool enterPin(const std::string& pin) override;
    bool enterPuk(const std::string& puk, const std::string& newPin) override;
    bool dial(const DialRequest& request) override;
    bool hangUp() override;
    bool sendUssd(const std::string& command) override;
    bool answerUssd(const std::string& answer) override;
    bool cancelUssd() override;
    void stop() override { m_Later.stop(); }

private:
    using Lock = std::lock_guard<std::mutex>;

    // What is not set but happens.
    struct Unlocking {
        int result = VRKS_UNLOCK_NONE;
        std::string words;
    };

    // All of these are called with the mutex held.
    ModemInfo infoOf(std::size_t index) const;
    Picture makePicture();
    void publish() { m_Picture.publish(makePicture()); }
    // Runs the task with the mutex held, unless the run has been counted on by then.
    template <class Task>
    void later(int ms, unsigned* run, Task task);
    template <class Check>
    bool beginUnlocking(int lock, Check check);
    template <class Check>
    Unlocking unlock(SimulatedModem* modem, Check check);
    static bool isPinRight(SimulatedModem* modem, const std::string& pin);
    static bool isPukRight(SimulatedModem* modem, const std::string& puk, const std::string& newPin);
    void scheduleSteps();
    int outcome() const;
    void finishDialling();
    void connect();
    void refuseHangUp();
    void end(int failure);
    void endWithoutModem();
    Traffic trafficNow() const;
    bool isUp() const { return m_Connection.state == VRKS_CONNECTION_UP; }
    bool isSessionOpen() const { return m_Ussd.state == VRKS_USSD_SENT || m_Ussd.state == VRKS_USSD_ASKS; }
    void beginUssd(int outcome);
    void askForReply();
    void endUssd(int failure);
    void endSessionWithoutModem();

    std::mutex m_Mutex;  // guards everything below but what guards itself
    SimulatedSettings m_Settings;
    std::array<Unlocking, 2> m_Unlockings;
    std::string m_Wanted;  // the selected modem's key; empty: automatic
    std::string m_InUse;
    Connection m_Connection;
    Traffic m_LastTraffic;
    std::shared_ptr<const DialRequest> m_Dialled;
    Ussd m_Ussd;
    // Counted on to call off what was to happen later.
    unsigned m_DialRun = 0;
    unsigned m_UnlockRun = 0;
    unsigned m_UssdRun = 0;

    Later m_Later;
    CurrentPicture m_Picture;
};

#endif
