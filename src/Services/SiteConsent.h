#pragma once

#include "Platform/SettingsStore.h"

#include <optional>
#include <string>

namespace tessaro {

/// Whether the user allows the inbox site one thing. The settings keep the answer under the thing's
/// key as "granted" or "refused", a blank and the site's origin. An answer for another origin is
/// ignored. UI thread only.
class SiteConsent {
public:
    // What there is to allow.
    static constexpr const char* notifications = "site_notifications";
    static constexpr const char* microphone = "site_microphone";
    static constexpr const char* camera = "site_camera";

    /// @param settings  outlives this
    /// @param key       one of the above
    /// @param origin    of the inbox site, as by originOf()
    SiteConsent(SettingsStore& settings, const char* key, std::string origin);

    /// The site's origin if it is allowed, else empty.
    std::string permittedOrigin() const;
    /// Nothing until the user has answered.
    std::optional<bool> answer() const;
    void keep(bool isGranted);

private:
    SettingsStore& settings_;
    const char* key_;
    std::string origin_;
};

} // namespace tessaro
