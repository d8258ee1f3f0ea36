#pragma once

#include "Models/PageConfig.h"
#include "Platform/Clock.h"
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
    /// Tells a whole picture from what is none. Called in the background.
    using PictureCheck = std::function<bool(std::string_view)>;

    /// @param isPicture  what it refuses does not get into the cache; without it everything does
    PagesViewModel(
        DataStore& store, AppLogger& logger, const Clock& clock, GraphClientFactory makeClient,
        PictureCheck isPicture = {});

    Property<std::vector<PageConfig>> pages;          ///< In stored order; a new one comes last.
    Property<std::optional<PageConfig>> selectedPage; ///< A copy of the selected Page.
    Property<bool> showAddSheet;                      ///< Set and cleared by the screens only.
    Property<bool> isVerifying;                       ///< An addPage() is running.
    Property<std::optional<std::string>> verifyError; ///< Why the last addPage() failed.
    /// Emitted when a picture has arrived, though no field changed.
    sigc::signal<void()> changed;

    /// Shows that account's Pages and fetches the pictures that the cache lacks.
    void loadPages(const AccountId& account);
    void clearPages();
    /// Verifies the token once more and stores its Page under the account, unless the account is
    /// gone by then or has that Page. The Page is shown and selected if its account is shown.
    /// Fails with the Graph client's error, or with the domain "Pages" and code 0. `verifyError`
    /// tells the last one's message.
    Task<Result<void>> addPage(SecretText token, Account account);
    void deletePage(const PageConfig& page);
    void selectPage(const PageConfig& page);

private:
    /// Refuses a Page that its account has already.
    Result<void> append(PageConfig page);
    /// Writes what is stored, with the Pages of the account that is shown moved to the end, and
    /// the new Page behind them.
    void savePagesGlobal(const PageConfig& added);
    /// A picture that is on its way, and by which token and which way it was asked for.
    struct Download {
        PageId id;
        SecretText token;
        std::optional<HttpOptions::Proxy> proxy;

        bool operator==(const Download&) const = default;
    };

    void fetchMissingPictures();
    /// Puts the picture into the cache, unless it is on its way already; a failure is logged behind
    /// the complaint.
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
