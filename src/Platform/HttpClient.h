#pragma once

#include "Platform/Result.h"
#include "Platform/Task.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace tessaro {

/// How requests are carried. The product's values are the defaults; tests shorten the times.
struct HttpOptions {
    struct Proxy {
        std::string host;
        std::int64_t port = 0;

        auto operator<=>(const Proxy&) const = default;
    };

    /// A request fails when no data arrives for this long. Whole seconds.
    std::chrono::seconds silenceLimit{30};
    /// A request fails when it takes longer than this in all; nothing means no such limit.
    std::optional<std::chrono::milliseconds> totalLimit = std::chrono::seconds(60);
    /// The longest body that is accepted, in bytes.
    std::size_t bodyLimit = 16 * 1024 * 1024;
    /// The HTTP proxy for plain and TLS requests. No credentials are sent.
    std::optional<Proxy> proxy;
    /// Use the desktop's proxy settings when `proxy` is empty.
    bool useSystemProxy = false;
    /// Certificate authorities in PEM form that are trusted in place of the system's.
    std::optional<std::filesystem::path> authorityFile;
};

struct HttpRequest {
    std::string method = "GET";
    std::string url;
    std::string
        contentType; ///< Sent with `body`, and alone when that is absent but this is not empty.
    std::optional<std::string> body;
};

struct HttpResponse {
    unsigned status = 0;
    std::string body;

    bool isSuccess() const { return status >= 200 && status <= 299; }
};

/// An HTTP/1.1 and HTTP/2 client over libsoup. Copies share its connections, which stay open for a
/// while. UI thread.
///
/// Any answer with a status is a response, even a proxy's 407. Everything else is an error of the
/// domain "HTTP": no connection, an answer that is not HTTP, a refused certificate, silence, too
/// long in all, a body that is longer than allowed or than its length says, a redirect from HTTPS
/// to HTTP, more than ten redirects. A message never holds the address.
///
/// A chunked body that is cut short is not noticed here. The code that parses the body must notice.
///
/// No compressed answer is asked for and none is inflated. A redirect leads to exactly the address
/// that the server names: nothing of the first address's query is added to it.
class HttpClient {
public:
    explicit HttpClient(HttpOptions options);

    enum ErrorCode { invalidUrl = 1, transport, timedOut, bodyTooLong, badRedirect, notHttp };

    /// Sends one request. The client may be dropped while it is under way; its connections close
    /// when the last request has ended.
    Task<Result<HttpResponse>> send(HttpRequest request);

private:
    struct Session;

    std::shared_ptr<Session> session_;
};

} // namespace tessaro
