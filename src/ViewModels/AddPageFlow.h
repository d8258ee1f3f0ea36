#pragma once

#include "Platform/Lifetime.h"
#include "Platform/Property.h"
#include "ViewModels/PagesViewModel.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tessaro {

/// The kind of a pasted token.
enum class TokenType { unknown, userToken, pageToken };

/// The logic of one open add-Page dialog. It finds out what the pasted token is, offers the Pages
/// of a user token, and passes one Page token to the Pages model. Dropping it while a request runs
/// is safe; the result is dropped too. UI thread only.
class AddPageFlow {
public:
    using ResolvedPage = MetaGraphClient::ResolvedPage;

    /// Loading more Pages stops when there are so many.
    static constexpr std::size_t mostPages = 500;

    /// @param dismiss  closes the dialog; it may drop this flow
    AddPageFlow(
        PagesViewModel& pagesVM, Account account, GraphClientFactory makeClient,
        std::function<void()> dismiss);

    Property<std::string> token; ///< The text of the token field, as typed or pasted.
    Property<bool> isVerifying;
    Property<bool> isAdding; ///< The chosen Page is being added.
    Property<std::optional<std::string>> errorMessage;
    Property<TokenType> tokenType;
    /// The Pages of a user token. A verification empties it; otherwise it only grows at its end.
    Property<std::vector<ResolvedPage>> resolvedPages;
    Property<bool> hasMorePages; ///< The Graph API has Pages after these.
    Property<bool> isLoadingMore;
    Property<std::optional<ResolvedPage>> selectedResolvedPage;
    Property<std::optional<PageInfo>> directPageInfo;

    const Account& account() const { return account_; }
    /// Whether the token field has more than blanks and line breaks.
    bool hasToken() const;
    void verifyToken();
    /// Asks for the Pages after `resolvedPages`. It leaves out those that are there already, and
    /// goes on asking while there are only such, within limits. Does nothing while it runs and when
    /// there are no more. After an error the list is as it was.
    void loadMorePages();
    bool canAdd() const;
    /// Adds the chosen Page. Then closes the dialog, or shows the error. Does nothing while a Page
    /// is being added.
    void addSelectedPage();

private:
    SecretText trimmedToken() const;
    Task<void> verify(SecretText pasted);
    Task<void> loadMore();
    /// Appends those Pages that are new, `mostPages` in all. False when none is.
    bool append(const std::vector<ResolvedPage>& pages);
    void setNext(std::string cursor);
    Task<void> add(SecretText pageToken);

    PagesViewModel& pagesVM_;
    const Account account_;
    GraphClientFactory makeClient_;
    std::function<void()> dismiss_;
    std::shared_ptr<MetaGraphClient> client_; ///< Of the last verification.
    std::string next_; ///< The cursor of the Pages after `resolvedPages`; empty for none.
    Lifetime lifetime_;
};

} // namespace tessaro
