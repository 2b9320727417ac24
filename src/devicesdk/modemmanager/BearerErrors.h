// SPDX-License-Identifier: MIT
// What ModemManager's bearers said when they could not connect or were cut off: NetworkManager keeps it to itself.
#ifndef ORBISDIAL_BEARERERRORS_H
#define ORBISDIAL_BEARERERRORS_H

#include <vector>

#include "ConnectionFailure.h"
#include "Ref.h"

// Everything happens on the thread.
class BearerErrors {
public:
    explicit BearerErrors(GDBusConnection* bus);
    ~BearerErrors();
    BearerErrors(const BearerErrors&) = delete;
    BearerErrors& operator=(const BearerErrors&) = delete;

    void clear() { m_Errors.clear(); }
    const std::vector<NamedError>& get() const { return m_Errors; }

private:
    static void onChanged(GDBusConnection*, const char*, const char*, const char*, const char*, GVariant* parameters,
                          gpointer self);

    Ref<GDBusConnection> m_Bus;
    guint m_Subscription;
    std::vector<NamedError> m_Errors;
};

#endif
