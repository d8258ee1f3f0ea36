#pragma once

#include "Platform/SettingsStore.h"

#include <optional>
#include <string>

namespace tessaro {

/// Whether the person lets the inbox site show notifications on the desktop, kept in the settings
/// under "site_notifications" as "granted" or "refused", a blank and the site's origin. An answer
/// for another site counts for nothing. UI thread only.
class NotificationConsent {
public:
    /// @param settings  outlives this
    /// @param origin    of the inbox site, as by originOf()
    NotificationConsent(SettingsStore& settings, std::string origin);

    /// The site's origin when it may, else empty.
    std::string permittedOrigin() const;
    /// Nothing as long as nobody has been asked.
    std::optional<bool> answer() const;
    void keep(bool isGranted);

private:
    SettingsStore& settings_;
    std::string origin_;
};

} // namespace tessaro
