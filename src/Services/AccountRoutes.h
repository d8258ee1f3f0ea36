#pragma once

#include "Models/Account.h"
#include "Services/PictureQueue.h"

#include <map>
#include <optional>

namespace tessaro {

/// The ways that the accounts' requests take: one for each proxy, and the direct one. Accounts with
/// the same proxy share its connections, which stay open from one request to the next. UI thread.
class AccountRoutes {
public:
    struct Route {
        HttpClient http;
        PictureQueue pictures{http};
    };

    /// @param options  limits and certificate authorities; the accounts say which proxy
    explicit AccountRoutes(HttpOptions options = {});

    /// The way of that account's requests. By a proxy that cannot be used they fail, and never go
    /// another way.
    Route of(const std::optional<Account>& account);

    /// The account's proxy where it is switched on and complete.
    static std::optional<HttpOptions::Proxy> proxyOf(const std::optional<Account>& account);

private:
    HttpOptions options_;
    std::map<std::optional<HttpOptions::Proxy>, Route> routes_;
};

} // namespace tessaro
