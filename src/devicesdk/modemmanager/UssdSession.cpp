// SPDX-License-Identifier: MIT
#include "UssdSession.h"

#include "RemoteError.h"
#include "SignalBarrier.h"

namespace {

constexpr int AnswerTimeout = 120000;  // milliseconds; networks take their time
constexpr int EndTimeout = 3000;       // of a session; a modem is asked
constexpr int LastEndTimeout = 1000;   // while the program ends
const char EndMethod[] = "Cancel";

bool isOpen(const Picture& picture) {
    return picture.ussd.state == VRKS_USSD_SENT || picture.ussd.state == VRKS_USSD_ASKS;
}

int failureOf(const GError* error) {
    const ErrorMeaning meanings[] = {
        {MM_CORE_ERROR, MM_CORE_ERROR_UNSUPPORTED, VRKS_USSD_FAILURE_NOT_SUPPORTED},
        {MM_MOBILE_EQUIPMENT_ERROR, MM_MOBILE_EQUIPMENT_ERROR_NOT_SUPPORTED, VRKS_USSD_FAILURE_NOT_SUPPORTED},
        {G_DBUS_ERROR, G_DBUS_ERROR_UNKNOWN_METHOD, VRKS_USSD_FAILURE_NOT_SUPPORTED},
        {MM_CORE_ERROR, MM_CORE_ERROR_UNAUTHORIZED, VRKS_USSD_FAILURE_NOT_ALLOWED},
        {G_DBUS_ERROR, G_DBUS_ERROR_ACCESS_DENIED, VRKS_USSD_FAILURE_NOT_ALLOWED},
        {MM_CORE_ERROR, MM_CORE_ERROR_ABORTED, VRKS_USSD_FAILURE_NETWORK},
        {MM_CORE_ERROR, MM_CORE_ERROR_CANCELLED, VRKS_USSD_FAILURE_CANCELLED},
        {MM_SERIAL_ERROR, MM_SERIAL_ERROR_RESPONSE_TIMEOUT, VRKS_USSD_FAILURE_TIMEOUT},
        {MM_MOBILE_EQUIPMENT_ERROR, MM_MOBILE_EQUIPMENT_ERROR_NETWORK_TIMEOUT, VRKS_USSD_FAILURE_TIMEOUT},
        {G_IO_ERROR, G_IO_ERROR_TIMED_OUT, VRKS_USSD_FAILURE_TIMEOUT},
        {MM_MOBILE_EQUIPMENT_ERROR, MM_MOBILE_EQUIPMENT_ERROR_NETWORK_NOT_ALLOWED, VRKS_USSD_FAILURE_NETWORK},
        {MM_MOBILE_EQUIPMENT_ERROR, MM_MOBILE_EQUIPMENT_ERROR_NO_NETWORK, VRKS_USSD_FAILURE_NETWORK},
    };
    return meaningOf(error, meanings, VRKS_USSD_FAILURE_OTHER);
}

Ussd failed(int failure, const std::string& words) { return {VRKS_USSD_FAILED, failure, {}, words}; }

bool asksBack(MMModem3gppUssd* ussd) {
    return mm_modem_3gpp_ussd_get_state(ussd) == MM_MODEM_3GPP_USSD_SESSION_STATE_USER_RESPONSE;
}

// What ended a session; none while it lasts. A modem that is switched off forgets that it had one.
int endOf(MMModem3gppUssd* ussd) {
    switch (ussd ? mm_modem_3gpp_ussd_get_state(ussd) : MM_MODEM_3GPP_USSD_SESSION_STATE_UNKNOWN) {
        case MM_MODEM_3GPP_USSD_SESSION_STATE_UNKNOWN:
            return VRKS_USSD_FAILURE_MODEM_GONE;
        case MM_MODEM_3GPP_USSD_SESSION_STATE_IDLE:
            return VRKS_USSD_FAILURE_NETWORK;
        default:
            return VRKS_USSD_FAILURE_NONE;
    }
}

Ussd said(int state, const std::string& text) { return {state, VRKS_USSD_FAILURE_NONE, text, {}}; }

}  // namespace

