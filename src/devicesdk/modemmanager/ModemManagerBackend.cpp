// SPDX-License-Identifier: MIT
#include "ModemManagerBackend.h"

#include "Dialler.h"
#include "ModemPicture.h"

ModemManagerBackend::ModemManagerBackend(EventSink& events, Condition condition)
    : m_Board(events),
      m_Watch(m_Thread, [this] { describe(); }),
      m_Unlocking(m_Thread, m_Watch, m_Board),
      m_Ussd(m_Thread, m_Watch, m_Board),
      m_Bus(m_Thread, {[this](GDBusConnection* bus) { connected(bus); }, [this] { disconnected(); }}),
      m_Offer(condition == WhenOffered ? new ServiceOffer(MM_DBUS_SERVICE) : nullptr),
      m_Connecting(new Dialler(*this)) {
    m_Thread.start();
    m_Thread.invoke([this] { m_Bus.connect(); });
}

// NetworkManager first: it takes longest to answer, and does so while ModemManager's modems are read, which nothing
// else on the thread can happen beside. Until somebody offers ModemManager nothing is asked of it.
void ModemManagerBackend::connected(GDBusConnection* bus) {
    m_Connecting->busCame(bus);
    if (!m_Offer || m_IsOffered) return m_Watch.busCame(bus, false);
    m_Offer->ask(bus, [this, bus](bool isRunning) {
        m_IsOffered = true;
        m_Watch.busCame(bus, isRunning);
    });
}

void ModemManagerBackend::disconnected() {
    if (m_Offer) m_Offer->deny();
    m_Connecting->busWent();
    m_Watch.busWent();
}

std::string ModemManagerBackend::wanted() {
    const std::lock_guard lock(m_Mutex);
    return m_Wanted;
}

// The first picture has the cards that are there; afterwards a modem whose card is being read is one that starts.
void ModemManagerBackend::describe() {
    const Known known = m_Watch.known();
    if (!known.isComplete && !m_IsDescribed) return;
    m_IsDescribed = true;
    m_Board.change([&, wanted = wanted()](Picture& picture) {
        picture = pictureOf(known, wanted, picture);
        return true;
    });
    m_Ussd.follow();
    tellModemInUse();
}

MMObject* ModemManagerBackend::modemInUse() {
    const std::shared_ptr<const Picture> picture = m_Board.get();
    return picture ? m_Watch.modem(picture->modemInUse) : nullptr;
}

void ModemManagerBackend::tellModemInUse() {
    MMObject* object = modemInUse();
    const std::string path = textOf(object ? mm_object_get_path(object) : nullptr);
    if (path == m_PathInUse) return;
    m_PathInUse = path;
    m_Connecting->modemChanged();
}

bool ModemManagerBackend::selectModem(const std::string& id) {
    {
        const std::lock_guard lock(m_Mutex);
        m_Wanted = id;
    }
    m_Thread.invoke([this] { describe(); });
    return true;
}

bool ModemManagerBackend::enterPuk(const std::string& puk, const std::string& newPin) {
    return m_Unlocking.enterPuk(puk, newPin);
}

bool ModemManagerBackend::dial(const DialRequest& request) { return m_Connecting->dial(request); }

bool ModemManagerBackend::hangUp() { return m_Connecting->hangUp(); }

Traffic ModemManagerBackend::traffic() { return m_Connecting->traffic(); }

// What there is on the bus and in memory ends with the process; to take it apart would take a command as long as to ask
// for it.
void ModemManagerBackend::stop() {
    m_Bus.interrupt();
    m_Watch.interrupt();
    m_Thread.stop([this] {
        m_Ussd.stop();
        m_Connecting->stop();
        if (m_Offer && !m_IsOffered) m_Bus.drop();
    });
}
