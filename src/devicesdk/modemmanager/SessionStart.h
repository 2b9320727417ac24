// SPDX-License-Identifier: MIT
// When a modem's data session began, as ModemManager tells.
#ifndef ORBISDIAL_SESSIONSTART_H
#define ORBISDIAL_SESSIONSTART_H

#include <libmm-glib.h>

#include <cstdint>
#include <functional>

#include "Ref.h"

// Everything happens on the thread.
class SessionStart {
public:
    using Answer = std::function<void(std::int64_t start)>;  // Unix time; 0: nothing can tell

    // Of the modem's connected bearer. An answer that is still due to an earlier call never comes.
    void ask(MMModem* modem, Answer answer);

    // Begins what ask() will want for this modem, where that may be soon.
    void prepare(MMModem* modem);

    void giveUp();

private:
    void begin(MMModem* modem);
    static void onAnswered(GObject* bus, GAsyncResult* result, gpointer self);

    MMModem* m_Prepared = nullptr;  // only to be compared
    Answer m_Answer;
    unsigned m_Due = 0;        // answers
    std::int64_t m_Start = 0;  // as those that came tell
    Cancellation m_Cancellation;
};

#endif
