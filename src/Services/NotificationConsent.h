#pragma once

#include "Platform/SettingsStore.h"

#include <optional>
#include <string>

namespace tessaro {

/// Whether the user allows the inbox site to show site notifications on the desktop. The settings
/// keep the answer under "site_notifications" as "granted" or "refused", a blank and the site's
/// origin. An answer for another origin is ignored. UI thread only.
class NotificationConsent {
public:
    /// @param settings  outlives this
    /// @param origin    of the inbox site, as by originOf()
    NotificationConsent(SettingsStore& settings, std::string origin);

    /// The site's origin if it is allowed, else empty.
    std::string permittedOrigin() const;
    /// Nothing until the user has answered.
    std::optional<bool> answer() const;
    void keep(bool isGranted);

private:
    SettingsStore& settings_;
    std::string origin_;
};

} // namespace tessaro
