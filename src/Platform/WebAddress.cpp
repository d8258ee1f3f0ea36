#include "Platform/WebAddress.h"

#include "Platform/GHandle.h"

#include <algorithm>
#include <string_view>

namespace tessaro {

bool isOpenableAddress(const std::string& address) {
    // GLib lets blanks through, and would stop reading at a zero byte.
    if (std::ranges::any_of(address, [](unsigned char byte) { return byte <= ' '; }))
        return false;
    const GUriPtr uri(g_uri_parse(address.c_str(), G_URI_FLAGS_NONE, nullptr));
    if (!uri)
        return false;
    const std::string_view scheme = g_uri_get_scheme(uri.get()); // GLib lowers its case.
    const char* const host = g_uri_get_host(uri.get());
    return (scheme == "http" || scheme == "https") && host && *host;
}

std::string originOf(const std::string& address) {
    if (!isOpenableAddress(address))
        return {};
    const GUriPtr uri(g_uri_parse(address.c_str(), G_URI_FLAGS_SCHEME_NORMALIZE, nullptr));
    return std::string(g_uri_get_scheme(uri.get())) + "://" +
           takeString(g_ascii_strdown(g_uri_get_host(uri.get()), -1)) + ":" +
           std::to_string(g_uri_get_port(uri.get()));
}

} // namespace tessaro
