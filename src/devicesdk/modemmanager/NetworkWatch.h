// SPDX-License-Identifier: MIT
// NetworkManager, as far as it concerns modems.
#ifndef ORBISDIAL_NETWORKWATCH_H
#define ORBISDIAL_NETWORKWATCH_H

#include <NetworkManager.h>

#include <functional>
#include <string>

#include "DialSettings.h"
#include "Follower.h"
#include "Ref.h"

// Everything happens on the thread.
class NetworkWatch {
public:
    struct Handlers {
        std::function<void()> begun;    // once: what there is is known, or can't be
        std::function<void()> changed;  // anything; ask again
        // Of the device that is followed, before it can be seen by asking.
        std::function<void(NMDeviceState now, unsigned reason)> deviceStateChanged;
    };

    NetworkWatch(GDBusConnection* bus, Handlers handlers);
    ~NetworkWatch();
    NetworkWatch(const NetworkWatch&) = delete;
    NetworkWatch& operator=(const NetworkWatch&) = delete;

    bool hasBegun() const { return m_HasBegun; }
    // NetworkManager ended before it told what there was, and has not come again.
    bool hasBeenCut() const { return m_IsCut && !isRunning(); }
    // The switch for all of mobile broadband, which is NetworkManager's.
    bool isRadioOff() const { return isRunning() && !nm_client_wwan_get_enabled(m_Client.get()); }
    bool isRunning() const { return m_Client && nm_client_get_nm_running(m_Client.get()); }
    NMClient* client() const { return m_Client.get(); }

    // Null when NetworkManager does not have it, or not yet. By the path that the modem has at ModemManager.
    NMDevice* deviceOf(const std::string& modemPath) const;

    enum Course { Lasting, Ending };

    // One that a process of ours made, with its mark; null when there is none that takes this course.
    NMActiveConnection* markedConnection(Course course) const;

    bool has(NMActiveConnection* connection) const;
    bool has(NMDevice* device) const;

    // Tells also of their changes from now on; null for none.
    void follow(NMDevice* device);
    void follow(NMActiveConnection* connection);
    NMDevice* device() const { return m_Device.get(); }
    NMActiveConnection* connection() const { return m_Connection.get(); }

private:
    void make(GDBusConnection* bus);
    static void onMade(GObject* source, GAsyncResult* result, gpointer self);
    static void onDeviceState(NMDevice*, guint now, guint, guint reason, NetworkWatch* self);
    void changed();
    void followAddresses();

    Handlers m_Handlers;
    bool m_HasBegun = false;
    bool m_IsCut = false;
    Follower<NMClient> m_Changes;
    Follower<NMDevice> m_Device;
    Follower<NMActiveConnection> m_Connection;
    Follower<NMIPConfig> m_Ipv4;
    Follower<NMIPConfig> m_Ipv6;
    Ref<NMClient> m_Client;
    Cancellation m_Cancellation;
};

bool isEnding(NMActiveConnection* connection);

inline DialMark markOf(NMActiveConnection* connection) {
    NMRemoteConnection* profile = nm_active_connection_get_connection(connection);
    return markOf(profile ? NM_CONNECTION(profile) : nullptr);
}

#endif
