#include "Platform/HttpClient.h"

#include "Platform/Cancellation.h"
#include "Platform/Clock.h"

#include <libsoup/soup.h>

#include <algorithm>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace tessaro {

namespace {

constexpr int redirectLimit = 10;
/// The most connections of a session. An idle one is closed when another host needs its place.
constexpr int connectionLimit = 8;
/// How many answers like "100 Continue" may precede the real one. Without a limit, a server that
/// keeps sending them would keep one turn of the main loop, and so the window, busy.
constexpr int informationalLimit = 20;
constexpr auto uriFlags = static_cast<GUriFlags>(SOUP_HTTP_URI_FLAGS);

bool isHttp(GUri* uri) {
    const std::string_view scheme = g_uri_get_scheme(uri);
    return (scheme == "http" || scheme == "https") && g_uri_get_host(uri) && *g_uri_get_host(uri);
}

/// Null unless the text is an http or https address (RFC 3986). The library's parser would let
/// blanks and line breaks through to the request line. isOpenableAddress() accepts more, because a
/// browser encodes what stands behind the host.
GUriPtr parseUrl(const std::string& url) {
    if (!std::all_of(url.begin(), url.end(), [](char c) { return g_ascii_isgraph(c); }))
        return nullptr;
    GUriPtr uri(g_uri_parse(url.c_str(), uriFlags, nullptr));
    return uri && isHttp(uri.get()) ? std::move(uri) : nullptr;
}

GObjectPtr<SoupMessage> makeMessage(const HttpRequest& request, GUri* uri) {
    auto message =
        GObjectPtr<SoupMessage>::adopt(soup_message_new_from_uri(request.method.c_str(), uri));
    soup_message_set_flags(message.get(), SOUP_MESSAGE_NO_REDIRECT);
    if (request.body) {
        const GBytesPtr body(g_bytes_new(request.body->data(), request.body->size()));
        soup_message_set_request_body_from_bytes(
            message.get(), request.contentType.c_str(), body.get());
    } else if (!request.contentType.empty()) {
        soup_message_headers_set_content_type(
            soup_message_get_request_headers(message.get()), request.contentType.c_str(), nullptr);
    }
    return message;
}

/// The address of a redirect, as the server wrote it; null for any other answer.
const char* redirectLocation(SoupMessage* message) {
    const unsigned status = soup_message_get_status(message);
    const bool redirects = (status >= 301 && status <= 303) || status == 307 || status == 308;
    return redirects ? soup_message_headers_get_one(
                           soup_message_get_response_headers(message), "Location")
                     : nullptr;
}

bool leavesTls(GUri* from, GUri* to) {
    return std::string_view(g_uri_get_scheme(from)) == "https" &&
           std::string_view(g_uri_get_scheme(to)) == "http";
}

/// Null when host and port make no address. The library would warn and connect directly then.
GObjectPtr<GProxyResolver> resolverFor(const HttpOptions::Proxy& proxy) {
    if (proxy.port < 1 || proxy.port > 65535)
        return nullptr;
    // Name servers know an international name by its ASCII form (RFC 3490).
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

/// A session of the library that carries requests as the options say. It fails when the proxy or
/// the authorities cannot be used, because a request must then not go out another way.
Result<GObjectPtr<SoupSession>> openSession(const HttpOptions& options) {
    auto session = GObjectPtr<SoupSession>::adopt(soup_session_new_with_options(
        "timeout", static_cast<guint>(options.silenceLimit.count()), "max-conns", connectionLimit,
        "max-conns-per-host", connectionLimit, nullptr));
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

/// What ends one request early, and why: the time that it may take in all, or what the server
/// sends.
class Call {
public:
    explicit Call(std::optional<std::chrono::milliseconds> total) {
        if (total)
            timer_ =
                SystemClock::shared().timer(*total, [this] { end(HttpClient::timedOut, tooSlow); });
    }

    GCancellable* cancellable() const { return cancellation_.get(); }

    /// Cancels what is under way. The first reason stays.
    tl::unexpected<Error> end(HttpClient::ErrorCode code, std::string message) {
        if (!reason_)
            reason_ = Error{"HTTP", code, std::move(message)};
        const tl::unexpected<Error> failure(*reason_);
        // A call that ends at once may take this object with it.
        Cancellation(cancellation_).cancel();
        return failure;
    }

    /// The reason why a call of the library failed: the one given to end(), else the library's.
    tl::unexpected<Error> failureOf(const GErrorSlot& error) const {
        if (reason_)
            return tl::unexpected<Error>(*reason_);
        if (error.matches(G_IO_ERROR, G_IO_ERROR_TIMED_OUT))
            return failure("HTTP", HttpClient::timedOut, tooSlow);
        if (error.matches(SOUP_SESSION_ERROR, SOUP_SESSION_ERROR_PARSING))
            return failure("HTTP", HttpClient::notHttp, error.message());
        return failure("HTTP", HttpClient::transport, error.message());
    }

private:
    static constexpr const char* tooSlow = "Yêu cầu đã hết thời gian chờ.";

    const Cancellation cancellation_;
    std::optional<Error> reason_;
    ScopedConnection timer_;
};

/// Reads the answer's body to its end. The call outlives the reading.
Task<Result<std::string>> readBody(
    GObjectPtr<SoupMessage> message, GObjectPtr<GInputStream> stream, Call* call,
    std::size_t limit) {
    constexpr auto tooLong = "Phản hồi quá lớn.";
    if (soup_message_headers_get_content_length(soup_message_get_response_headers(message.get())) >
        static_cast<goffset>(limit))
        co_return call->end(HttpClient::bodyTooLong, tooLong);

    std::string body;
    std::vector<char> block(64 * 1024);
    while (body.size() <= limit) {
        GErrorSlot error;
        const gssize length = co_await AsyncCall(
            [&](GAsyncReadyCallback ready, gpointer data) {
                g_input_stream_read_async(
                    stream.get(), block.data(), block.size(), G_PRIORITY_DEFAULT,
                    call->cancellable(), ready, data);
            },
            [&](GObject*, GAsyncResult* result) {
                return g_input_stream_read_finish(stream.get(), result, error.out());
            });
        if (length < 0)
            co_return call->failureOf(error);
        if (length == 0)
            co_return std::move(body);
        body.append(block.data(), static_cast<std::size_t>(length));
    }
    co_return call->end(HttpClient::bodyTooLong, tooLong);
}

} // namespace

struct HttpClient::Session {
    const HttpOptions options;
    /// The library's session, made when the first request needs it.
    std::optional<Result<GObjectPtr<SoupSession>>> opened{};
};

HttpClient::HttpClient(HttpOptions options)
    : session_(std::make_shared<Session>(Session{std::move(options)})) {}

Task<Result<HttpResponse>> HttpClient::send(HttpRequest request) {
    const auto session = session_; // This client may be gone after the first await.
    GUriPtr uri = parseUrl(request.url);
    if (!uri)
        co_return failure("HTTP", invalidUrl, "Địa chỉ không hợp lệ.");
    if (!session->opened)
        session->opened = openSession(session->options);
    if (!*session->opened)
        co_return tl::unexpected<Error>(session->opened->error());
    SoupSession* const soup = (*session->opened)->get();
    Call call(session->options.totalLimit);

    for (int redirects = 0; redirects <= redirectLimit; ++redirects) {
        const auto message = makeMessage(request, uri.get());
        int informational = 0;
        const auto counting = connectSignal<void(SoupMessage*)>(
            message.get(), "got-informational", [&](SoupMessage*) {
                if (++informational > informationalLimit)
                    call.end(transport, "Phản hồi không hợp lệ.");
            });
        GErrorSlot error;
        const auto stream = co_await AsyncCall(
            [&](GAsyncReadyCallback ready, gpointer data) {
                soup_session_send_async(
                    soup, message.get(), G_PRIORITY_DEFAULT, call.cancellable(), ready, data);
            },
            [&](GObject*, GAsyncResult* result) {
                return GObjectPtr<GInputStream>::adopt(
                    soup_session_send_finish(soup, result, error.out()));
            });
        if (!stream)
            co_return call.failureOf(error);
        auto body = co_await readBody(message, stream, &call, session->options.bodyLimit);
        if (!body)
            co_return tl::unexpected<Error>(body.error());

        const unsigned status = soup_message_get_status(message.get());
        const char* location = redirectLocation(message.get());
        if (!location)
            co_return HttpResponse{status, std::move(*body)};
        GUriPtr target(g_uri_parse_relative(uri.get(), location, uriFlags, nullptr));
        if (!target || !isHttp(target.get()))
            co_return failure(
                "HTTP", badRedirect, "Máy chủ chuyển hướng tới địa chỉ không hợp lệ.");
        if (leavesTls(uri.get(), target.get()))
            co_return failure(
                "HTTP", badRedirect, "Máy chủ chuyển hướng tới kết nối không được mã hóa.");
        uri = std::move(target);
        // RFC 9110, section 15.4: only 307 and 308 repeat the request as it was.
        if (status != 307 && status != 308 && request.method != "HEAD") {
            request.method = "GET";
            request.contentType.clear();
            request.body.reset();
        }
    }
    co_return failure("HTTP", badRedirect, "Máy chủ chuyển hướng quá nhiều lần.");
}

} // namespace tessaro
