// SPDX-License-Identifier: MIT
#include "ModemWatch.h"

#include <utility>

#include "ModemReading.h"
#include "Probe.h"

namespace {

// Long enough for all that the daemon tells in one go, too short to be felt.
constexpr unsigned int ChangesTogether = 10;  // milliseconds

// A modem is not asked for data profiles by each command that has ended by then.
constexpr unsigned int ProfilesMs = 300;

std::string deviceOf(MMObject* object) { return textOf(mm_modem_get_device(mm_object_peek_modem(object))); }

std::string pathOf(MMObject* object) { return textOf(mm_object_get_path(object)); }

std::optional<KnownCredentials> firstCredentials(GList* profiles) {
    for (GList* item = profiles; item; item = item->next) {
        auto* profile = static_cast<MM3gppProfile*>(item->data);
        const std::string user = textOf(mm_3gpp_profile_get_user(profile));
        if (!user.empty()) return KnownCredentials{user, textOf(mm_3gpp_profile_get_password(profile))};
    }
    return std::nullopt;
}

void freeObjects(GList* objects) { g_list_free_full(objects, g_object_unref); }

}  // namespace

// Who asked for what; the watch is gone when the answer is that the request was cancelled.
struct ModemWatch::Request {
    ModemWatch* watch;
    std::string modemPath;
    std::string cardPath;
};

ModemWatch::ModemWatch(WorkerThread& thread, std::function<void()> changed)
    : m_Thread(thread), m_Changed(std::move(changed)), m_ProfilesDue(thread) {}

void ModemWatch::unwatchName() {
    if (m_NameWatch) g_bus_unwatch_name(std::exchange(m_NameWatch, 0));
    m_Bus = nullptr;
}

void ModemWatch::giveUpChange() {
    if (!m_ChangeSource) return;
    g_source_destroy(m_ChangeSource);
    g_source_unref(std::exchange(m_ChangeSource, nullptr));
}

// A daemon that can be started is, since it finds no modem while it does not run.
void ModemWatch::busCame(GDBusConnection* bus, bool isRunning) {
    m_Bus = bus;
    const auto flags = isRunning ? G_BUS_NAME_WATCHER_FLAGS_NONE : G_BUS_NAME_WATCHER_FLAGS_AUTO_START;
    m_NameWatch = g_bus_watch_name_on_connection(bus, MM_DBUS_SERVICE, flags, onAppeared, onVanished, this, nullptr);
}

void ModemWatch::busWent() {
    unwatchName();
    dropManager();
    finish();
}

void ModemWatch::onAppeared(GDBusConnection*, const gchar*, const gchar*, gpointer self) {
    static_cast<ModemWatch*>(self)->appear();
}

// One that has the name and hangs must not take the thread with it: the constructor below waits, so it is called only
// when the daemon has shown that it answers.
void ModemWatch::appear() {
    dropManager();
    probe(m_Bus, ModemManagerDaemon, ProbeWithoutEnd, m_Cancellation.get(), [this](const GError* error) {
        if (!error) makeManager();
        finish();
    });
}

void ModemWatch::onVanished(GDBusConnection*, const gchar*, gpointer data) {
    auto* self = static_cast<ModemWatch*>(data);
    self->dropManager();
    self->finish();
}

// The asynchronous constructor would subscribe on a thread of GLib's, whose signals arrive nowhere.
void ModemWatch::makeManager() {
    m_Manager.reset(mm_manager_new_sync(m_Bus, G_DBUS_OBJECT_MANAGER_CLIENT_FLAGS_DO_NOT_AUTO_START,
                                        m_Constructing.get(), nullptr));
    if (!m_Manager) return;
    for (const char* signal : {"object-added", "object-removed", "interface-added", "interface-removed",
                               "interface-proxy-properties-changed"})
        g_signal_connect_swapped(m_Manager.get(), signal, G_CALLBACK(onChanged), this);
}

void ModemWatch::dropManager() {
    m_Cancellation.renew();
    for (auto& [path, card] : m_Cards) dropCard(&card);
    m_Cards.clear();
    forEachModem([this](MMObject* object) {
        if (auto* profiles = mm_object_peek_modem_3gpp_profile_manager(object))
            g_signal_handlers_disconnect_by_data(profiles, this);
    });
    m_Profiles.clear();
    m_ProfilesDue.stop();
    if (m_Manager) g_signal_handlers_disconnect_by_data(m_Manager.get(), this);
    m_Manager.reset();
}

void ModemWatch::dropCard(Card* card) {
    if (card->object) g_signal_handlers_disconnect_by_data(card->object.get(), this);
}

void ModemWatch::finish() {
    m_IsAnswered = true;
    refresh();
}

void ModemWatch::onChanged(ModemWatch* self) { self->changeSoon(); }

void ModemWatch::changeSoon() {
    if (m_ChangeSource) return;
    m_ChangeSource = m_Thread.invokeLater(ChangesTogether, [this] { refresh(); });
}

// An object is there before its modem interface is, and may outlive it.
template <class Function>
void ModemWatch::forEachModem(Function function) {
    if (!m_Manager) return;
    GList* objects = g_dbus_object_manager_get_objects(G_DBUS_OBJECT_MANAGER(m_Manager.get()));
    for (GList* item = objects; item; item = item->next) {
        auto* object = MM_OBJECT(item->data);
        if (mm_object_peek_modem(object) && !deviceOf(object).empty()) function(object);
    }
    freeObjects(objects);
}

