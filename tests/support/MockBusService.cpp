#include "support/MockBusService.h"

#include <mutex>
#include <optional>
#include <stdexcept>
#include <utility>

namespace tessaro::test {

namespace {

using Message = GObjectPtr<GDBusMessage>;

std::string methodOf(const Message& call) {
    return std::string(g_dbus_message_get_interface(call.get())) + "." +
           g_dbus_message_get_member(call.get());
}

} // namespace

struct MockBusService::State {
    const Handler handler;
    std::mutex mutex{}; ///< Guards everything below.
    std::vector<std::string> calls{};
    std::optional<std::string> heldMethod{};
    std::vector<Message> held{};

    void receive(GDBusConnection* connection, const Message& call) {
        const std::lock_guard lock(mutex);
        const auto method = methodOf(call);
        GVariant* const body = g_dbus_message_get_body(call.get());
        calls.push_back(method + (body ? takeString(g_variant_print(body, FALSE)) : "()"));
        if (heldMethod && method.ends_with(*heldMethod))
            held.push_back(call);
        else
            answer(connection, call);
    }
    void answer(GDBusConnection* connection, const Message& call) {
        const auto reply = Message::adopt(g_dbus_message_new_method_reply(call.get()));
        g_dbus_message_set_body(reply.get(), g_variant_new_parsed(handler(methodOf(call)).c_str()));
        g_dbus_connection_send_message(
            connection, reply.get(), G_DBUS_SEND_MESSAGE_FLAGS_NONE, nullptr, nullptr);
    }
};

MockBusService::MockBusService(
    const std::string& busAddress, const std::string& name, Handler handler)
    : connection_(connectToBus(busAddress)), state_(new State{std::move(handler)}) {
    // The filter may still run for a moment after this object is gone.
    using Shared = std::shared_ptr<State>;
    g_dbus_connection_add_filter(
        connection_.get(),
        [](GDBusConnection* connection, GDBusMessage* message, gboolean incoming,
           gpointer data) -> GDBusMessage* {
            if (!incoming ||
                g_dbus_message_get_message_type(message) != G_DBUS_MESSAGE_TYPE_METHOD_CALL)
                return message;
            (*static_cast<Shared*>(data))->receive(connection, Message::adopt(message));
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

void MockBusService::hold(const std::string& method) {
    const std::lock_guard lock(state_->mutex);
    state_->heldMethod = method;
}

void MockBusService::answerHeld() {
    const std::lock_guard lock(state_->mutex);
    for (const auto& call : std::exchange(state_->held, {}))
        state_->answer(connection_.get(), call);
}

void MockBusService::emit(
    const char* path, const std::string& signal, const std::string& arguments) const {
    const auto dot = signal.rfind('.');
    g_dbus_connection_emit_signal(
        connection_.get(), nullptr, path, signal.substr(0, dot).c_str(),
        signal.substr(dot + 1).c_str(), g_variant_new_parsed(arguments.c_str()), nullptr);
}

std::vector<std::string> MockBusService::calls() const {
    const std::lock_guard lock(state_->mutex);
    return state_->calls;
}

} // namespace tessaro::test
