#pragma once

#include "support/ServerConnection.h"

#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace tessaro::test {

/// A server's certificate with its private key, in PEM form in one text.
struct ServerIdentity {
    std::string pem;
};

/// A small HTTP/1.1 server on a port of its own at a loopback address, over TLS when it is given an
/// identity. It runs on threads of its own, so it works while the main loop is blocked, and shows
/// when it is.
///
/// Set the answers before the first request. A request that nothing was set for gets a 404.
class LoopbackServer {
public:
    struct Answer {
        int status = 200;
        std::string body;
        std::map<std::string, std::string> headers;
    };
    /// Answers a request byte by byte; the connection is closed when it returns.
    using Handler = std::function<void(ServerConnection&, const ReceivedRequest&)>;

    explicit LoopbackServer(
        std::optional<ServerIdentity> identity = {}, const std::string& address = "127.0.0.1");
    /// Ends every connection and waits for its handler.
    ~LoopbackServer();
    LoopbackServer(const LoopbackServer&) = delete;
    LoopbackServer& operator=(const LoopbackServer&) = delete;

    std::uint16_t port() const { return port_; }
    /// Scheme, address and port, without a slash at the end.
    std::string origin() const;

    /// Answers every request for that path (its query does not count).
    void answer(const std::string& path, Answer answer);
    void answer(const std::string& path, std::string body);
    /// Hands every request for that path to the handler; "*" stands for all other paths.
    void handle(const std::string& path, Handler handler);
    /// Hands every connection to the handler before anything is read from it.
    void handleConnections(std::function<void(ServerConnection&)> handler);

    /// What has arrived so far, in order.
    std::vector<ReceivedRequest> requests() const;
    /// How many requests for the path have arrived.
    std::size_t requestCount(const std::string& path) const;
    std::size_t connectionCount() const;     ///< Accepted since the start.
    std::size_t openConnections() const;     ///< Right now.
    std::size_t mostOpenConnections() const; ///< The most at any one time.

private:
    void acceptConnections();
    void serve(GObjectPtr<GSocketConnection> socket);
    bool respond(ServerConnection& connection, const ReceivedRequest& request);

    const std::string address_;
    std::uint16_t port_ = 0;
    GObjectPtr<GTlsCertificate> certificate_;
    GObjectPtr<GSocketListener> listener_;
    GObjectPtr<GCancellable> stop_;
    std::function<void(ServerConnection&)> connectionHandler_;

    mutable std::mutex mutex_; ///< Guards everything below.
    std::map<std::string, Handler> handlers_;
    std::map<std::string, Answer> answers_;
    std::vector<ReceivedRequest> requests_;
    std::vector<std::thread> threads_;
    std::size_t accepted_ = 0;
    std::size_t open_ = 0;
    std::size_t mostOpen_ = 0;
    std::thread acceptor_;
};

} // namespace tessaro::test