void ModemWatch::refresh() {
    giveUpChange();
    std::map<std::string, Card> gone;
    gone.swap(m_Cards);
    forEachModem([&](MMObject* object) {
        if (auto kept = gone.extract(pathOf(object))) m_Cards.insert(std::move(kept));
        follow(object);
    });
    for (auto& [path, card] : gone) {
        dropCard(&card);
        m_Profiles.erase(path);
    }
    m_Changed();
}

void ModemWatch::follow(MMObject* object) {
    followCard(object, mm_object_peek_modem(object));
    followProfiles(object);
}

void ModemWatch::followCard(MMObject* object, MMModem* modem) {
    Card& card = m_Cards[pathOf(object)];
    const std::string path = cardPathOf(modem);
    if (card.path != path) {
        dropCard(&card);
        card = Card{path, nullptr, false, false};
    }
    card.isFinished = card.isFinished || path.empty();
    if (path.empty() || card.isAsked) return;
    card.isAsked = true;
    mm_modem_get_sim(modem, m_Cancellation.get(), onCard, new Request{this, pathOf(object), path});
}

void ModemWatch::onCard(GObject* source, GAsyncResult* result, gpointer data) {
    const std::unique_ptr<Request> request(static_cast<Request*>(data));
    GError* raw = nullptr;
    Ref<MMSim> object(mm_modem_get_sim_finish(MM_MODEM(source), result, &raw));
    const Error error(raw);
    if (isCancelled(error)) return;
    auto& cards = request->watch->m_Cards;
    const auto place = cards.find(request->modemPath);
    if (place == cards.end() || place->second.path != request->cardPath) return;
    place->second.isFinished = true;
    place->second.object = std::move(object);
    if (MMSim* card = place->second.object.get())
        g_signal_connect_swapped(card, "g-properties-changed", G_CALLBACK(onChanged), request->watch);
    request->watch->refresh();
}

// The daemon answers when the modem is switched on. Null also where there is nothing to ask.
MMModem3gppProfileManager* ModemWatch::unaskedProfiles(MMObject* object) {
    if (mm_modem_get_state(mm_object_peek_modem(object)) < MM_MODEM_STATE_ENABLED) return nullptr;
    return m_Profiles[pathOf(object)].isAsked ? nullptr : mm_object_peek_modem_3gpp_profile_manager(object);
}

void ModemWatch::followProfiles(MMObject* object) {
    if (!unaskedProfiles(object) || m_ProfilesDue.isRunning()) return;
    m_ProfilesDue.start(ProfilesMs, [this] { forEachModem([this](MMObject* one) { askProfiles(one); }); });
}

void ModemWatch::askProfiles(MMObject* object) {
    auto* manager = unaskedProfiles(object);
    if (!manager) return;
    m_Profiles[pathOf(object)].isAsked = true;
    g_signal_handlers_disconnect_by_data(manager, this);
    g_signal_connect_swapped(manager, "updated", G_CALLBACK(onProfilesUpdated), this);
    mm_modem_3gpp_profile_manager_list(manager, m_Cancellation.get(), onProfiles,
                                       new Request{this, pathOf(object), {}});
}

void ModemWatch::onProfiles(GObject* source, GAsyncResult* result, gpointer data) {
    const std::unique_ptr<Request> request(static_cast<Request*>(data));
    GList* profiles = nullptr;
    GError* raw = nullptr;
    mm_modem_3gpp_profile_manager_list_finish(MM_MODEM_3GPP_PROFILE_MANAGER(source), result, &profiles, &raw);
    const Error error(raw);
    const std::optional<KnownCredentials> first = firstCredentials(profiles);
    freeObjects(profiles);
    if (isCancelled(error)) return;
    const auto place = request->watch->m_Profiles.find(request->modemPath);
    if (place == request->watch->m_Profiles.end()) return;
    place->second.first = first;
    request->watch->changeSoon();
}

void ModemWatch::onProfilesUpdated(ModemWatch* self) {
    for (auto& [path, profiles] : self->m_Profiles) profiles.isAsked = false;
    self->changeSoon();
}

Known ModemWatch::known() {
    Known known;
    known.hasDaemon = m_Manager != nullptr;
    known.isComplete = m_IsAnswered;
    forEachModem([&](MMObject* object) {
        const Card& card = m_Cards[pathOf(object)];
        known.modems.push_back(readModem(object, card.object.get()));
        known.modems.back().profile = m_Profiles[pathOf(object)].first;
        known.isComplete = known.isComplete && card.isFinished;
    });
    return known;
}

template <class Condition>
MMObject* ModemWatch::find(Condition condition) {
    MMObject* found = nullptr;
    forEachModem([&](MMObject* object) {
        if (condition(object)) found = object;
    });
    return found;
}

MMObject* ModemWatch::modem(const std::string& device) {
    return find([&](MMObject* object) { return deviceOf(object) == device; });
}

MMObject* ModemWatch::modemAt(const std::string& path) {
    return find([&](MMObject* object) { return pathOf(object) == path; });
}
