// SPDX-License-Identifier: MIT
// Unlocks the card of the modem in use.
#ifndef ORBISDIAL_CARDUNLOCKING_H
#define ORBISDIAL_CARDUNLOCKING_H

#include <string>

#include "ModemWatch.h"
#include "PictureBoard.h"

class CardUnlocking {
public:
    CardUnlocking(WorkerThread& thread, ModemWatch& watch, PictureBoard& board)
        : m_Thread(thread), m_Watch(watch), m_Board(board) {}

    // As in Backend.
    bool enterPin(const std::string& pin);
    bool enterPuk(const std::string& puk, const std::string& newPin);

private:
    struct Attempt;
    using Send = std::function<void(MMSim*, GCancellable*, Attempt*)>;

    bool begin(int lock, Send send);
    void run(const std::string& modem, Send send);
    void end(const std::string& modem, int result, const std::string& words);
    static void onCard(GObject* source, GAsyncResult* result, gpointer attempt);
    static void onPin(GObject* source, GAsyncResult* result, gpointer attempt);
    static void onPuk(GObject* source, GAsyncResult* result, gpointer attempt);
    static void finish(GObject* card, Attempt* attempt, GError* error);

    WorkerThread& m_Thread;
    ModemWatch& m_Watch;
    PictureBoard& m_Board;
    Cancellation m_Cancellation;
};

#endif
