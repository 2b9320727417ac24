// SPDX-License-Identifier: MIT
// Real modems, through ModemManager.
#ifndef ORBISDIAL_MODEMMANAGERBACKEND_H
#define ORBISDIAL_MODEMMANAGERBACKEND_H

#include <chrono>
#include <memory>
#include <mutex>
#include <string>

#include "../Backend.h"
#include "CardUnlocking.h"
#include "ConnectionPart.h"
#include "ModemWatch.h"
#include "PictureBoard.h"
#include "ServiceOffer.h"
#include "SystemBus.h"
#include "UssdSession.h"
#include "WorkerThread.h"

// Lives as long as the process.
class ModemManagerBackend : public Backend, private ConnectionHost {
public:
    enum Condition { Always, WhenOffered };

    explicit ModemManagerBackend(EventSink& events, Condition condition = Always);

    // Of one that was made for the case that ModemManager is offered: waits for the bus to say so, for so long at most.
    // When it does not the backend is of no use and must be stopped.
    bool awaitOffer(std::chrono::milliseconds longest) { return m_Offer->await(longest); }

    // After stop(): whether it has come all the same.
    bool isOffered() const { return m_IsOffered; }

    std::shared_ptr<const Picture> picture() override { return m_Board.get(); }
    void awaitPicture(std::chrono::steady_clock::time_point deadline) override { m_Board.await(deadline); }
    Traffic traffic() override;
    bool selectModem(const std::string& id) override;
    bool enterPin(const std::string& pin) override { return m_Unlocking.enterPin(pin); }
    bool enterPuk(const std::string& puk, const std::string& newPin) override;
    bool dial(const DialRequest& request) override;
    bool hangUp() override;
    bool sendUssd(const std::string& command) override { return m_Ussd.send(command); }
    bool answerUssd(const std::string& answer) override { return m_Ussd.answer(answer); }
    bool cancelUssd() override { return m_Ussd.cancel(); }
    void stop() override;

private:
    WorkerThread& thread() override { return m_Thread; }
    bool change(const Edit& edit) override { return m_Board.change(edit); }
    MMObject* modemInUse() override;
    MMObject* modemAt(const std::string& path) override { return m_Watch.modemAt(path); }

    void connected(GDBusConnection* bus);
    void disconnected();
    void describe();
    std::string wanted();
    void tellModemInUse();

    // What other threads use of them outlives the thread's end; what they have made on the thread ends with it.
    PictureBoard m_Board;
    WorkerThread m_Thread;
    ModemWatch m_Watch;
    CardUnlocking m_Unlocking;
    UssdSession m_Ussd;
    SystemBus m_Bus;
    std::unique_ptr<ServiceOffer> m_Offer;  // null: nobody asks for it
    std::unique_ptr<ConnectionPart> m_Connecting;

    std::mutex m_Mutex;  // guards what follows
    std::string m_Wanted;

    // Of the thread.
    bool m_IsOffered = false;    // the bus said so
    bool m_IsDescribed = false;  // there was a first complete picture
    std::string m_PathInUse;     // of the modem's object, as the connecting part was told
};

#endif
