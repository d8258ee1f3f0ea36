#include "support/ServerConnection.h"

#include <algorithm>
#include <utility>

namespace tessaro::test {

ServerConnection::ServerConnection(
    GObjectPtr<GSocketConnection> socket, GObjectPtr<GIOStream> stream,
    GObjectPtr<GCancellable> stop)
    : socket_(std::move(socket)), stream_(std::move(stream)), stop_(std::move(stop)) {}

bool ServerConnection::fill() {
    char buffer[4096];
    const auto length = g_input_stream_read(
        g_io_stream_get_input_stream(stream_.get()), buffer, sizeof buffer, stop_.get(), nullptr);
    if (length > 0)
        received_.append(buffer, static_cast<std::size_t>(length));
    return length > 0;
}

std::optional<std::string> ServerConnection::readLine() {
    std::size_t end;
    while ((end = received_.find("\r\n")) == std::string::npos) {
        if (!fill())
            return std::nullopt;
    }
    auto line = received_.substr(0, end);
    received_.erase(0, end + 2);
    return line;
}

std::optional<ReceivedRequest> ServerConnection::readRequest() {
    auto line = readLine();
    if (!line)
        return std::nullopt;
    ReceivedRequest request;
    const auto methodEnd = line->find(' ');
    const auto targetEnd = line->rfind(' ');
    if (methodEnd == std::string::npos || targetEnd <= methodEnd)
        return std::nullopt;
    request.method = line->substr(0, methodEnd);
    request.target = line->substr(methodEnd + 1, targetEnd - methodEnd - 1);
    while ((line = readLine()) && !line->empty()) {
        const auto colon = std::min(line->find(':'), line->size());
        auto name = line->substr(0, colon);
        std::transform(name.begin(), name.end(), name.begin(), g_ascii_tolower);
        const auto value = line->find_first_not_of(" :", colon);
        request.headers[name] = value == std::string::npos ? "" : line->substr(value);
    }
    if (!line)
        return std::nullopt;
    const auto announced = request.headers.find("content-length");
    const std::size_t length =
        announced == request.headers.end() ? 0 : std::stoul(announced->second);
    while (received_.size() < length) {
        if (!fill())
            return std::nullopt;
    }
    request.body = received_.substr(0, length);
    received_.erase(0, length);
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
    while (fill()) {
    }
}

void ServerConnection::close() {
    g_io_stream_close(stream_.get(), stop_.get(), nullptr);
}

void ServerConnection::drop() {
    g_io_stream_close(G_IO_STREAM(socket_.get()), stop_.get(), nullptr);
}

} // namespace tessaro::test
