// SPDX-License-Identifier: MIT
// Hears of the changes of one object at a time.
#ifndef ORBISDIAL_FOLLOWER_H
#define ORBISDIAL_FOLLOWER_H

#include <functional>
#include <utility>

#include "Ref.h"

template <class Object>
class Follower {
public:
    explicit Follower(std::function<void()> changed) : m_Changed(std::move(changed)) {}
    ~Follower() { follow(nullptr); }
    Follower(const Follower&) = delete;
    Follower& operator=(const Follower&) = delete;

    // Null for none. Answers whether it is another one than before.
    bool follow(Object* object) {
        if (object == m_Object.get()) return false;
        if (m_Object) g_signal_handlers_disconnect_by_data(m_Object.get(), this);
        m_Object.reset(object ? static_cast<Object*>(g_object_ref(object)) : nullptr);
        if (object) g_signal_connect_swapped(object, "notify", G_CALLBACK(onChanged), this);
        return true;
    }

    Object* get() const { return m_Object.get(); }

private:
    static void onChanged(Follower* self) { self->m_Changed(); }

    std::function<void()> m_Changed;
    Ref<Object> m_Object;
};

#endif
