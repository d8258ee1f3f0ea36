#pragma once

#include "Services/AppLogger.h"

namespace tessaro {

/// Asks the desktop whether notifications can be shown, and writes the outcome to the log. Nothing
/// depends on the answer.
class NotificationService {
public:
    explicit NotificationService(AppLogger& logger);

    static NotificationService& shared();

    /// Returns at once; the outcome is logged when the notification service has answered.
    void requestPermission();

private:
    AppLogger& logger_;
};

} // namespace tessaro
