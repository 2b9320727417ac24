// SPDX-License-Identifier: MIT
// Which kind of network the modem is in, as far as plug-ins are told of it.
#ifndef ORBISDIAL_NETWORKKIND_H
#define ORBISDIAL_NETWORKKIND_H

#include <optional>

// Plug-ins read everything again when the system mode changes. A handover from one technology to the next, or a while
// without a network, is no reason for that: it comes many times a day on a train.
class NetworkKind {
public:
    // Asks the modem. True when it is in a network of another kind than before. Plug-ins take it that a modem's first
    // network is none of eHRPD.
    bool hasChanged();

private:
    enum Kind { None, Cdma, Ehrpd, Other };

    static std::optional<Kind> now();

    Kind m_Kind = None;  // of the last network; none before the modem's first
};

#endif