struct UssdSession::Turn {
    UssdSession* session;
    unsigned number;
};

bool UssdSession::send(const std::string& command) {
    const auto isPossible = [](const Picture& picture) {
        return picture.devStatus == VRKS_DEV_STATUS_READY && !isOpen(picture);
    };
    return begin(isPossible, [command](MMModem3gppUssd* ussd, GCancellable* cancellable, Turn* turn) {
        mm_modem_3gpp_ussd_initiate(ussd, command.c_str(), cancellable, onInitiated, turn);
    });
}

bool UssdSession::answer(const std::string& answer) {
    const auto isPossible = [](const Picture& picture) { return picture.ussd.state == VRKS_USSD_ASKS; };
    return begin(isPossible, [answer](MMModem3gppUssd* ussd, GCancellable* cancellable, Turn* turn) {
        mm_modem_3gpp_ussd_respond(ussd, answer.c_str(), cancellable, onResponded, turn);
    });
}

bool UssdSession::begin(Condition isPossible, Send send) {
    std::string modem;
    unsigned turn = 0;
    const bool isMine = m_Board.change([&](Picture& picture) {
        if (!isPossible(picture)) return false;
        modem = picture.modemInUse;
        turn = ++m_Turn;
        picture.ussd = {VRKS_USSD_SENT, VRKS_USSD_FAILURE_NONE, {}, {}};
        return true;
    });
    if (isMine) m_Thread.invoke([=, send = std::move(send)] { run(modem, turn, send); });
    return isMine;
}

MMModem3gppUssd* UssdSession::ussd(const std::string& modem) {
    MMObject* object = m_Watch.modem(modem);
    return object ? mm_object_peek_modem_3gpp_ussd(object) : nullptr;
}

void UssdSession::run(const std::string& modem, unsigned turn, const Send& send) {
    MMModem3gppUssd* proxy = ussd(modem);
    if (!proxy) return end(turn, failed(VRKS_USSD_FAILURE_NOT_SUPPORTED, {}));
    g_dbus_proxy_set_default_timeout(G_DBUS_PROXY(proxy), AnswerTimeout);
    send(proxy, m_Cancellation.get(), new Turn{this, turn});
}

void UssdSession::onInitiated(GObject* source, GAsyncResult* result, gpointer turn) {
    GError* error = nullptr;
    char* reply = mm_modem_3gpp_ussd_initiate_finish(MM_MODEM_3GPP_USSD(source), result, &error);
    finish(source, static_cast<Turn*>(turn), reply, error);
}

void UssdSession::onResponded(GObject* source, GAsyncResult* result, gpointer turn) {
    GError* error = nullptr;
    char* reply = mm_modem_3gpp_ussd_respond_finish(MM_MODEM_3GPP_USSD(source), result, &error);
    finish(source, static_cast<Turn*>(turn), reply, error);
}

// Whether the network asks back tells the session's state, which comes behind the reply.
void UssdSession::finish(GObject* source, Turn* data, char* rawReply, GError* rawError) {
    const std::unique_ptr<Turn> turn(data);
    const Text reply(rawReply);
    const Error error(rawError);
    if (isCancelled(error)) return;
    UssdSession* self = turn->session;
    if (error) return self->end(turn->number, failed(failureOf(error.get()), wordsOf(error.get())));
    // The modem may go before the signals come.
    const std::shared_ptr<MMModem3gppUssd> proxy(MM_MODEM_3GPP_USSD(g_object_ref(source)), Unref());
    const std::string text = textOf(reply.get());
    afterSignals(G_DBUS_PROXY(proxy.get()), self->m_Cancellation.get(), [self, proxy, number = turn->number, text] {
        self->m_Heard = unasked(proxy.get());
        self->end(number, said(asksBack(proxy.get()) ? VRKS_USSD_ASKS : VRKS_USSD_ANSWER, text));
    });
}

