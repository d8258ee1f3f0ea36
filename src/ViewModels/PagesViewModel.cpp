#include "ViewModels/PagesViewModel.h"

#include "Platform/Background.h"
#include "Services/AccountRoutes.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace tessaro {

namespace {
constexpr const char* domain = "Pages";
}

PagesViewModel::PagesViewModel(
    DataStore& store, AppLogger& logger, const Clock& clock, GraphClientFactory makeClient,
    PictureCheck isPicture)
    : store_(store),
      logger_(logger),
      clock_(clock),
      makeClient_(std::move(makeClient)),
      isPicture_(std::move(isPicture)) {}

void PagesViewModel::loadPages(const AccountId& account) {
    currentAccountId_ = account;
    pages.set(store_.pages(account));
    if (*selectedPage && std::ranges::find(*pages, **selectedPage) == pages->end())
        selectedPage.set(std::nullopt);
    fetchMissingPictures();
}

void PagesViewModel::fetchMissingPictures() {
    const auto owner = store_.account(*currentAccountId_);
    for (const PageConfig& page : *pages) {
        // A power cut can leave an empty file.
        std::error_code missing;
        if (std::filesystem::file_size(store_.localAvatarURL(page.pageId.text), missing) > 0 &&
            !missing)
            continue;
        fetchPicture(
            makeClient_(page.pageToken, owner),
            {page.pageId, page.pageToken, AccountRoutes::proxyOf(owner)},
            "PagesVM: Lỗi tải avatar trang " + page.pageName);
    }
}

void PagesViewModel::fetchPicture(
    const std::shared_ptr<MetaGraphClient>& client, Download download, std::string complaint) {
    if (std::ranges::find(downloads_, download) != downloads_.end())
        return;
    downloads_.push_back(download);
    run(client, std::move(download), std::move(complaint)).detach();
}

Task<void> PagesViewModel::run(
    std::shared_ptr<MetaGraphClient> client, Download download, std::string complaint) {
    const auto alive = lifetime_.watch();
    const auto isPicture = isPicture_;
    auto picture = co_await client->fetchCustomerAvatarData(download.id);
    if (picture && isPicture) {
        auto work = [&] { return isPicture(*picture); };
        auto checking = inBackground(std::move(work));
        if (!co_await std::move(checking))
            picture = failure("Pictures", 0, "Dữ liệu nhận được không phải là ảnh.");
    }
    if (!alive)
        co_return;
    std::erase(downloads_, download);
    if (!picture) {
        logger_.log(complaint + ": " + picture.error().message, "ERROR");
        co_return;
    }
    store_.saveAvatarData(download.id.text, *picture);
    changed.emit();
}

void PagesViewModel::clearPages() {
    currentAccountId_.reset();
    pages.set({});
    selectedPage.set(std::nullopt);
}

Task<Result<void>> PagesViewModel::addPage(SecretText token, Account account) {
    const auto alive = lifetime_.watch();
    isVerifying.set(true);
    verifyError.set(std::nullopt);
    const auto client = makeClient_(token, account);
    auto info = co_await client->fetchPageInfo();
    if (!alive)
        co_return tl::unexpected(Error{}); // Nobody is left to show one.
    if (info && !store_.account(account.id))
        info = failure(domain, 0, "Tài khoản đã bị xóa nên Page không được thêm.");
    if (!info)
        logger_.log("PagesVM: Lỗi khi thêm trang: " + info.error().message, "ERROR");
    const auto added = info ? append(
                                  {.id = PageConfigId::random(),
                                   .accountId = account.id,
                                   .pageToken = token,
                                   .pageId = info->id,
                                   .pageName = info->name,
                                   .pageAvatarUrl = info->picture ? info->picture->data.url : "",
                                   .isConnected = true,
                                   .createdAt = clock_.now()})
                            : tl::unexpected(info.error());
    if (!added)
        verifyError.set(added.error().message);
    isVerifying.set(false);
    if (added)
        fetchPicture(
            client, {info->id, token, AccountRoutes::proxyOf(account)},
            "PagesVM: Lỗi tải avatar khi thêm trang " + info->name);
    co_return added;
}

Result<void> PagesViewModel::append(PageConfig page) {
    const auto own = store_.pages(page.accountId);
    if (std::ranges::find(own, page.pageId, &PageConfig::pageId) != own.end())
        return failure(domain, 0, "Page \"" + page.pageName + "\" đã tồn tại trong tài khoản này.");
    savePagesGlobal(page);
    if (page.accountId == currentAccountId_) {
        pages.set(store_.pages(page.accountId));
        selectedPage.set(std::move(page));
    }
    return {};
}

void PagesViewModel::savePagesGlobal(const PageConfig& added) {
    auto all = store_.loadPages();
    std::ranges::stable_partition(
        all, [&](const PageConfig& page) { return page.accountId != currentAccountId_; });
    all.push_back(added);
    store_.savePages(std::move(all));
}

void PagesViewModel::deletePage(const PageConfig& page) {
    // A copy, because the argument may be an entry of the list that is replaced.
    const PageConfig deleted = page;
    store_.deletePage(deleted.id);
    auto list = *pages;
    std::erase(list, deleted);
    pages.set(std::move(list));
    if (*selectedPage == deleted)
        selectedPage.set(pages->empty() ? std::nullopt : std::optional(pages->front()));
}

void PagesViewModel::selectPage(const PageConfig& page) {
    selectedPage.set(page);
}

} // namespace tessaro
