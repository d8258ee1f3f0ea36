#pragma once

#include "Platform/DesktopNotifier.h"
#include "Services/AppLogger.h"

namespace tessaro {

/// Asks whether the desktop shows notifications, and logs the answer. Nothing depends on it.
class NotificationService {
public:
    /// @param logger  outlives every request
    explicit NotificationService(AppLogger& logger, bool isConfined = machine::isConfined());

    static NotificationService& shared();

    /// Returns at once; the outcome is logged when the notification service has answered. UI
    /// thread.
    void requestPermission();

private:
    AppLogger& logger_;
    const bool isConfined_;
};

} // namespace tessaro
