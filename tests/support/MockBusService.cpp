#include "support/MockBusService.h"

#include <mutex>
#include <stdexcept>

namespace tessaro::test {

struct MockBusService::State {
    Handler handler;
    std::mutex mutex;
    std::vector<std::string> calls;
};

MockBusService::MockBusService(
    const std::string& busAddress, const std::string& name, Handler handler)
    : connection_(connectToBus(busAddress)), state_(std::make_shared<State>()) {
    state_->handler = std::move(handler);
    // The filter may still run for a moment after this object is gone.
    using Shared = std::shared_ptr<State>;
    g_dbus_connection_add_filter(
        connection_.get(),
        [](GDBusConnection* connection, GDBusMessage* message, gboolean incoming,
           gpointer data) -> GDBusMessage* {
            if (!incoming ||
                g_dbus_message_get_message_type(message) != G_DBUS_MESSAGE_TYPE_METHOD_CALL)
                return message;
            const auto call = GObjectPtr<GDBusMessage>::adopt(message);
            auto& state = **static_cast<Shared*>(data);
            const auto method = std::string(g_dbus_message_get_interface(message)) + "." +
                                g_dbus_message_get_member(message);
            {
                const std::lock_guard lock(state.mutex);
                GVariant* const body = g_dbus_message_get_body(message);
                state.calls.push_back(
                    method + (body ? takeString(g_variant_print(body, FALSE)) : "()"));
            }
            if (const auto reply = state.handler(method, message))
                g_dbus_connection_send_message(
                    connection, reply.get(), G_DBUS_SEND_MESSAGE_FLAGS_NONE, nullptr, nullptr);
            return nullptr;
        },
        new Shared(state_), [](gpointer data) { delete static_cast<Shared*>(data); });

    GErrorSlot error;
    const GVariantPtr owned(g_dbus_connection_call_sync(
        connection_.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
        "RequestName", g_variant_new("(su)", name.c_str(), 4U), nullptr, G_DBUS_CALL_FLAGS_NONE, -1,
        nullptr, error.out()));
    if (!owned)
        throw std::runtime_error("cannot own " + name + ": " + error.message());
}

MockBusService::~MockBusService() {
    g_dbus_connection_close_sync(connection_.get(), nullptr, nullptr);
}

MockBusService::Reply MockBusService::answer(GDBusMessage* call, GVariant* body) {
    auto reply = Reply::adopt(g_dbus_message_new_method_reply(call));
    if (body)
        g_dbus_message_set_body(reply.get(), body);
    return reply;
}

MockBusService::Reply MockBusService::answer(GDBusMessage* call, const char* body) {
    return answer(call, g_variant_new_parsed(body));
}

void MockBusService::reply(const Reply& answer) const {
    g_dbus_connection_send_message(
        connection_.get(), answer.get(), G_DBUS_SEND_MESSAGE_FLAGS_NONE, nullptr, nullptr);
}

void MockBusService::emit(
    const char* path, const std::string& signal, const char* arguments) const {
    const auto dot = signal.rfind('.');
    g_dbus_connection_emit_signal(
        connection_.get(), nullptr, path, signal.substr(0, dot).c_str(),
        signal.substr(dot + 1).c_str(), g_variant_new_parsed(arguments), nullptr);
}

std::vector<std::string> MockBusService::calls() const {
    const std::lock_guard lock(state_->mutex);
    return state_->calls;
}

} // namespace tessaro::test
