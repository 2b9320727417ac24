// SPDX-License-Identifier: MIT
#include "CardUnlocking.h"

#include "RemoteError.h"
#include "SignalBarrier.h"

namespace {

constexpr int AnswerTimeout = 60000;  // milliseconds; an unlocked modem starts anew before it answers

int resultOf(const GError* error) {
    if (!error) return VRKS_UNLOCK_DONE;
    const ErrorMeaning meanings[] = {
        {MM_MOBILE_EQUIPMENT_ERROR, MM_MOBILE_EQUIPMENT_ERROR_INCORRECT_PASSWORD, VRKS_UNLOCK_WRONG},
        {MM_MOBILE_EQUIPMENT_ERROR, MM_MOBILE_EQUIPMENT_ERROR_SIM_PUK, VRKS_UNLOCK_WRONG},  // it was the last PIN
        {MM_CORE_ERROR, MM_CORE_ERROR_UNAUTHORIZED, VRKS_UNLOCK_NOT_ALLOWED},
        {G_DBUS_ERROR, G_DBUS_ERROR_ACCESS_DENIED, VRKS_UNLOCK_NOT_ALLOWED},
    };
    return meaningOf(error, meanings, VRKS_UNLOCK_OTHER);
}

ModemInfo* find(Picture* picture, const std::string& id) { return const_cast<ModemInfo*>(picture->modem(id)); }

}  // namespace

struct CardUnlocking::Attempt {
    CardUnlocking* unlocking;
    std::string modem;
    Send send;
};

bool CardUnlocking::enterPin(const std::string& pin) {
    return begin(VRKS_LOCK_PIN, [pin](MMSim* card, GCancellable* cancellable, Attempt* attempt) {
        mm_sim_send_pin(card, pin.c_str(), cancellable, onPin, attempt);
    });
}

bool CardUnlocking::enterPuk(const std::string& puk, const std::string& newPin) {
    return begin(VRKS_LOCK_PUK, [puk, newPin](MMSim* card, GCancellable* cancellable, Attempt* attempt) {
        mm_sim_send_puk(card, puk.c_str(), newPin.c_str(), cancellable, onPuk, attempt);
    });
}

// Two at once would cost two attempts, so the second is refused here, whoever's it is.
bool CardUnlocking::begin(int lock, Send send) {
    std::string id;
    const bool isMine = m_Board.change([&](Picture& picture) {
        ModemInfo* modem = find(&picture, picture.modemInUse);
        if (!modem || modem->lock != lock || modem->unlockResult == VRKS_UNLOCK_PENDING) return false;
        modem->unlockResult = VRKS_UNLOCK_PENDING;
        modem->unlockWords.clear();
        id = modem->id;
        return true;
    });
    if (isMine) m_Thread.invoke([this, id, send = std::move(send)] { run(id, send); });
    return isMine;
}

// The watch may not have the card's object yet while the modem says already that it is locked.
void CardUnlocking::run(const std::string& modem, Send send) {
    MMObject* object = m_Watch.modem(modem);
    if (!object) return end(modem, VRKS_UNLOCK_OTHER, {});
    mm_modem_get_sim(mm_object_peek_modem(object), m_Cancellation.get(), onCard,
                     new Attempt{this, modem, std::move(send)});
}

void CardUnlocking::onCard(GObject* source, GAsyncResult* result, gpointer data) {
    std::unique_ptr<Attempt> attempt(static_cast<Attempt*>(data));
    GError* raw = nullptr;
    const Ref<MMSim> card(mm_modem_get_sim_finish(MM_MODEM(source), result, &raw));
    const Error error(raw);
    if (isCancelled(error)) return;
    CardUnlocking* self = attempt->unlocking;
    if (!card) return self->end(attempt->modem, VRKS_UNLOCK_OTHER, wordsOf(error.get()));
    g_dbus_proxy_set_default_timeout(G_DBUS_PROXY(card.get()), AnswerTimeout);
    const Send send = attempt->send;
    send(card.get(), self->m_Cancellation.get(), attempt.release());
}

void CardUnlocking::onPin(GObject* source, GAsyncResult* result, gpointer attempt) {
    GError* error = nullptr;
    mm_sim_send_pin_finish(MM_SIM(source), result, &error);
    finish(source, static_cast<Attempt*>(attempt), error);
}

void CardUnlocking::onPuk(GObject* source, GAsyncResult* result, gpointer attempt) {
    GError* error = nullptr;
    mm_sim_send_puk_finish(MM_SIM(source), result, &error);
    finish(source, static_cast<Attempt*>(attempt), error);
}

// The attempts that are left are told before the result, so that who hears of the one finds the other.
void CardUnlocking::finish(GObject* card, Attempt* data, GError* raw) {
    const std::unique_ptr<Attempt> attempt(data);
    const Error error(raw);
    if (isCancelled(error)) return;
    const int result = resultOf(error.get());
    const std::string words = error ? wordsOf(error.get()) : std::string();
    CardUnlocking* self = attempt->unlocking;
    afterSignals(G_DBUS_PROXY(card), self->m_Cancellation.get(), [self, modem = attempt->modem, result, words] {
        self->m_Watch.refresh();
        self->end(modem, result, words);
    });
}

void CardUnlocking::end(const std::string& id, int result, const std::string& words) {
    m_Board.change([&](Picture& picture) {
        ModemInfo* modem = find(&picture, id);
        if (!modem) return false;
        modem->unlockResult = result;
        modem->unlockWords = words;
        return true;
    });
}
