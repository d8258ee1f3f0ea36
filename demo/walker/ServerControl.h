#pragma once

#include "Platform/GHandle.h"

#include <libsoup/soup.h>
#include <nlohmann/json.hpp>

#include <string>

namespace tessaro::demo {

/// What the walker asks of the demo server. Each call blocks until it is answered.
class ServerControl {
public:
    explicit ServerControl(std::string origin);

    /// The logs sent in so far, an array of uuid, filename and content.
    nlohmann::json uploads() const { return get("/demo/uploads"); }
    /// How the open inbox page says it is being shown; null before the first report.
    nlohmann::json view() const { return get("/demo/view"); }
    /// Keeps back what "graph", "inbox" or "support" answers, until it is released.
    void hold(const std::string& site) const { send("POST", "/demo/hold?site=" + site); }
    void release(const std::string& site) const { send("POST", "/demo/release?site=" + site); }

private:
    nlohmann::json get(const std::string& path) const;
    std::string send(const char* method, const std::string& path) const;

    std::string origin_;
    GObjectPtr<SoupSession> session_;
};

} // namespace tessaro::demo
