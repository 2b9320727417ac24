// SPDX-License-Identifier: MIT
// What the kernel counts on a network interface.
#ifndef ORBISDIAL_INTERFACECOUNTERS_H
#define ORBISDIAL_INTERFACECOUNTERS_H

#include <map>
#include <mutex>
#include <optional>
#include <string>

#include "../Picture.h"

// Nothing when there is no such interface.
std::optional<Traffic> countersOf(const std::string& interfaceName);

// Counts one connection after the other. Every operation is safe from any thread.
class InterfaceCounters {
public:
    // Another connection is on its way, which has moved nothing yet.
    void forget();

    // A connection is about to be made: what the interfaces have counted so far is none of its own.
    void beginAnew();

    // It has this interface.
    void use(const std::string& interfaceName);

    // It is down: the last counts stay.
    void stop();

    Traffic get();

private:
    void clear();
    void read();

    std::mutex m_Mutex;  // guards what follows
    std::map<std::string, Traffic> m_Before;
    std::string m_Interface;
    Traffic m_Last;
};

#endif
