#include "ServerControl.h"

namespace tessaro::demo {

ServerControl::ServerControl(std::string origin)
    : origin_(std::move(origin)), session_(GObjectPtr<SoupSession>::adopt(soup_session_new())) {}

nlohmann::json ServerControl::get(const std::string& path) const {
    return nlohmann::json::parse(send("GET", path), nullptr, false);
}

std::string ServerControl::send(const char* method, const std::string& path) const {
    const auto message =
        GObjectPtr<SoupMessage>::adopt(soup_message_new(method, (origin_ + path).c_str()));
    const GBytesPtr body(
        soup_session_send_and_read(session_.get(), message.get(), nullptr, GErrorSlot().out()));
    gsize size = 0;
    const auto* data =
        body ? static_cast<const char*>(g_bytes_get_data(body.get(), &size)) : nullptr;
    return size ? std::string(data, size) : std::string();
}

} // namespace tessaro::demo
