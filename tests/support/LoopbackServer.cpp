#include "support/LoopbackServer.h"

#include <algorithm>
#include <cstdlib>

namespace tessaro::test {

LoopbackServer::LoopbackServer(std::optional<ServerIdentity> identity, const std::string& address)
    : address_(address),
      listener_(GObjectPtr<GSocketListener>::adopt(g_socket_listener_new())),
      stop_(GObjectPtr<GCancellable>::adopt(g_cancellable_new())) {
    GErrorSlot error;
    if (identity) {
        certificate_ = GObjectPtr<GTlsCertificate>::adopt(
            g_tls_certificate_new_from_pem(identity->pem.c_str(), -1, error.out()));
        if (!certificate_)
            g_error("no certificate: %s", error.message().c_str());
    }
    const auto wanted = GObjectPtr<GSocketAddress>::adopt(
        g_inet_socket_address_new_from_string(address.c_str(), 0));
    GSocketAddress* bound = nullptr;
    if (!g_socket_listener_add_address(
            listener_.get(), wanted.get(), G_SOCKET_TYPE_STREAM, G_SOCKET_PROTOCOL_TCP, nullptr,
            &bound, error.out()))
        g_error("no loopback port: %s", error.message().c_str());
    const auto owner = GObjectPtr<GSocketAddress>::adopt(bound);
    port_ = g_inet_socket_address_get_port(G_INET_SOCKET_ADDRESS(bound));
    acceptor_ = std::thread([this] { acceptConnections(); });
}

LoopbackServer::~LoopbackServer() {
    g_cancellable_cancel(stop_.get());
    acceptor_.join();
    for (auto& thread : threads_)
        thread.join();
}

std::string LoopbackServer::origin() const {
    return (certificate_ ? "https://" : "http://") + address_ + ":" + std::to_string(port_);
}

void LoopbackServer::answer(const std::string& path, Answer answer) {
    const std::lock_guard lock(mutex_);
    answers_[path] = std::move(answer);
}

void LoopbackServer::answer(const std::string& path, std::string body) {
    answer(path, Answer{200, std::move(body), {}});
}

void LoopbackServer::handle(const std::string& path, Handler handler) {
    const std::lock_guard lock(mutex_);
    answers_.erase(path); // What was set last counts.
    handlers_[path] = std::move(handler);
}

void LoopbackServer::handleConnections(std::function<void(ServerConnection&)> handler) {
    const std::lock_guard lock(mutex_);
    connectionHandler_ = std::move(handler);
}

std::vector<ReceivedRequest> LoopbackServer::requests() const {
    const std::lock_guard lock(mutex_);
    return requests_;
}

std::size_t LoopbackServer::requestCount(const std::string& path) const {
    const std::lock_guard lock(mutex_);
    return static_cast<std::size_t>(
        std::count_if(requests_.begin(), requests_.end(), [&](const ReceivedRequest& request) {
            return request.path() == path;
        }));
}

std::size_t LoopbackServer::connectionCount() const {
    const std::lock_guard lock(mutex_);
    return accepted_;
}

std::size_t LoopbackServer::openConnections() const {
    const std::lock_guard lock(mutex_);
    return open_;
}

std::size_t LoopbackServer::mostOpenConnections() const {
    const std::lock_guard lock(mutex_);
    return mostOpen_;
}

void LoopbackServer::acceptConnections() {
    while (true) {
        auto socket = GObjectPtr<GSocketConnection>::adopt(
            g_socket_listener_accept(listener_.get(), nullptr, stop_.get(), nullptr));
        if (!socket)
            return;
        const std::lock_guard lock(mutex_);
        ++accepted_;
        mostOpen_ = std::max(mostOpen_, ++open_);
        threads_.emplace_back([this, socket] { serve(socket); });
    }
}

void LoopbackServer::serve(GObjectPtr<GSocketConnection> socket) {
    auto stream = GObjectPtr<GIOStream>::share(G_IO_STREAM(socket.get()));
    if (certificate_)
        stream = GObjectPtr<GIOStream>::adopt(
            g_tls_server_connection_new(stream.get(), certificate_.get(), nullptr));
    ServerConnection connection(socket, stream, stop_);

    std::unique_lock lock(mutex_);
    const auto handler = connectionHandler_;
    lock.unlock();
    if (handler) {
        handler(connection);
    } else {
        while (const auto request = connection.readRequest()) {
            lock.lock();
            requests_.push_back(*request);
            lock.unlock();
            if (!respond(connection, *request))
                break;
        }
    }
    connection.close();
    lock.lock();
    --open_;
}

bool LoopbackServer::respond(ServerConnection& connection, const ReceivedRequest& request) {
    std::unique_lock lock(mutex_);
    Answer answer{404, "", {}};
    if (const auto canned = answers_.find(request.path()); canned != answers_.end()) {
        answer = canned->second;
    } else {
        auto entry = handlers_.find(request.path());
        if (entry == handlers_.end())
            entry = handlers_.find("*");
        if (entry != handlers_.end()) {
            const auto handler = entry->second;
            lock.unlock();
            handler(connection, request);
            return false;
        }
    }
    lock.unlock();
    auto head = "HTTP/1.1 " + std::to_string(answer.status) + " Answer\r\n";
    for (const auto& [name, value] : answer.headers)
        head += name + ": " + value + "\r\n";
    head += "Content-Length: " + std::to_string(answer.body.size()) + "\r\n\r\n";
    return connection.write(head + answer.body);
}

} // namespace tessaro::test
