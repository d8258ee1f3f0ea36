#include "Services/AccountRoutes.h"

namespace tessaro {

AccountRoutes::AccountRoutes(HttpOptions options) : options_(std::move(options)) {}

std::optional<HttpOptions::Proxy> AccountRoutes::proxyOf(const std::optional<Account>& account) {
    if (!account || !account->proxyEnabled || account->proxyHost.empty() || account->proxyPort <= 0)
        return std::nullopt;
    return HttpOptions::Proxy{account->proxyHost, account->proxyPort};
}

std::shared_ptr<AccountRoute> AccountRoutes::of(const std::optional<Account>& account) {
    auto options = options_;
    options.proxy = proxyOf(account);
    auto& route = routes_[options.proxy];
    if (!route)
        route = std::make_shared<AccountRoute>(AccountRoute{HttpClient(options)});
    return route;
}

} // namespace tessaro
