#pragma once

#include "Models/Account.h"
#include "Platform/HttpClient.h"
#include "Services/PictureQueue.h"

#include <map>
#include <memory>
#include <optional>

namespace tessaro {

/// How the requests of accounts with the same proxy go.
struct AccountRoute {
    HttpClient http;
    PictureQueue pictures{http};
};

/// The HTTP clients of the accounts: one for each proxy, and one without. Accounts with the same
/// proxy share its connections, which stay open from one request to the next. UI thread.
class AccountRoutes {
public:
    /// @param options  limits and certificate authorities; the proxy comes from the account
    explicit AccountRoutes(HttpOptions options = {});

    /// The route of that account's requests. When its proxy cannot be used, requests fail; they
    /// never go directly instead.
    std::shared_ptr<AccountRoute> of(const std::optional<Account>& account);

    /// The account's proxy if it is switched on and complete.
    static std::optional<HttpOptions::Proxy> proxyOf(const std::optional<Account>& account);

private:
    HttpOptions options_;
    std::map<std::optional<HttpOptions::Proxy>, std::shared_ptr<AccountRoute>> routes_;
};

} // namespace tessaro
