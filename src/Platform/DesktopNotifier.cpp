#include "Platform/DesktopNotifier.h"

#include <algorithm>

namespace tessaro {

namespace {

constexpr const char* applicationId = "com.vandel.Tessaro";
constexpr const char* portalInterface = "org.freedesktop.portal.Notification";

using Service = GObjectPtr<GDBusProxy>;

tl::unexpected<Error> failed(const GErrorSlot& error) {
    g_dbus_error_strip_remote_error(error.get());
    return failure("Notifications", error->code, error.message());
}

/// The desktop portal for a confined package, else the notification service.
Task<Result<Service>> serviceFor(bool isConfined) {
    GErrorSlot error;
    const auto service = co_await AsyncCall(
        [&](GAsyncReadyCallback ready, gpointer data) {
            g_dbus_proxy_new_for_bus(
                G_BUS_TYPE_SESSION,
                static_cast<GDBusProxyFlags>(
                    G_DBUS_PROXY_FLAGS_DO_NOT_LOAD_PROPERTIES |
                    G_DBUS_PROXY_FLAGS_DO_NOT_AUTO_START_AT_CONSTRUCTION),
                nullptr,
                isConfined ? "org.freedesktop.portal.Desktop" : "org.freedesktop.Notifications",
                isConfined ? "/org/freedesktop/portal/desktop" : "/org/freedesktop/Notifications",
                isConfined ? portalInterface : "org.freedesktop.Notifications", nullptr, ready,
                data);
        },
        [&](GObject*, GAsyncResult* result) {
            return Service::adopt(g_dbus_proxy_new_for_bus_finish(result, error.out()));
        });
    if (!service)
        co_return failed(error);
    co_return service;
}

/// The service's answer. Takes the arguments over when they are floating.
Task<Result<GVariantPtr>> call(Service service, std::string method, GVariant* arguments) {
    GErrorSlot error;
    GVariantPtr answer = co_await AsyncCall(
        [&](GAsyncReadyCallback ready, gpointer data) {
            g_dbus_proxy_call(
                service.get(), method.c_str(), arguments, G_DBUS_CALL_FLAGS_NONE, -1, nullptr,
                ready, data);
        },
        [&](GObject*, GAsyncResult* result) {
            return GVariantPtr(g_dbus_proxy_call_finish(service.get(), result, error.out()));
        });
    if (!answer)
        co_return failed(error);
    co_return std::move(answer);
}

/// Whether the service reads markup in the text, so that plain text must be escaped.
bool readsMarkup(const Result<GVariantPtr>& capabilities) {
    if (!capabilities || !g_variant_is_of_type(capabilities->get(), G_VARIANT_TYPE("(as)")))
        return false;
    const GVariantPtr list(g_variant_get_child_value(capabilities->get(), 0));
    const char* capability = nullptr;
    for (gsize i = 0; i < g_variant_n_children(list.get()); ++i) {
        g_variant_get_child(list.get(), i, "&s", &capability);
        if (capability == std::string_view("body-markup"))
            return true;
    }
    return false;
}

GVariant*
notifyArguments(std::uint32_t replaced, const std::string& title, const std::string& body) {
    return g_variant_new_parsed(
        "('Tessaro', %u, %s, %s, %s, ['default', ''], "
        "{'desktop-entry': <%s>, 'category': <'im.received'>}, -1)",
        replaced, applicationId, title.c_str(), body.c_str(), applicationId);
}

GVariant* portalArguments(const DesktopNotification& notification) {
    return g_variant_new_parsed(
        "(%s, {'title': <%s>, 'body': <%s>, 'default-action': <'open'>})", notification.id.c_str(),
        notification.title.c_str(), notification.body.c_str());
}

} // namespace

Task<Result<void>> askForNotifications(bool isConfined) {
    const auto service = co_await serviceFor(isConfined);
    if (!service)
        co_return tl::unexpected<Error>(service.error());
    const char* method = isConfined ? "org.freedesktop.DBus.Properties.Get" : "GetCapabilities";
    GVariant* const arguments =
        isConfined ? g_variant_new("(ss)", portalInterface, "version") : nullptr;
    const auto answer = co_await call(*service, method, arguments);
    if (!answer)
        co_return tl::unexpected<Error>(answer.error());
    co_return Result<void>();
}

DesktopNotifier::DesktopNotifier(bool isConfined) : isConfined_(isConfined) {}

void DesktopNotifier::show(DesktopNotification notification, Clicked clicked) {
    auto& shown = shown_[notification.id];
    // Only the service's answer tells the identifier by which a notification can be replaced.
    const bool isReplaceable = shown && !shown->isUnderWay;
    if (shown)
        shown->isWithdrawn = true;
    shown = std::make_shared<Shown>(
        Shown{.clicked = std::move(clicked), .serverId = isReplaceable ? shown->serverId : 0});
    send(std::move(notification), shown).detach();
}

Task<void> DesktopNotifier::send(DesktopNotification notification, std::shared_ptr<Shown> shown) {
    const auto alive = lifetime_.watch();
    const auto service = co_await serviceFor(isConfined_);
    if (!alive || !service || shown->isWithdrawn)
        co_return;
    listen(*service);
    if (isConfined_) {
        co_await call(*service, "AddNotification", portalArguments(notification));
        co_return;
    }
    const auto capabilities = co_await call(*service, "GetCapabilities", nullptr);
    if (!alive || shown->isWithdrawn)
        co_return;
    std::string body = notification.body;
    if (readsMarkup(capabilities))
        body = takeString(g_markup_escape_text(body.c_str(), -1));
    const auto answer = co_await call(
        *service, "Notify", notifyArguments(shown->serverId, notification.title, body));
    shown->isUnderWay = false;
    if (!alive || !answer || !g_variant_is_of_type(answer->get(), G_VARIANT_TYPE("(u)")))
        co_return;
    g_variant_get(answer->get(), "(u)", &shown->serverId);
    if (shown->isWithdrawn)
        close(shown->serverId);
}

void DesktopNotifier::withdraw(const std::string& id) {
    const auto shown = shown_.find(id);
    if (shown == shown_.end())
        return;
    shown->second->isWithdrawn = true;
    const auto serverId = shown->second->serverId;
    shown_.erase(shown);
    if (isConfined_ && service_)
        call(service_, "RemoveNotification", g_variant_new("(s)", id.c_str())).detach();
    else if (serverId)
        close(serverId);
}

void DesktopNotifier::close(std::uint32_t serverId) {
    call(service_, "CloseNotification", g_variant_new("(u)", serverId)).detach();
}

void DesktopNotifier::listen(const GObjectPtr<GDBusProxy>& service) {
    if (service_)
        return;
    service_ = service;
    signals_ = connectSignal<void(GDBusProxy*, const char*, const char*, GVariant*)>(
        service.get(), "g-signal",
        [this](GDBusProxy*, const char*, const char* name, GVariant* arguments) {
            if (isConfined_)
                onPortalSignal(name, arguments);
            else
                onServiceSignal(name, arguments);
        });
}

void DesktopNotifier::onServiceSignal(const std::string& name, GVariant* arguments) {
    if (!g_variant_is_of_type(arguments, G_VARIANT_TYPE("(u*)")))
        return;
    std::uint32_t serverId = 0;
    const char* detail = nullptr;
    g_variant_get_child(arguments, 0, "u", &serverId);
    if (g_variant_is_of_type(arguments, G_VARIANT_TYPE("(us)")))
        g_variant_get_child(arguments, 1, "&s", &detail);
    const auto found = std::ranges::find_if(
        shown_, [&](const auto& entry) { return entry.second->serverId == serverId; });
    // The service sends its signals about every program's notifications to all programs.
    if (found == shown_.end())
        return;
    if (name == "NotificationClosed" && found->second->isUnderWay)
        found->second->serverId = 0; // What replaces it comes all the same.
    else if (name == "NotificationClosed")
        shown_.erase(found);
    else if (detail && name == "ActivationToken")
        found->second->activationToken = detail;
    else if (detail && name == "ActionInvoked")
        click(found->first);
}

void DesktopNotifier::onPortalSignal(const std::string& name, GVariant* arguments) {
    if (name != "ActionInvoked" || !g_variant_is_of_type(arguments, G_VARIANT_TYPE("(ssav)")))
        return;
    const GVariantPtr id(g_variant_get_child_value(arguments, 0));
    click(g_variant_get_string(id.get(), nullptr));
}

void DesktopNotifier::click(const std::string& id) {
    const auto shown = shown_.find(id);
    if (shown == shown_.end())
        return;
    // A copy, because the handler may withdraw the notification.
    const Shown clicked = *shown->second;
    clicked.clicked(clicked.activationToken);
}

} // namespace tessaro
