// SPDX-License-Identifier: MIT
// Owners of what GLib counts and allocates.
#ifndef ORBISDIAL_REF_H
#define ORBISDIAL_REF_H

#include <gio/gio.h>

#include <memory>
#include <string>

struct Unref {
    template <class Object>
    void operator()(Object* object) const {
        g_object_unref(object);
    }
};

template <class Object>
using Ref = std::unique_ptr<Object, Unref>;

struct Free {
    void operator()(void* memory) const { g_free(memory); }
    void operator()(GError* error) const { g_error_free(error); }
    void operator()(GVariant* variant) const { g_variant_unref(variant); }
};

using Error = std::unique_ptr<GError, Free>;
using Variant = std::unique_ptr<GVariant, Free>;
using Text = std::unique_ptr<char, Free>;

inline std::string textOf(const char* text) { return text ? text : ""; }

// What the work has begun and not finished is given up when the object goes, and so is its answer.
class Cancellation {
public:
    Cancellation() : m_Cancellable(g_cancellable_new()) {}
    ~Cancellation() { cancel(); }
    Cancellation(const Cancellation&) = delete;
    Cancellation& operator=(const Cancellation&) = delete;

    // Safe from any thread.
    void cancel() { g_cancellable_cancel(m_Cancellable.get()); }

    // Only where nothing waits with it on another thread.
    void renew() {
        cancel();
        m_Cancellable.reset(g_cancellable_new());
    }
    GCancellable* get() const { return m_Cancellable.get(); }

private:
    Ref<GCancellable> m_Cancellable;
};

inline bool isCancelled(const Error& error) {
    return error && g_error_matches(error.get(), G_IO_ERROR, G_IO_ERROR_CANCELLED);
}

#endif
