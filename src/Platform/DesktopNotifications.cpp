#include "Platform/DesktopNotifications.h"

#include <vector>

namespace tessaro {

namespace {

/// One question to a service on the session bus.
struct Question {
    const char* busName;
    const char* path;
    const char* interface;
    const char* method;
    /// The arguments in GVariant's text form.
    const char* arguments = "()";
};

std::vector<Question> questionsTo(bool confined) {
    if (confined)
        return {
            {"org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
             "org.freedesktop.DBus.Properties", "Get",
             "('org.freedesktop.portal.Notification', 'version')"}};
    constexpr const char* service = "org.freedesktop.Notifications";
    constexpr const char* path = "/org/freedesktop/Notifications";
    return {
        {service, path, service, "GetServerInformation"},
        {service, path, service, "GetCapabilities"}};
}

tl::unexpected<Error> failed(const GErrorSlot& error) {
    g_dbus_error_strip_remote_error(error.get());
    return failure("Notifications", error->code, error.message());
}

} // namespace

Task<Result<void>> askForNotifications(std::filesystem::path marker) {
    std::error_code ignored;
    const auto questions = questionsTo(std::filesystem::exists(marker, ignored));

    GErrorSlot error;
    const auto bus = co_await AsyncCall(
        [](GAsyncReadyCallback ready, gpointer data) {
            g_bus_get(G_BUS_TYPE_SESSION, nullptr, ready, data);
        },
        [&](GObject*, GAsyncResult* result) {
            return GObjectPtr<GDBusConnection>::adopt(g_bus_get_finish(result, error.out()));
        });
    if (!bus)
        co_return failed(error);
    for (const auto& question : questions) {
        const GVariantPtr answer = co_await AsyncCall(
            [&](GAsyncReadyCallback ready, gpointer data) {
                g_dbus_connection_call(
                    bus.get(), question.busName, question.path, question.interface, question.method,
                    g_variant_new_parsed(question.arguments), nullptr, G_DBUS_CALL_FLAGS_NONE, -1,
                    nullptr, ready, data);
            },
            [&](GObject*, GAsyncResult* result) {
                return GVariantPtr(g_dbus_connection_call_finish(bus.get(), result, error.out()));
            });
        if (!answer)
            co_return failed(error);
    }
    co_return Result<void>();
}

} // namespace tessaro
