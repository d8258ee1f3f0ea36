#pragma once

#include "Platform/Lifetime.h"
#include "Platform/Machine.h"
#include "Platform/Result.h"
#include "Platform/ScopedConnection.h"
#include "Platform/Task.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>

namespace tessaro {

/// Succeeds when the desktop can show notifications: when its notification service answers (Desktop
/// Notifications Specification 1.2), or the desktop portal for a confined package. Otherwise, or
/// without a session bus, it fails with the domain "Notifications" and GIO's code and text. UI
/// thread.
Task<Result<void>> askForNotifications(bool isConfined);

/// What a desktop notification says, in plain text.
struct DesktopNotification {
    std::string id; ///< A new one replaces one that is shown under the same id.
    std::string title;
    std::string body;
};

/// Shows desktop notifications by the session's notification service, or by the desktop portal from
/// within a confined package. Where neither answers, nothing is shown and nothing reported. UI
/// thread.
class DesktopNotifier {
public:
    /// `activationToken` allows a window to come to the front (xdg-activation). It can be empty.
    using Clicked = std::function<void(const std::string& activationToken)>;

    explicit DesktopNotifier(bool isConfined = machine::isConfined());
    DesktopNotifier(const DesktopNotifier&) = delete;
    DesktopNotifier& operator=(const DesktopNotifier&) = delete;

    /// @param clicked  called when the user chooses the notification
    void show(DesktopNotification notification, Clicked clicked);
    void withdraw(const std::string& id);

private:
    struct Shown {
        Clicked clicked;
        std::uint32_t serverId = 0; ///< The notification service's own; 0 before its answer.
        std::string activationToken;
        bool isUnderWay = true;   ///< The service has not answered yet.
        bool isWithdrawn = false; ///< To be closed as soon as it has.
    };

    Task<void> send(DesktopNotification notification, std::shared_ptr<Shown> shown);
    void close(std::uint32_t serverId);
    void listen(const GObjectPtr<GDBusProxy>& service);
    void onServiceSignal(const std::string& name, GVariant* arguments);
    void onPortalSignal(const std::string& name, GVariant* arguments);
    void click(const std::string& id);

    const bool isConfined_;
    GObjectPtr<GDBusProxy> service_; ///< Null until the first notification is shown.
    std::map<std::string, std::shared_ptr<Shown>> shown_;
    ScopedConnection signals_;
    Lifetime lifetime_;
};

} // namespace tessaro
