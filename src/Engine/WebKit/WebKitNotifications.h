#pragma once

#include "Engine/WebNotifications.h"

#include "Platform/GHandle.h"
#include "Platform/ScopedConnection.h"

#include <map>
#include <vector>

using WebKitNotification = struct _WebKitNotification;
using WebKitWebView = struct _WebKitWebView;

namespace tessaro {

class WebKitNotifications final : public WebNotifications {
public:
    /// See WebSession::makeView().
    WebKitNotifications(WebKitWebView* view, PermittedOrigin permittedOrigin);
    WebKitNotifications(const WebKitNotifications&) = delete;
    WebKitNotifications& operator=(const WebKitNotifications&) = delete;

    void setDelegate(Delegate* delegate) override;
    void click(const std::string& id) override;
    /// WebKitGTK does not tell of it when the page's process has crashed.
    void closeAll();

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
