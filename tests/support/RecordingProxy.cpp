#include "support/RecordingProxy.h"

#include <thread>

namespace tessaro::test {

namespace {

GObjectPtr<GSocketConnection> connectTo(const std::string& hostAndPort, GCancellable* stop) {
    const auto client = GObjectPtr<GSocketClient>::adopt(g_socket_client_new());
    g_socket_client_set_enable_proxy(client.get(), FALSE);
    return GObjectPtr<GSocketConnection>::adopt(
        g_socket_client_connect_to_host(client.get(), hostAndPort.c_str(), 80, stop, nullptr));
}

/// Carries bytes one way until either end has gone, then ends both.
void pump(GIOStream* from, GIOStream* to, GCancellable* stop) {
    g_output_stream_splice(
        g_io_stream_get_output_stream(to), g_io_stream_get_input_stream(from),
        G_OUTPUT_STREAM_SPLICE_NONE, stop, nullptr);
    for (GIOStream* stream : {from, to})
        g_socket_shutdown(
            g_socket_connection_get_socket(G_SOCKET_CONNECTION(stream)), TRUE, TRUE, nullptr);
}

void openTunnel(ServerConnection& client, GIOStream* target) {
    client.write("HTTP/1.1 200 Connection established\r\n\r\n");
    std::thread upward([&] { pump(client.stream(), target, client.stop()); });
    pump(target, client.stream(), client.stop());
    upward.join();
}

void passOn(ServerConnection& client, const ReceivedRequest& request, GIOStream* target) {
    const auto pathStart = request.target.find('/', std::string_view("http://").size());
    auto head = request.method + " " + request.target.substr(pathStart) + " HTTP/1.1\r\n";
    for (const auto& [name, value] : request.headers) {
        if (name != "connection" && name != "proxy-connection")
            head += name + ": " + value + "\r\n";
    }
    const auto whole = head + "Connection: close\r\n\r\n" + request.body;
    g_output_stream_write_all(
        g_io_stream_get_output_stream(target), whole.data(), whole.size(), nullptr, client.stop(),
        nullptr);
    pump(target, client.stream(), client.stop());
}

void serve(ServerConnection& client, const ReceivedRequest& request) {
    const bool tunnel = request.method == "CONNECT";
    auto hostAndPort = request.target;
    if (!tunnel) {
        hostAndPort = hostAndPort.substr(std::string_view("http://").size());
        hostAndPort = hostAndPort.substr(0, hostAndPort.find('/'));
    }
    const auto target = connectTo(hostAndPort, client.stop());
    if (!target)
        client.write("HTTP/1.1 502 Bad Gateway\r\nContent-Length: 0\r\n\r\n");
    else if (tunnel)
        openTunnel(client, G_IO_STREAM(target.get()));
    else
        passOn(client, request, G_IO_STREAM(target.get()));
}

} // namespace

RecordingProxy::RecordingProxy() {
    server_.handle("*", serve);
}

void RecordingProxy::askForCredentials() {
    server_.handle("*", [](ServerConnection& client, const ReceivedRequest&) {
        client.write("HTTP/1.1 407 Proxy Authentication Required\r\n"
                     "Proxy-Authenticate: Basic realm=\"proxy\"\r\nContent-Length: 4\r\n\r\nno!\n");
        client.waitForClose();
    });
}

} // namespace tessaro::test
