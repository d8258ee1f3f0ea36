#include "support/LoopbackServer.h"

#include <algorithm>

namespace tessaro::test {

LoopbackServer::LoopbackServer(std::string identity, std::string address)
    : identity_(std::move(identity)),
      address_(std::move(address)),
      listener_(GObjectPtr<GSocketListener>::adopt(g_socket_listener_new())),
      stop_(GObjectPtr<GCancellable>::adopt(g_cancellable_new())) {
    const auto wanted = GObjectPtr<GSocketAddress>::adopt(
        g_inet_socket_address_new_from_string(address_.c_str(), 0));
    GSocketAddress* bound = nullptr;
    if (!g_socket_listener_add_address(
            listener_.get(), wanted.get(), G_SOCKET_TYPE_STREAM, G_SOCKET_PROTOCOL_TCP, nullptr,
            &bound, nullptr))
        g_error("no loopback port");
    const auto owner = GObjectPtr<GSocketAddress>::adopt(bound);
    port_ = g_inet_socket_address_get_port(G_INET_SOCKET_ADDRESS(bound));
    answer("*", Answer{404, "", {}});
    acceptor_ = std::thread([this] { acceptConnections(); });
}

LoopbackServer::~LoopbackServer() {
    g_cancellable_cancel(stop_.get());
    acceptor_.join();
    for (auto& thread : threads_)
        thread.join();
}

std::string LoopbackServer::origin() const {
    return (identity_.empty() ? "http://" : "https://") + address_ + ":" + std::to_string(port_);
}

void LoopbackServer::answer(const std::string& path, Answer answer) {
    auto text = "HTTP/1.1 " + std::to_string(answer.status) + " Answer\r\n";
    if (!keepsConnections_)
        text += "Connection: close\r\n";
    for (const auto& [name, value] : answer.headers)
        text += name + ": " + value + "\r\n";
    text += "Content-Length: " + std::to_string(answer.body.size()) + "\r\n\r\n" + answer.body;
    handle(path, [text](ServerConnection& connection, const ReceivedRequest&) {
        connection.write(text);
    });
}

void LoopbackServer::answer(const std::string& path, std::string body) {
    answer(path, Answer{200, std::move(body), {}});
}

void LoopbackServer::handle(const std::string& path, Handler handler) {
    const std::lock_guard lock(mutex_);
    handlers_[path] = std::move(handler);
}

void LoopbackServer::hold(const std::string& path) {
    const std::lock_guard lock(mutex_);
    permits_ = 0;
    auto& handler = handlers_.at(path);
    handler = [this, answer = handler](auto& connection, const auto& request) {
        while (!takePermit() && connection.pause(std::chrono::milliseconds(1))) {
        }
        answer(connection, request);
    };
}

bool LoopbackServer::takePermit() {
    int left = permits_;
    return left > 0 && permits_.compare_exchange_strong(left, left - 1);
}

std::vector<ReceivedRequest> LoopbackServer::requests() const {
    const std::lock_guard lock(mutex_);
    return requests_;
}

std::size_t LoopbackServer::requestCount(const std::string& path) const {
    const std::lock_guard lock(mutex_);
    return static_cast<std::size_t>(std::ranges::count(requests_, path, &ReceivedRequest::path));
}

std::size_t LoopbackServer::connectionCount() const {
    const std::lock_guard lock(mutex_);
    return threads_.size();
}

std::size_t LoopbackServer::openConnections() const {
    const std::lock_guard lock(mutex_);
    return open_;
}

void LoopbackServer::acceptConnections() {
    while (true) {
        auto socket = GObjectPtr<GSocketConnection>::adopt(
            g_socket_listener_accept(listener_.get(), nullptr, stop_.get(), nullptr));
        if (!socket)
            return;
        const std::lock_guard lock(mutex_);
        ++open_;
        threads_.emplace_back([this, socket] { serve(socket); });
    }
}

void LoopbackServer::serve(GObjectPtr<GSocketConnection> socket) {
    ServerConnection connection(std::move(socket), stop_);
    if (!identity_.empty())
        connection.startTls(identity_);
    do {
        const auto request = connection.readRequest();
        if (!request)
            break;
        respond(connection, *request);
    } while (keepsConnections_);
    connection.close();
    const std::lock_guard lock(mutex_);
    --open_;
}

void LoopbackServer::respond(ServerConnection& connection, const ReceivedRequest& request) {
    std::unique_lock lock(mutex_);
    requests_.push_back(request);
    const auto known = handlers_.contains(request.path());
    const auto handler = handlers_.at(known ? request.path() : "*");
    lock.unlock();
    handler(connection, request);
}

} // namespace tessaro::test
