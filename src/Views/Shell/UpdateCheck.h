#pragma once

#include "Platform/Desktop.h"
#include "Platform/Lifetime.h"
#include "Services/AppLogger.h"
#include "Services/BuildConfig.h"
#include "Services/SupportClient.h"
#include "Views/Modals.h"

#include <optional>

namespace tessaro {

/// Asks the support server for a newer version of the program and offers it in an alert. Stores
/// nothing. UI thread only.
class UpdateCheck {
public:
    static constexpr const char* currentVersion = build::version;

    UpdateCheck(SupportClient& support, AppLogger& logger, Modals& modals, Desktop& desktop);

    /// Starts the check and returns at once. A failure is logged, and the person sees nothing.
    void checkForUpdates();

private:
    Task<void> check();
    void showUpdateAlert(const UpdateInfo& info);

    SupportClient& support_;
    AppLogger& logger_;
    Modals& modals_;
    Desktop& desktop_;
    bool alertIsShown_ = false;
    Lifetime lifetime_;
};

} // namespace tessaro
