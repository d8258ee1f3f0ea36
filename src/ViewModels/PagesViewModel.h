#pragma once

#include "Models/PageConfig.h"
#include "Platform/Clock.h"
#include "Platform/HttpClient.h"
#include "Platform/Lifetime.h"
#include "Platform/Property.h"
#include "Platform/Task.h"
#include "Services/AppLogger.h"
#include "Services/DataStore.h"
#include "Services/MetaGraphClient.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessaro {

/// The Pages of the account that is shown, the selected Page, and how adding one goes. UI thread
/// only.
class PagesViewModel {
public:
    /// Whether the bytes are a whole picture. Called in the background.
    using PictureCheck = std::function<bool(std::string_view)>;

    /// @param isPicture  only what it accepts is stored in the cache; everything is, when it is
    /// empty
    PagesViewModel(
        DataStore& store, AppLogger& logger, const Clock& clock, GraphClientFactory makeClient,
        PictureCheck isPicture = {});

    Property<std::vector<PageConfig>> pages;          ///< In stored order; a new one comes last.
    Property<std::optional<PageConfig>> selectedPage; ///< A copy of the selected Page.
    Property<bool> showAddSheet;                      ///< Set and cleared by the screens only.
    Property<bool> isVerifying;                       ///< An addPage() is running.
    Property<std::optional<std::string>> verifyError; ///< Why the last addPage() failed.
    /// Emitted when a picture has arrived. No field has changed then.
    sigc::signal<void()> changed;

    /// Shows that account's Pages and fetches the pictures that are missing in the cache.
    void loadPages(const AccountId& account);
    void clearPages();
    /// Verifies the token once more and stores its Page under the account. The Page is shown and
    /// selected if its account is shown. Fails with the Graph client's error, or with the domain
    /// "Pages" and code 0 when the account is gone by then or already has the Page. `verifyError`
    /// then has the message.
    Task<Result<void>> addPage(SecretText token, Account account);
    void deletePage(const PageConfig& page);
    void selectPage(const PageConfig& page);

private:
    /// Stores the Page, unless its account already has it.
    Result<void> append(PageConfig page);
    /// Stores the new Page at the end of the whole list. The Pages of the account that is shown
    /// move to the end before it.
    void savePagesGlobal(const PageConfig& added);
    /// A picture that is being fetched, with the token and the proxy of the request.
    struct Download {
        PageId id;
        SecretText token;
        std::optional<HttpOptions::Proxy> proxy;

        bool operator==(const Download&) const = default;
    };

    void fetchMissingPictures();
    /// Fetches the picture into the cache, unless that is under way already. A failure is logged
    /// after the text of `complaint`.
    void fetchPicture(
        const std::shared_ptr<MetaGraphClient>& client, Download download, std::string complaint);
    Task<void>
    run(std::shared_ptr<MetaGraphClient> client, Download download, std::string complaint);

    DataStore& store_;
    AppLogger& logger_;
    const Clock& clock_;
    GraphClientFactory makeClient_;
    PictureCheck isPicture_;
    std::vector<Download> downloads_;
    std::optional<AccountId> currentAccountId_;
    Lifetime lifetime_;
};

} // namespace tessaro
