#pragma once

#include <nlohmann/json.hpp>

#include <map>
#include <string>
#include <utility>

namespace tessaro::demo {

/// One request as the demo's sites see it. Paths and query values are decoded.
struct Request {
    std::string method;
    std::string path;
    std::map<std::string, std::string> query;
    std::string body;
    std::string origin; ///< "http://127.0.0.1:PORT", for links back to this server.

    /// The value of a query member; empty when there is none.
    std::string value(const std::string& key) const {
        const auto found = query.find(key);
        return found == query.end() ? std::string() : found->second;
    }
};

/// The server's answer to one request.
struct Reply {
    unsigned status = 200;
    std::string contentType = "text/plain; charset=utf-8";
    std::string body;
    std::string location;     ///< Where a redirect leads.
    std::string attachment{}; ///< The name under which it is to be saved rather than shown.

    static Reply json(const nlohmann::json& value, unsigned status = 200) {
        return {status, "application/json; charset=UTF-8", value.dump(), {}};
    }
    static Reply html(std::string text, unsigned status = 200) {
        return {status, "text/html; charset=utf-8", std::move(text), {}};
    }
    static Reply redirect(std::string location) { return {302, {}, {}, std::move(location)}; }
    static Reply notFound() {
        return {404, "text/plain; charset=utf-8", "Không có gì ở đây.\n", {}};
    }
};

} // namespace tessaro::demo
