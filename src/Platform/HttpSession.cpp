#include "Platform/HttpSession.h"

namespace tessaro {

namespace {

/// Null for a proxy that no address can name. The library would answer such a one with a warning
/// and direct connections.
GObjectPtr<GProxyResolver> resolverFor(const HttpOptions::Proxy& proxy) {
    if (proxy.port < 1 || proxy.port > 65535)
        return nullptr;
    // The form of a name with other letters than ASCII that is looked up (RFC 3490).
    const auto host = g_hostname_is_non_ascii(proxy.host.c_str())
                          ? takeString(g_hostname_to_ascii(proxy.host.c_str()))
                          : proxy.host;
    const auto address = takeString(g_uri_join(
        G_URI_FLAGS_NONE, "http", nullptr, host.c_str(), static_cast<gint>(proxy.port), "", nullptr,
        nullptr));
    const GUriPtr parsed(g_uri_parse(address.c_str(), G_URI_FLAGS_NONE, nullptr));
    if (host.empty() || !parsed || g_uri_get_host(parsed.get()) != host)
        return nullptr;
    return GObjectPtr<GProxyResolver>::adopt(g_simple_proxy_resolver_new(address.c_str(), nullptr));
}

} // namespace

Result<GObjectPtr<SoupSession>> openHttpSession(const HttpOptions& options) {
    auto session = GObjectPtr<SoupSession>::adopt(soup_session_new_with_options(
        "timeout", static_cast<guint>(options.silenceLimit.count()), "max-conns",
        options.connectionLimit, "max-conns-per-host", options.connectionLimit, nullptr));
    soup_session_remove_feature_by_type(session.get(), SOUP_TYPE_CONTENT_DECODER);
    soup_session_remove_feature_by_type(session.get(), SOUP_TYPE_AUTH_MANAGER);
    if (options.proxy) {
        const auto resolver = resolverFor(*options.proxy);
        if (!resolver)
            return failure("HTTP", HttpClient::transport, "Địa chỉ proxy không hợp lệ.");
        soup_session_set_proxy_resolver(session.get(), resolver.get());
    } else if (!options.useSystemProxy) {
        soup_session_set_proxy_resolver(session.get(), nullptr);
    }
    if (options.authorityFile) {
        GErrorSlot error;
        const auto authorities = GObjectPtr<GTlsDatabase>::adopt(
            g_tls_file_database_new(options.authorityFile->c_str(), error.out()));
        if (!authorities)
            return failure("HTTP", HttpClient::transport, error.message());
        soup_session_set_tls_database(session.get(), authorities.get());
    }
    return session;
}

} // namespace tessaro
