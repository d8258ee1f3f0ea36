#pragma once

#include "support/ServerConnection.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace tessaro::test {

/// A small HTTP/1.1 server on a free port of a loopback address, with one request for each
/// connection. It runs on other threads, so it also works while the main loop is blocked. A request
/// for a path that has no answer gets a 404.
class LoopbackServer {
public:
    struct Answer {
        int status = 200;
        std::string body;
        std::map<std::string, std::string> headers;
    };
    /// Answers one request byte by byte. The connection is closed when it returns.
    using Handler = std::function<void(ServerConnection&, const ReceivedRequest&)>;

    /// @param identity  certificate and private key in PEM form, for a server that speaks TLS
    explicit LoopbackServer(std::string identity = "", std::string address = "127.0.0.1");
    /// Ends every connection and waits for its handler.
    ~LoopbackServer();
    LoopbackServer(const LoopbackServer&) = delete;
    LoopbackServer& operator=(const LoopbackServer&) = delete;

    std::uint16_t port() const { return port_; }
    /// Scheme, address and port, without a slash at the end.
    std::string origin() const;

    /// Answers every request for that path, whatever its query. The last call counts.
    void answer(const std::string& path, Answer answer);
    void answer(const std::string& path, std::string body);
    /// Hands every request for that path to the handler; "*" stands for all other paths.
    void handle(const std::string& path, Handler handler);

    /// Holds back the answers for that path as it is answered now, until release() lets them go.
    void hold(const std::string& path = "*");
    /// Lets that many of the answers go, of those that wait and those to come.
    void release(int answers = 1'000'000) { permits_ += answers; }

    /// From now on a connection stays open after an answer, for further requests.
    void keepConnections() { keepsConnections_ = true; }

    /// The requests that have arrived so far, in order.
    std::vector<ReceivedRequest> requests() const;
    /// How many requests for the path have arrived.
    std::size_t requestCount(const std::string& path) const;
    std::size_t connectionCount() const; ///< Accepted so far.
    std::size_t openConnections() const; ///< Right now.

private:
    void acceptConnections();
    void serve(GObjectPtr<GSocketConnection> socket);
    void respond(ServerConnection& connection, const ReceivedRequest& request);
    bool takePermit();

    const std::string identity_;
    const std::string address_;
    std::uint16_t port_ = 0;
    GObjectPtr<GSocketListener> listener_;
    GObjectPtr<GCancellable> stop_;
    std::atomic<bool> keepsConnections_ = false;
    std::atomic<int> permits_ = 0; ///< How many answers may go that were held back.

    mutable std::mutex mutex_; ///< Guards everything below.
    std::map<std::string, Handler> handlers_;
    std::vector<ReceivedRequest> requests_;
    std::vector<std::thread> threads_;
    std::size_t open_ = 0;
    std::thread acceptor_;
};

} // namespace tessaro::test
