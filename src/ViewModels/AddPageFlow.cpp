#include "ViewModels/AddPageFlow.h"

#include "Platform/Text.h"

#include <iostream>
#include <utility>

namespace tessaro {

AddPageFlow::AddPageFlow(
    PagesViewModel& pagesVM, Account account, GraphClientFactory makeClient,
    std::function<void()> dismiss)
    : pagesVM_(pagesVM),
      account_(std::move(account)),
      makeClient_(std::move(makeClient)),
      dismiss_(std::move(dismiss)) {}

SecretText AddPageFlow::trimmedToken() const {
    return SecretText(trimWhitespaceAndNewlines(*token));
}

bool AddPageFlow::hasToken() const {
    return !trimmedToken().empty();
}

void AddPageFlow::verifyToken() {
    if (!hasToken())
        return;
    isVerifying.set(true);
    errorMessage.set(std::nullopt);
    tokenType.set(TokenType::unknown);
    resolvedPages.set({});
    selectedResolvedPage.set(std::nullopt);
    directPageInfo.set(std::nullopt);
    verify(trimmedToken()).detach();
}

Task<void> AddPageFlow::verify(SecretText pasted) {
    const auto alive = lifetime_.watch();
    const auto client = makeClient_(std::move(pasted), account_);
    const auto managed = co_await client->fetchManagedPages();
    if (!alive)
        co_return;
    if (managed && !managed->empty()) {
        resolvedPages.set(*managed);
        tokenType.set(TokenType::userToken);
        isVerifying.set(false);
        if (managed->size() == 1)
            selectedResolvedPage.set(managed->front());
        co_return;
    }
    if (!managed)
        std::cout << "AddPageSheet: me/accounts failed (likely Page token): "
                  << managed.error().message << std::endl;

    const auto info = co_await client->fetchPageInfo();
    if (!alive)
        co_return;
    if (info) {
        directPageInfo.set(*info);
        tokenType.set(TokenType::pageToken);
    } else {
        errorMessage.set(info.error().message);
    }
    isVerifying.set(false);
}

bool AddPageFlow::canAdd() const {
    return (*tokenType == TokenType::userToken && *selectedResolvedPage) ||
           (*tokenType == TokenType::pageToken && *directPageInfo);
}

void AddPageFlow::addSelectedPage() {
    if (*isAdding || !canAdd())
        return;
    isAdding.set(true);
    const bool isPicked = *tokenType == TokenType::userToken;
    add(isPicked ? (*selectedResolvedPage)->accessToken : trimmedToken()).detach();
}

Task<void> AddPageFlow::add(SecretText pageToken) {
    const auto alive = lifetime_.watch();
    const auto added = co_await pagesVM_.addPage(std::move(pageToken), account_);
    if (!alive)
        co_return;
    isAdding.set(false);
    if (!added) {
        errorMessage.set(added.error().message);
        co_return;
    }
    // A copy, because closing the dialog may drop this flow and its members.
    const auto dismiss = dismiss_;
    dismiss();
}

} // namespace tessaro