// What was given up meanwhile stays given up.
void UssdSession::end(unsigned turn, const Ussd& outcome) {
    m_Board.change([&](Picture& picture) {
        if (turn != m_Turn || picture.ussd.state != VRKS_USSD_SENT) return false;
        picture.ussd = outcome;
        return true;
    });
}

UssdSession::Unasked UssdSession::unasked(MMModem3gppUssd* ussd) {
    return {textOf(mm_modem_3gpp_ussd_get_network_notification(ussd)),
            textOf(mm_modem_3gpp_ussd_get_network_request(ussd))};
}

// A network does not wait for ever for the user. While it owes us an answer the answer tells of the end.
void UssdSession::follow() {
    const std::shared_ptr<const Picture> picture = m_Board.get();
    if (!picture || picture->ussd.state != VRKS_USSD_ASKS) return;
    MMModem3gppUssd* const proxy = ussd(picture->modemInUse);
    const Unasked before = m_Heard;
    if (proxy) m_Heard = unasked(proxy);
    const int ending = endOf(proxy);
    const bool hasLastWord = m_Heard.notice != before.notice;
    if (ending != VRKS_USSD_FAILURE_NONE)
        speak(hasLastWord ? said(VRKS_USSD_ANSWER, m_Heard.notice) : failed(ending, {}));
    else if (m_Heard.question != before.question)
        speak(said(VRKS_USSD_ASKS, m_Heard.question));
}

// What the user answers meanwhile goes first.
void UssdSession::speak(const Ussd& unasked) {
    m_Board.change([&](Picture& picture) {
        if (picture.ussd.state != VRKS_USSD_ASKS) return false;
        picture.ussd = unasked;
        return true;
    });
}

// It is over once the modem was told: a program that ends before leaves it open, and then nobody can begin another.
bool UssdSession::cancel() {
    std::string modem;
    unsigned turn = 0;
    const bool isMine = m_Board.change([&](Picture& picture) {
        if (!isOpen(picture)) return false;
        modem = picture.modemInUse;
        turn = ++m_Turn;
        picture.ussd = {VRKS_USSD_SENT, VRKS_USSD_FAILURE_NONE, {}, {}};
        return true;
    });
    if (isMine) m_Thread.invoke([=] { runCancel(modem, turn); });
    return isMine;
}

void UssdSession::runCancel(const std::string& modem, unsigned turn) {
    MMModem3gppUssd* proxy = ussd(modem);
    if (!proxy) return end(turn, failed(VRKS_USSD_FAILURE_CANCELLED, {}));
    g_dbus_proxy_call(G_DBUS_PROXY(proxy), EndMethod, nullptr, G_DBUS_CALL_FLAGS_NO_AUTO_START, EndTimeout,
                      m_Cancellation.get(), onCancelled, new Turn{this, turn});
}

// For us it is over, whatever the answer; a network that goes on talks to nobody.
void UssdSession::onCancelled(GObject* source, GAsyncResult* result, gpointer data) {
    const std::unique_ptr<Turn> turn(static_cast<Turn*>(data));
    GError* raw = nullptr;
    const Variant answer(g_dbus_proxy_call_finish(G_DBUS_PROXY(source), result, &raw));
    if (!isCancelled(Error(raw))) turn->session->end(turn->number, failed(VRKS_USSD_FAILURE_CANCELLED, {}));
}

void UssdSession::stop() {
    const std::shared_ptr<const Picture> picture = m_Board.get();
    if (!picture || !isOpen(*picture)) return;
    if (MMModem3gppUssd* proxy = ussd(picture->modemInUse))
        Variant(g_dbus_proxy_call_sync(G_DBUS_PROXY(proxy), EndMethod, nullptr, G_DBUS_CALL_FLAGS_NO_AUTO_START,
                                       LastEndTimeout, nullptr, nullptr));
}
