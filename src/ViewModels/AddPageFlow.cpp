#include "ViewModels/AddPageFlow.h"

#include "Platform/Text.h"

#include <iostream>
#include <set>
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
    setNext("");
    isLoadingMore.set(false);
    verify(trimmedToken()).detach();
}

Task<void> AddPageFlow::verify(SecretText pasted) {
    const auto alive = lifetime_.watch();
    const auto client = client_ = makeClient_(std::move(pasted), account_);
    const auto managed = co_await client->fetchManagedPages();
    if (!alive)
        co_return;
    if (managed && !managed->pages.empty()) {
        resolvedPages.set(managed->pages);
        tokenType.set(TokenType::userToken);
        isVerifying.set(false);
        if (managed->pages.size() == 1)
            selectedResolvedPage.set(managed->pages.front());
        setNext(managed->next);
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

void AddPageFlow::loadMorePages() {
    if (*isLoadingMore || !*hasMorePages)
        return;
    isLoadingMore.set(true);
    errorMessage.set(std::nullopt);
    loadMore().detach();
}

Task<void> AddPageFlow::loadMore() {
    constexpr int mostRequests = 10; // In case the Graph API never comes to an end.
    const auto alive = lifetime_.watch();
    const auto client = client_;
    bool isNew = false;
    for (int request = 0; request < mostRequests && *hasMorePages && !isNew; ++request) {
        const auto managed = co_await client->fetchManagedPages(next_);
        if (!alive || client != client_)
            co_return; // Another verification has begun.
        if (!managed) {
            errorMessage.set(managed.error().message);
            break;
        }
        isNew = append(managed->pages);
        setNext(managed->next);
    }
    isLoadingMore.set(false);
}

bool AddPageFlow::append(const std::vector<ResolvedPage>& pages) {
    auto all = *resolvedPages;
    std::set<std::string> known;
    for (const auto& page : all)
        known.insert(page.id.text);
    for (const auto& page : pages)
        if (all.size() < mostPages && known.insert(page.id.text).second)
            all.push_back(page);
    const bool isNew = all.size() > resolvedPages->size();
    if (isNew)
        resolvedPages.set(std::move(all));
    return isNew;
}

void AddPageFlow::setNext(std::string cursor) {
    next_ = std::move(cursor);
    hasMorePages.set(!next_.empty() && resolvedPages->size() < mostPages);
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
