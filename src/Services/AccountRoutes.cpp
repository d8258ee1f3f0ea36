#include "Services/AccountRoutes.h"

namespace tessaro {

AccountRoutes::AccountRoutes(HttpOptions options) : options_(std::move(options)) {}

std::optional<HttpOptions::Proxy> AccountRoutes::proxyOf(const std::optional<Account>& account) {
    if (!account || !account->proxyEnabled || account->proxyHost.empty() || account->proxyPort <= 0)
        return std::nullopt;
    return HttpOptions::Proxy{account->proxyHost, account->proxyPort};
}

AccountRoutes::Route AccountRoutes::of(const std::optional<Account>& account) {
    auto options = options_;
    options.proxy = proxyOf(account);
    const auto known = routes_.find(options.proxy);
    return known != routes_.end()
               ? known->second
               : routes_.emplace(options.proxy, Route{HttpClient(options)}).first->second;
}

} // namespace tessaro
