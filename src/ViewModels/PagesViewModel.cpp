#include "ViewModels/PagesViewModel.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace tessaro {

PagesViewModel::PagesViewModel(
    DataStore& store, AppLogger& logger, const Clock& clock, GraphClientFactory makeClient)
    : store_(store), logger_(logger), clock_(clock), makeClient_(std::move(makeClient)) {}

void PagesViewModel::loadPages(const AccountId& account) {
    currentAccountId_ = account;
    pages.set(store_.pages(account));
    if (*selectedPage && std::ranges::find(*pages, **selectedPage) == pages->end())
        selectedPage.set(std::nullopt);
    fetchMissingPictures();
}

void PagesViewModel::fetchMissingPictures() {
    std::optional<Account> owner;
    for (auto& candidate : store_.loadAccounts()) {
        if (candidate.id == currentAccountId_) {
            owner = std::move(candidate);
            break;
        }
    }
    for (const PageConfig& page : *pages) {
        std::error_code ignored;
        if (std::filesystem::exists(store_.localAvatarURL(page.pageId.text), ignored))
            continue;
        fetchPicture(
            makeClient_(page.pageToken, owner), page.pageId,
            "PagesVM: Lỗi tải avatar trang " + page.pageName)
            .detach();
    }
}

Task<void> PagesViewModel::fetchPicture(
    std::shared_ptr<MetaGraphClient> client, PageId id, std::string complaint) {
    const auto alive = lifetime_.watch();
    const auto picture = co_await client->fetchCustomerAvatarData(id);
    if (!alive)
        co_return;
    if (!picture) {
        logger_.log(complaint + ": " + picture.error().message, "ERROR");
        co_return;
    }
    store_.saveAvatarData(id.text, *picture);
    changed.emit();
}

void PagesViewModel::clearPages() {
    currentAccountId_.reset();
    pages.set({});
    selectedPage.set(std::nullopt);
}

Task<void> PagesViewModel::addPage(SecretText token, Account account) {
    const auto alive = lifetime_.watch();
    isVerifying.set(true);
    verifyError.set(std::nullopt);
    const auto client = makeClient_(token, account);
    const auto info = co_await client->fetchPageInfo();
    if (!alive)
        co_return;
    if (!info) {
        logger_.log("PagesVM: Lỗi khi thêm trang: " + info.error().message, "ERROR");
        verifyError.set(info.error().message);
    } else if (std::ranges::find(*pages, info->id, &PageConfig::pageId) != pages->end()) {
        verifyError.set("Page \"" + info->name + "\" đã tồn tại trong tài khoản này.");
    } else {
        append(
            {.id = PageConfigId::random(),
             .accountId = account.id,
             .pageToken = token,
             .pageId = info->id,
             .pageName = info->name,
             .pageAvatarUrl = info->picture ? info->picture->data.url : "",
             .isConnected = true,
             .createdAt = clock_.now()});
        isVerifying.set(false);
        fetchPicture(client, info->id, "PagesVM: Lỗi tải avatar khi thêm trang " + info->name)
            .detach();
        co_return;
    }
    isVerifying.set(false);
}

void PagesViewModel::append(PageConfig page) {
    auto list = *pages;
    list.push_back(page);
    pages.set(std::move(list));
    savePagesGlobal();
    selectedPage.set(std::move(page));
}

void PagesViewModel::savePagesGlobal() {
    auto all = store_.loadPages();
    std::erase_if(all, [&](const PageConfig& page) { return page.accountId == currentAccountId_; });
    all.insert(all.end(), pages->begin(), pages->end());
    store_.savePages(std::move(all));
}

void PagesViewModel::deletePage(const PageConfig& page) {
    // The argument may be one of the entries that go.
    const PageConfig deleted = page;
    auto list = *pages;
    std::erase(list, deleted);
    pages.set(std::move(list));
    store_.deletePage(deleted.id);
    if (*selectedPage == deleted)
        selectedPage.set(pages->empty() ? std::nullopt : std::optional(pages->front()));
}

void PagesViewModel::selectPage(const PageConfig& page) {
    selectedPage.set(page);
}

} // namespace tessaro
