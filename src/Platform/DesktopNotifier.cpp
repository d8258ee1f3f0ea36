#include "Platform/DesktopNotifier.h"

#include <algorithm>
#include <vector>

namespace tessaro {

namespace {

constexpr const char* applicationId = "com.vandel.Tessaro";

/// One interface of a service on the session bus.
struct Service {
    const char* name;
    const char* path;
    const char* interface;
};
constexpr Service notificationService{
    "org.freedesktop.Notifications", "/org/freedesktop/Notifications",
    "org.freedesktop.Notifications"};
constexpr Service portal{
    "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
    "org.freedesktop.portal.Notification"};

constexpr Service portalProperties{portal.name, portal.path, "org.freedesktop.DBus.Properties"};

using Bus = GObjectPtr<GDBusConnection>;

tl::unexpected<Error> failed(const GErrorSlot& error) {
    g_dbus_error_strip_remote_error(error.get());
    return failure("Notifications", error->code, error.message());
}

Task<Result<Bus>> sessionBus() {
    GErrorSlot error;
    const auto bus = co_await AsyncCall(
        [](GAsyncReadyCallback ready, gpointer data) {
            g_bus_get(G_BUS_TYPE_SESSION, nullptr, ready, data);
        },
        [&](GObject*, GAsyncResult* result) {
            return Bus::adopt(g_bus_get_finish(result, error.out()));
        });
    if (!bus)
        co_return failed(error);
    co_return bus;
}

/// The service's answer. Takes the arguments over when they are floating.
Task<Result<GVariantPtr>> call(Bus bus, Service service, std::string method, GVariant* arguments) {
    GErrorSlot error;
    GVariantPtr answer = co_await AsyncCall(
        [&](GAsyncReadyCallback ready, gpointer data) {
            g_dbus_connection_call(
                bus.get(), service.name, service.path, service.interface, method.c_str(), arguments,
                nullptr, G_DBUS_CALL_FLAGS_NONE, -1, nullptr, ready, data);
        },
        [&](GObject*, GAsyncResult* result) {
            return GVariantPtr(g_dbus_connection_call_finish(bus.get(), result, error.out()));
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
    for (gsize i = 0; i < g_variant_n_children(list.get()); ++i) {
        const GVariantPtr capability(g_variant_get_child_value(list.get(), i));
        if (g_variant_get_string(capability.get(), nullptr) == std::string_view("body-markup"))
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
    const auto bus = co_await sessionBus();
    if (!bus)
        co_return tl::unexpected<Error>(bus.error());
    const auto service = isConfined ? portalProperties : notificationService;
    const auto methods = isConfined
                             ? std::vector<const char*>{"Get"}
                             : std::vector<const char*>{"GetServerInformation", "GetCapabilities"};
    for (const char* method : methods) {
        GVariant* const arguments =
            isConfined ? g_variant_new("(ss)", portal.interface, "version") : nullptr;
        const auto answer = co_await call(*bus, service, method, arguments);
        if (!answer)
            co_return tl::unexpected<Error>(answer.error());
    }
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
    const auto bus = co_await sessionBus();
    if (!alive || !bus || shown->isWithdrawn)
        co_return;
    listen(*bus);
    if (isConfined_) {
        co_await call(*bus, portal, "AddNotification", portalArguments(notification));
        co_return;
    }
    const auto capabilities = co_await call(*bus, notificationService, "GetCapabilities", nullptr);
    if (!alive || shown->isWithdrawn)
        co_return;
    std::string body = notification.body;
    if (readsMarkup(capabilities))
        body = takeString(g_markup_escape_text(body.c_str(), -1));
    const auto answer = co_await call(
        *bus, notificationService, "Notify",
        notifyArguments(shown->serverId, notification.title, body));
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
    if (isConfined_ && bus_)
        call(bus_, portal, "RemoveNotification", g_variant_new("(s)", id.c_str())).detach();
    else if (serverId)
        close(serverId);
}

void DesktopNotifier::close(std::uint32_t serverId) {
    call(bus_, notificationService, "CloseNotification", g_variant_new("(u)", serverId)).detach();
}

void DesktopNotifier::listen(const GObjectPtr<GDBusConnection>& bus) {
    if (bus_)
        return;
    bus_ = bus;
    const Service& service = isConfined_ ? portal : notificationService;
    const guint subscription = g_dbus_connection_signal_subscribe(
        bus.get(), service.name, service.interface, nullptr, service.path, nullptr,
        G_DBUS_SIGNAL_FLAGS_NONE,
        [](GDBusConnection*, const char*, const char*, const char*, const char* name,
           GVariant* arguments, gpointer data) {
            auto* const self = static_cast<DesktopNotifier*>(data);
            if (self->isConfined_)
                self->onPortalSignal(name, arguments);
            else
                self->onServiceSignal(name, arguments);
        },
        this, nullptr);
    signals_ = ScopedConnection(
        [bus, subscription] { g_dbus_connection_signal_unsubscribe(bus.get(), subscription); });
}

void DesktopNotifier::onServiceSignal(const std::string& name, GVariant* arguments) {
    if (g_variant_n_children(arguments) != 2)
        return;
    const GVariantPtr serverId(g_variant_get_child_value(arguments, 0));
    if (!g_variant_is_of_type(serverId.get(), G_VARIANT_TYPE_UINT32))
        return;
    const auto found = std::ranges::find_if(shown_, [&](const auto& entry) {
        return entry.second->serverId == g_variant_get_uint32(serverId.get());
    });
    // The service sends its signals about every program's notifications to all programs.
    if (found == shown_.end())
        return;
    const GVariantPtr detail(g_variant_get_child_value(arguments, 1));
    if (name == "NotificationClosed" && found->second->isUnderWay)
        found->second->serverId = 0; // What replaces it comes all the same.
    else if (name == "NotificationClosed")
        shown_.erase(found);
    else if (!g_variant_is_of_type(detail.get(), G_VARIANT_TYPE_STRING))
        return;
    else if (name == "ActivationToken")
        found->second->activationToken = g_variant_get_string(detail.get(), nullptr);
    else if (name == "ActionInvoked")
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
