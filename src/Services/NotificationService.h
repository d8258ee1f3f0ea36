#pragma once

#include "Platform/DesktopNotifications.h"
#include "Services/AppLogger.h"

namespace tessaro {

/// Asks the desktop whether notifications can be shown, and writes the outcome to the log. Nothing
/// depends on the answer.
class NotificationService {
public:
    /// @param logger  outlives every request
    /// @param marker  tells by its existence that the package is confined
    explicit NotificationService(
        AppLogger& logger, std::filesystem::path marker = confinementMarker);

    static NotificationService& shared();

    /// Returns at once; the outcome is logged when the notification service has answered. Main
    /// thread.
    void requestPermission();

private:
    AppLogger& logger_;
    const std::filesystem::path marker_;
};

} // namespace tessaro
