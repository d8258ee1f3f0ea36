#pragma once

#include "Platform/GHandle.h"
#include "Platform/ScopedConnection.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

using WebKitNotification = struct _WebKitNotification;
using WebKitWebView = struct _WebKitWebView;

namespace tessaro {

/// The desktop notifications that the pages in one web view want to show. Without a delegate every
/// request is refused, as the engine does by itself. UI thread only.
class WebNotifications {
public:
    /// What a page wants to be shown, in plain text.
    struct Content {
        std::string id;
        std::string title;
        std::string body;
    };
    class Delegate {
    public:
        virtual ~Delegate() = default;
        /// The page asks for permission and waits for the answer; dropping it refuses.
        virtual void didRequestPermission(std::function<void(bool)> answer) = 0;
        virtual void show(const Content& content) = 0;
        /// The page has closed the notification, or is gone itself.
        virtual void didClose(const std::string& id) = 0;
    };

    /// Tells the origin that has permission without having to ask; empty for none.
    using PermittedOrigin = std::function<std::string()>;

    /// @param permittedOrigin  asked whenever a process for pages starts, which may be long before
    ///                         there is a delegate; may be empty
    WebNotifications(WebKitWebView* view, PermittedOrigin permittedOrigin);
    WebNotifications(const WebNotifications&) = delete;
    WebNotifications& operator=(const WebNotifications&) = delete;

    /// The delegate must outlive this object or be replaced by nullptr, after which no process that
    /// starts is permitted anything.
    void setDelegate(Delegate* delegate);
    /// Tells the page that the person chose the notification; does nothing once it is closed.
    void click(const std::string& id);

private:
    struct Open {
        GObjectPtr<WebKitNotification> notification;
        ScopedConnection closed;
    };

    void show(WebKitNotification* notification);

    PermittedOrigin permittedOrigin_;
    Delegate* delegate_ = nullptr;
    std::map<std::string, Open> open_;
    std::vector<ScopedConnection> signals_;
};

} // namespace tessaro
