#pragma once

#include "Platform/GHandle.h"

#include <sigc++/connection.h>

#include <functional>
#include <memory>
#include <utility>

namespace tessaro {

/// A subscription that ends with its owner: a signal handler, an observer or a timer. Used on the
/// thread on which the signal is emitted.
class ScopedConnection {
public:
    ScopedConnection() = default;
    /// @param disconnect  ends the subscription; called at most once, possibly after the emitter
    ///                    is gone
    explicit ScopedConnection(std::function<void()> disconnect)
        : disconnect_(std::move(disconnect)) {}
    ScopedConnection(sigc::connection connection)
        : disconnect_([connection]() mutable { connection.disconnect(); }) {}

    ScopedConnection(ScopedConnection&& other) noexcept
        : disconnect_(std::exchange(other.disconnect_, nullptr)) {}
    ScopedConnection& operator=(ScopedConnection&& other) noexcept {
        if (this != &other) {
            disconnect();
            disconnect_ = std::exchange(other.disconnect_, nullptr);
        }
        return *this;
    }
    ~ScopedConnection() { disconnect(); }

    void disconnect() {
        if (auto end = std::exchange(disconnect_, nullptr))
            end();
    }

private:
    std::function<void()> disconnect_;
};

namespace detail {

template <typename Signature>
struct SignalTrampoline;

template <typename R, typename... Args>
struct SignalTrampoline<R(Args...)> {
    using Handler = std::function<R(Args...)>;
    // noexcept: an exception must not travel through C frames, so it ends the program here, where
    // the stack still tells whose it was.
    static R invoke(Args... args, gpointer data) noexcept {
        return (*static_cast<Handler*>(data))(args...);
    }
    static void destroy(gpointer data, GClosure*) { delete static_cast<Handler*>(data); }
};

} // namespace detail

/// Connects a C++ callable to a GObject signal for as long as the result lives.
///
/// `Signature` is the C signature without the trailing user data, emitter first:
/// `connectSignal<void(WebKitWebView*, WebKitLoadEvent)>(view, "load-changed", handler)`.
/// The emitter may die first.
template <typename Signature>
[[nodiscard]] ScopedConnection
connectSignal(gpointer emitter, const char* signal, std::function<Signature> handler) {
    using Trampoline = detail::SignalTrampoline<Signature>;
    const gulong id = g_signal_connect_data(
        emitter, signal, G_CALLBACK(&Trampoline::invoke),
        new std::function<Signature>(std::move(handler)), &Trampoline::destroy,
        static_cast<GConnectFlags>(0));
    auto weak = std::shared_ptr<GWeakRef>(new GWeakRef, [](GWeakRef* ref) {
        g_weak_ref_clear(ref);
        delete ref;
    });
    g_weak_ref_init(weak.get(), emitter);
    return ScopedConnection([weak, id] {
        const auto object =
            GObjectPtr<GObject>::adopt(static_cast<GObject*>(g_weak_ref_get(weak.get())));
        if (object && g_signal_handler_is_connected(object.get(), id))
            g_signal_handler_disconnect(object.get(), id);
    });
}

} // namespace tessaro
