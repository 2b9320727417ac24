// SPDX-License-Identifier: MIT
#include "SessionStart.h"

void SessionStart::ask(MMModem* modem, Answer answer) {
    m_Cancellation.renew();
    m_Answer = std::move(answer);
    mm_modem_list_bearers(modem, m_Cancellation.get(), onListed, this);
}

void SessionStart::onListed(GObject* modem, GAsyncResult* result, gpointer self) {
    GError* error = nullptr;
    GList* const bearers = mm_modem_list_bearers_finish(MM_MODEM(modem), result, &error);
    const Error failure(error);
    if (isCancelled(failure)) return;
    std::int64_t start = 0;
    for (GList* item = bearers; item; item = item->next) {
        auto* bearer = static_cast<MMBearer*>(item->data);
        MMBearerStats* const counted = mm_bearer_get_connected(bearer) ? mm_bearer_peek_stats(bearer) : nullptr;
        if (counted) start = std::int64_t(mm_bearer_stats_get_start_date(counted));
    }
    g_list_free_full(bearers, g_object_unref);
    static_cast<SessionStart*>(self)->m_Answer(start);
}
