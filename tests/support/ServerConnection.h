#pragma once

#include "Platform/GHandle.h"

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tessaro::test {

/// A request as it arrived. The body is empty when the client never sent it.
struct ReceivedRequest {
    std::string method;
    std::string target; ///< As in the request line: a path with a query, or a whole address.
    std::map<std::string, std::string> headers; ///< By name in lower case.
    std::string body;

    /// The target without its query.
    std::string path() const { return target.substr(0, target.find('?')); }
};

/// The server's end of one connection, for tests that decide about every byte. Used on the server's
/// thread for that connection. Every call ends at once when the server stops.
class ServerConnection {
public:
    ServerConnection(GObjectPtr<GSocketConnection> socket, GObjectPtr<GCancellable> stop);

    /// Encrypts everything from now on.
    /// @param identity  certificate and private key in PEM form
    void startTls(const std::string& identity);
    /// Reads one request with its body; nothing when the client closes instead.
    std::optional<ReceivedRequest> readRequest();
    /// Sends the bytes; false once the client is gone or the server stops.
    bool write(std::string_view bytes);
    /// Lets time pass; false once the client is gone or has sent more bytes, or the server stops.
    bool pause(std::chrono::milliseconds time);
    /// Returns when the client has closed its end or the server stops.
    void waitForClose();
    /// Ends the connection in order, with TLS's closing message.
    void close();
    /// Drops the connection without TLS's closing message.
    void drop();

private:
    void use(GObjectPtr<GIOStream> stream);
    std::optional<std::string> readLine();

    const GObjectPtr<GSocketConnection> socket_;
    const GObjectPtr<GCancellable> stop_;
    GObjectPtr<GIOStream> stream_;
    GObjectPtr<GDataInputStream> input_;
};

} // namespace tessaro::test
