// SPDX-License-Identifier: MIT
// The USSD session of the modem in use.
#ifndef ORBISDIAL_USSDSESSION_H
#define ORBISDIAL_USSDSESSION_H

#include <string>

#include "ModemWatch.h"
#include "PictureBoard.h"

class UssdSession {
public:
    UssdSession(WorkerThread& thread, ModemWatch& watch, PictureBoard& board)
        : m_Thread(thread), m_Watch(watch), m_Board(board) {}

    // As in Backend.
    bool send(const std::string& command);
    bool answer(const std::string& answer);
    bool cancel();

    // On the worker thread: something about the modems may have changed, perhaps what the network says unasked.
    void follow();

    // On the worker thread, which ends: so does the session.
    void stop();

private:
    struct Turn;

    // What the network said last without being asked; the service keeps it when a session ends.
    struct Unasked {
        std::string notice;    // which ends a session
        std::string question;  // which goes on with it
    };
    static Unasked unasked(MMModem3gppUssd* ussd);

    using Condition = bool (*)(const Picture&);
    using Send = std::function<void(MMModem3gppUssd*, GCancellable*, Turn*)>;

    bool begin(Condition isPossible, Send send);
    void run(const std::string& modem, unsigned turn, const Send& send);
    void runCancel(const std::string& modem, unsigned turn);
    void end(unsigned turn, const Ussd& outcome);
    void speak(const Ussd& unasked);
    MMModem3gppUssd* ussd(const std::string& modem);
    static void onInitiated(GObject* source, GAsyncResult* result, gpointer turn);
    static void onResponded(GObject* source, GAsyncResult* result, gpointer turn);
    static void onCancelled(GObject* source, GAsyncResult* result, gpointer turn);
    static void finish(GObject* ussd, Turn* turn, char* reply, GError* error);

    WorkerThread& m_Thread;
    ModemWatch& m_Watch;
    PictureBoard& m_Board;
    unsigned m_Turn = 0;  // of question and answer, counted; changed only within edits of the picture
    Unasked m_Heard;      // before the present question, or as it
    Cancellation m_Cancellation;
};

#endif
