#pragma once

#include "Models/Account.h"
#include "Models/PageInfo.h"
#include "Platform/Lifetime.h"
#include "Platform/Result.h"
#include "Platform/SecretText.h"
#include "Platform/Task.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tessaro {

class AccountRoutes;
struct AccountRoute;

/// A client of the Facebook Graph API for one access token and, optionally, the account under which
/// it is used. Short-lived; UI thread. Errors have the domain "MetaGraph", "HTTP" or "JSON", and
/// their messages never hold the token, in clear or percent-encoded, even when the server echoes
/// it.
class MetaGraphClient {
public:
    /// One Page that a user token manages.
    struct ResolvedPage {
        PageId id;
        std::string name;
        SecretText accessToken; ///< The Page's own token.
        std::optional<std::string> avatarUrl;

        bool operator==(const ResolvedPage&) const = default;
    };

    /// One part of the list of Pages that a user token manages. A part may be empty.
    struct ManagedPages {
        std::vector<ResolvedPage> pages;
        std::string next; ///< The cursor of the next part; empty when this is the last one.
    };

    /// @param graphBaseURL  scheme, host and version path that begin every request
    /// @param account       its proxy is used when it is switched on and complete
    MetaGraphClient(
        std::string graphBaseURL, SecretText pageToken, const std::optional<Account>& account,
        AccountRoutes& routes);
    virtual ~MetaGraphClient() = default;

    /// The description of the token's own object, "/me". Only the first successful call asks the
    /// server.
    virtual Task<Result<PageInfo>> fetchPageInfo();
    /// The Pages that a user token manages, "/me/accounts", in the order received.
    /// @param after  the cursor of the part that is asked for; empty for the first one
    virtual Task<Result<ManagedPages>> fetchManagedPages(std::string after = {});
    /// The bytes of the picture of any Graph object, fetched through the route's picture queue.
    virtual Task<Result<std::string>> fetchCustomerAvatarData(PageId customerId);

private:
    /// The address of that path with the token at its end. The path ends in "access_token=".
    std::string addressOf(const std::string& path) const;
    /// The body of the answer at that path, if it reports success.
    Task<Result<std::string>> get(const std::string& path);

    std::string graphBaseURL_;
    SecretText pageToken_;
    std::shared_ptr<AccountRoute> route_;
    std::optional<PageInfo> cachedPageInfo_;
    Lifetime lifetime_;
};

/// Makes the client for a token and its account.
using GraphClientFactory = std::function<std::shared_ptr<MetaGraphClient>(
    SecretText token, std::optional<Account> account)>;

} // namespace tessaro
