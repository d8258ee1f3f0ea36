#pragma once

#include "Platform/SettingsStore.h"
#include "Platform/WebAddress.h"

#include <string>

namespace tessaro {

/// The addresses that the program connects to or opens. Read once at start.
struct Endpoints {
    std::string graphApiOrigin; ///< Scheme and host of the Graph API, without a slash at the end.
    std::string inboxOrigin;    ///< Scheme and host of the inbox site, likewise.
    std::string linkMessenger;
    std::string linkTelegram;
    std::string linkZalo;
    std::string linkWebsite;
    std::string linkDonate;

    /// The values in the settings, and the built-in ones where those have none.
    static Endpoints fromSettings(const SettingsStore& settings);

    /// The beginning of every Graph address, up to and including the version.
    std::string graphBaseUrl() const { return graphApiOrigin + "/v25.0"; }
    /// The host of the inbox site as hostOf(); empty when its origin is no web address.
    std::string inboxHost() const { return hostOf(inboxOrigin); }
    /// Whether the inbox site's host stands anywhere in the address, in upper or lower case.
    bool namesInboxHost(const std::string& address) const;
    /// Whether the address is of the inbox site: same scheme, host and port.
    bool isInboxSite(const std::string& address) const;
    /// Where the inbox of the Page with that Graph id is. The id is taken as it stands.
    std::string inboxAddress(const std::string& pageId) const;
    /// The Graph id of the Page that an address of the inbox site names; empty when it names none.
    std::string pageIdIn(const std::string& address) const;
};

} // namespace tessaro
