#include "support/ServerConnection.h"

#include <sstream>
#include <utility>

namespace tessaro::test {

ServerConnection::ServerConnection(
    GObjectPtr<GSocketConnection> socket, GObjectPtr<GCancellable> stop)
    : socket_(std::move(socket)), stop_(std::move(stop)) {
    use(GObjectPtr<GIOStream>::share(G_IO_STREAM(socket_.get())));
}

void ServerConnection::startTls(const std::string& identity) {
    const auto certificate = GObjectPtr<GTlsCertificate>::adopt(
        g_tls_certificate_new_from_pem(identity.c_str(), -1, nullptr));
    use(GObjectPtr<GIOStream>::adopt(
        g_tls_server_connection_new(stream_.get(), certificate.get(), nullptr)));
}

void ServerConnection::use(GObjectPtr<GIOStream> stream) {
    stream_ = std::move(stream);
    input_ = GObjectPtr<GDataInputStream>::adopt(
        g_data_input_stream_new(g_io_stream_get_input_stream(stream_.get())));
    g_data_input_stream_set_newline_type(input_.get(), G_DATA_STREAM_NEWLINE_TYPE_CR_LF);
    // The plain stream must not close the connection below TLS when it is dropped.
    g_filter_input_stream_set_close_base_stream(G_FILTER_INPUT_STREAM(input_.get()), FALSE);
}

std::optional<std::string> ServerConnection::readLine() {
    const GCharPtr line(g_data_input_stream_read_line(input_.get(), nullptr, stop_.get(), nullptr));
    return line ? std::optional<std::string>(line.get()) : std::nullopt;
}

std::optional<ReceivedRequest> ServerConnection::readRequest() {
    auto line = readLine();
    if (!line)
        return std::nullopt;
    ReceivedRequest request;
    std::istringstream(*line) >> request.method >> request.target;
    while ((line = readLine()) && !line->empty()) {
        const auto colon = line->find(": ");
        if (colon == std::string::npos)
            return std::nullopt;
        const auto name = g_ascii_strdown(line->c_str(), static_cast<gssize>(colon));
        request.headers[takeString(name)] = line->substr(colon + 2);
    }
    if (const auto length = request.headers.find("content-length"); length != request.headers.end())
        request.body.resize(std::stoul(length->second));
    if (!line || !g_input_stream_read_all(
                     G_INPUT_STREAM(input_.get()), request.body.data(), request.body.size(),
                     nullptr, stop_.get(), nullptr))
        return std::nullopt;
    return request;
}

bool ServerConnection::write(std::string_view bytes) {
    return g_output_stream_write_all(
        g_io_stream_get_output_stream(stream_.get()), bytes.data(), bytes.size(), nullptr,
        stop_.get(), nullptr);
}

bool ServerConnection::pause(std::chrono::milliseconds time) {
    GErrorSlot error;
    g_socket_condition_timed_wait(
        g_socket_connection_get_socket(socket_.get()), G_IO_IN,
        std::chrono::microseconds(time).count(), stop_.get(), error.out());
    return error.matches(G_IO_ERROR, G_IO_ERROR_TIMED_OUT);
}

void ServerConnection::waitForClose() {
    while (g_input_stream_skip(G_INPUT_STREAM(input_.get()), 4096, stop_.get(), nullptr) > 0) {
    }
}

void ServerConnection::close() {
    g_io_stream_close(stream_.get(), stop_.get(), nullptr);
}

void ServerConnection::drop() {
    g_io_stream_close(G_IO_STREAM(socket_.get()), stop_.get(), nullptr);
}

} // namespace tessaro::test
