#include "Platform/HttpClient.h"

#include "Platform/HttpCall.h"
#include "Platform/HttpSession.h"

#include <libsoup/soup.h>

#include <algorithm>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace tessaro {

namespace {

constexpr int redirectLimit = 10;
/// Answers of the kind "100 Continue" that may come before the real one. They arrive in one turn
/// of the main loop for as long as the server keeps sending.
constexpr int informationalLimit = 20;
constexpr auto uriFlags = static_cast<GUriFlags>(SOUP_HTTP_URI_FLAGS);

bool isHttp(GUri* uri) {
    const std::string_view scheme = g_uri_get_scheme(uri);
    return (scheme == "http" || scheme == "https") && g_uri_get_host(uri) && *g_uri_get_host(uri);
}

/// Nothing for what is no http or https address (RFC 3986); the library's parser would let blanks,
/// line breaks and other characters through to the request line.
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

/// Where the answer sends the client, as the server put it; null for an ordinary answer.
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

/// Reads the answer's body to its end. The call outlives the reading.
Task<Result<std::string>> readBody(
    GObjectPtr<SoupMessage> message, GObjectPtr<GInputStream> stream, HttpCall* call,
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
    GObjectPtr<SoupSession> soup;

    /// The library's session, made when the first request needs it.
    Result<SoupSession*> open() {
        if (!soup) {
            auto opened = openHttpSession(options);
            if (!opened)
                return tl::unexpected<Error>(opened.error());
            soup = std::move(*opened);
        }
        return soup.get();
    }
};

HttpClient::HttpClient(HttpOptions options)
    : session_(std::make_shared<Session>(Session{std::move(options), {}})) {}

Task<Result<HttpResponse>> HttpClient::send(HttpRequest request, Cancellation cancellation) {
    return run(session_, std::move(request), std::move(cancellation));
}

Task<Result<HttpResponse>>
HttpClient::run(std::shared_ptr<Session> session, HttpRequest request, Cancellation cancellation) {
    GUriPtr uri = parseUrl(request.url);
    if (!uri)
        co_return failure("HTTP", invalidUrl, "Địa chỉ không hợp lệ.");
    const auto soup = session->open();
    if (!soup)
        co_return tl::unexpected<Error>(soup.error());
    HttpCall call(std::move(cancellation), session->options.totalLimit);

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
                    *soup, message.get(), G_PRIORITY_DEFAULT, call.cancellable(), ready, data);
            },
            [&](GObject*, GAsyncResult* result) {
                return GObjectPtr<GInputStream>::adopt(
                    soup_session_send_finish(*soup, result, error.out()));
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
