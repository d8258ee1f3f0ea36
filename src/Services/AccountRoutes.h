#pragma once

#include "Models/Account.h"
#include "Services/PictureQueue.h"

#include <map>
#include <optional>

namespace tessaro {

/// The HTTP clients of the accounts: one for each proxy, and one without. Accounts with the same
/// proxy share its connections, which stay open from one request to the next. UI thread.
class AccountRoutes {
public:
    struct Route {
        HttpClient http;
        PictureQueue pictures{http};
    };

    /// @param options  limits and certificate authorities; the proxy comes from the account
    explicit AccountRoutes(HttpOptions options = {});

    /// The route of that account's requests. When its proxy cannot be used, requests fail; they
    /// never go directly instead.
    Route of(const std::optional<Account>& account);

    /// The account's proxy if it is switched on and complete.
    static std::optional<HttpOptions::Proxy> proxyOf(const std::optional<Account>& account);

private:
    HttpOptions options_;
    std::map<std::optional<HttpOptions::Proxy>, Route> routes_;
};

} // namespace tessaro
