#include "Engine/WebKit/WebKitNotifications.h"

#include <webkit/webkit.h>

namespace tessaro {

namespace {

std::string textOf(const char* text) {
    return text ? text : "";
}

void permit(WebKitWebContext* context, const std::string& origin) {
    const std::unique_ptr<WebKitSecurityOrigin, Releaser<webkit_security_origin_unref>> permitted(
        webkit_security_origin_new_for_uri(origin.c_str()));
    GList list{permitted.get(), nullptr, nullptr};
    webkit_web_context_initialize_notification_permissions(context, &list, nullptr);
}

} // namespace

WebKitNotifications::WebKitNotifications(WebKitWebView* view, PermittedOrigin permittedOrigin)
    : permittedOrigin_(std::move(permittedOrigin)) {
    signals_.push_back(connectSignal<gboolean(WebKitWebView*, WebKitNotification*)>(
        view, "show-notification",
        [this](WebKitWebView*, WebKitNotification* notification) -> gboolean {
            show(notification);
            return TRUE;
        }));
    signals_.push_back(connectSignal<void(WebKitWebContext*)>(
        webkit_web_view_get_context(view), "initialize-notification-permissions",
        [this](WebKitWebContext* context) {
            if (const auto origin = permittedOrigin_ ? permittedOrigin_() : ""; !origin.empty())
                permit(context, origin);
        }));
}

void WebKitNotifications::setDelegate(Delegate* delegate) {
    delegate_ = delegate;
    if (!delegate_)
        permittedOrigin_ = nullptr;
}

void WebKitNotifications::click(const std::string& id) {
    if (const auto found = open_.find(id); found != open_.end()) {
        const auto notification = found->second.notification; // The page may close it.
        webkit_notification_clicked(notification.get());
    }
}

void WebKitNotifications::closeAll() {
    for (const auto& [id, open] : std::exchange(open_, {}))
        if (delegate_)
            delegate_->didClose(id);
}

void WebKitNotifications::show(WebKitNotification* notification) {
    if (!delegate_)
        return;
    const std::string id = std::to_string(webkit_notification_get_id(notification));
    open_[id] = {
        GObjectPtr<WebKitNotification>::share(notification),
        connectSignal<void(WebKitNotification*)>(
            notification, "closed", [this, id](WebKitNotification*) {
                const std::string closed = id; // What holds this goes with the entry.
                open_.erase(closed);
                if (delegate_)
                    delegate_->didClose(closed);
            })};
    delegate_->show(
        {id, textOf(webkit_notification_get_title(notification)),
         textOf(webkit_notification_get_body(notification))});
}

} // namespace tessaro
