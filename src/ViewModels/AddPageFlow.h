#pragma once

#include "Platform/Lifetime.h"
#include "Platform/Property.h"
#include "ViewModels/PagesViewModel.h"

#include <functional>
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

    /// @param dismiss  closes the dialog; it may drop this flow
    AddPageFlow(
        PagesViewModel& pagesVM, Account account, GraphClientFactory makeClient,
        std::function<void()> dismiss);

    Property<std::string> token; ///< The text of the token field, as typed or pasted.
    Property<bool> isVerifying;
    Property<bool> isAdding; ///< The chosen Page is being added.
    Property<std::optional<std::string>> errorMessage;
    Property<TokenType> tokenType;
    Property<std::vector<ResolvedPage>> resolvedPages;
    Property<std::optional<ResolvedPage>> selectedResolvedPage;
    Property<std::optional<PageInfo>> directPageInfo;

    const Account& account() const { return account_; }
    /// Whether the token field has more than blanks and line breaks.
    bool hasToken() const;
    void verifyToken();
    bool canAdd() const;
    /// Adds the chosen Page. Then closes the dialog, or shows the error. Does nothing while a Page
    /// is being added.
    void addSelectedPage();

private:
    SecretText trimmedToken() const;
    Task<void> verify(SecretText pasted);
    Task<void> add(SecretText pageToken);

    PagesViewModel& pagesVM_;
    const Account account_;
    GraphClientFactory makeClient_;
    std::function<void()> dismiss_;
    Lifetime lifetime_;
};

} // namespace tessaro
