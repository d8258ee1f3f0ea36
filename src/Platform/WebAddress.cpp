#include "Platform/WebAddress.h"

#include "Platform/GHandle.h"

#include <algorithm>
#include <optional>

namespace tessaro {

namespace {

/// Which server an address leads to.
struct Site {
    std::string scheme;
    std::string host; ///< In lower case; an international one as it goes over the wire.
    int port;
};

/// Nothing unless the address is http or https and has a host. The part behind the host is not
/// checked, because browsers encode there what the standard does not allow.
std::optional<Site> siteOf(const std::string& address) {
    const auto authority = address.find("://");
    // GLib accepts blanks, and stops reading at a zero byte.
    if (authority == std::string::npos ||
        std::ranges::any_of(address, [](unsigned char byte) { return byte <= ' '; }))
        return std::nullopt;
    // Browsers take a backslash for a slash.
    const auto head = address.substr(0, address.find_first_of("/?#\\", authority + 3));
    const GUriPtr uri(g_uri_parse(
        head.c_str(), static_cast<GUriFlags>(G_URI_FLAGS_SCHEME_NORMALIZE | G_URI_FLAGS_ENCODED),
        nullptr));
    if (!uri || !g_uri_get_host(uri.get()))
        return std::nullopt;
    const Site site{
        g_uri_get_scheme(uri.get()), takeString(g_hostname_to_ascii(g_uri_get_host(uri.get()))),
        g_uri_get_port(uri.get())};
    const bool isWeb = site.scheme == "http" || site.scheme == "https";
    return isWeb && !site.host.empty() ? std::optional(site) : std::nullopt;
}

} // namespace

bool isOpenableAddress(const std::string& address) {
    return siteOf(address).has_value();
}

std::string originOf(const std::string& address) {
    const auto site = siteOf(address);
    return site ? site->scheme + "://" + site->host + ":" + std::to_string(site->port) : "";
}

std::string hostOf(const std::string& address) {
    const auto site = siteOf(address);
    if (!site)
        return {};
    const bool isItsOwn = site->port == (site->scheme == "https" ? 443 : 80);
    return isItsOwn ? site->host : site->host + ":" + std::to_string(site->port);
}

} // namespace tessaro
