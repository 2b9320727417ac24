// SPDX-License-Identifier: MIT
// Watches ModemManager, its modems and their cards.
#ifndef ORBISDIAL_MODEMWATCH_H
#define ORBISDIAL_MODEMWATCH_H

#include <libmm-glib.h>

#include <functional>
#include <map>
#include <string>

#include "Known.h"
#include "Ref.h"
#include "Timer.h"
#include "WorkerThread.h"

// Everything but its making and what says so happens on the thread.
class ModemWatch {
public:
    // Runs the function when something of what is known may have changed; many changes at once are one.
    ModemWatch(WorkerThread& thread, std::function<void()> changed);
    ModemWatch(const ModemWatch&) = delete;
    ModemWatch& operator=(const ModemWatch&) = delete;

    // A daemon that does not run is started where it can be.
    void busCame(GDBusConnection* bus, bool isRunning);
    void busWent();

    // From another thread: ends what the thread may be waiting for, so that it can be stopped.
    void interrupt() { m_Constructing.cancel(); }

    // Looks now for what has changed, where that would come a moment later.
    void refresh();

    Known known();

    // Null when there is no such modem. Whoever keeps it refs it.
    MMObject* modem(const std::string& device);
    MMObject* modemAt(const std::string& path);

private:
    // One card's object, asked for once.
    struct Card {
        std::string path;
        Ref<MMSim> object;
        bool isAsked = false;
        bool isFinished = false;  // it came, or can't be had
    };

    // Data profiles, asked for soon after the modem is there, and when they change.
    struct Profiles {
        std::optional<KnownCredentials> first;
        bool isAsked = false;
    };

    struct Request;

    static void onAppeared(GDBusConnection* bus, const gchar* name, const gchar* owner, gpointer self);
    static void onVanished(GDBusConnection* bus, const gchar* name, gpointer self);
    static void onCard(GObject* source, GAsyncResult* result, gpointer request);
    static void onProfiles(GObject* source, GAsyncResult* result, gpointer request);
    static void onProfilesUpdated(ModemWatch* self);
    static void onChanged(ModemWatch* self);

    void appear();
    void makeManager();
    void dropManager();
    void dropCard(Card* card);
    void unwatchName();
    void finish();
    void giveUpChange();
    void follow(MMObject* object);
    void followCard(MMObject* object, MMModem* modem);
    void followProfiles(MMObject* object);
    void askProfiles(MMObject* object);
    MMModem3gppProfileManager* unaskedProfiles(MMObject* object);
    void changeSoon();

    template <class Function>
    void forEachModem(Function function);

    template <class Condition>
    MMObject* find(Condition condition);

    WorkerThread& m_Thread;
    std::function<void()> m_Changed;
    GDBusConnection* m_Bus = nullptr;
    guint m_NameWatch = 0;
    Ref<MMManager> m_Manager;
    std::map<std::string, Card> m_Cards;         // by the modem's path
    std::map<std::string, Profiles> m_Profiles;  // by the modem's path
    Timer m_ProfilesDue;
    GSource* m_ChangeSource = nullptr;
    bool m_IsAnswered = false;  // there is no daemon, or it has told its modems
    Cancellation m_Cancellation;
    Cancellation m_Constructing;
};

#endif
