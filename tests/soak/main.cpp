#include "Services/SupportClient.h"
#include "Views/Sheets/AccountDetailSheet.h"
#include "Views/Sheets/AddPageSheet.h"
#include "Views/Sheets/DialogPresenter.h"
#include "Views/Shell/MainSplitView.h"
#include "Views/Shell/Resources.h"
#include "support/Gtk/RealEngine.h"
#include "support/Gtk/TestScreen.h"

#include <adwaita.h>
#include <gtkmm/init.h>
#include <malloc.h>

#include <fstream>
#include <iostream>

using namespace tessaro;

namespace {

constexpr int rounds = 100;
constexpr int accountsPerRound = 2, switchesPerRound = 10, sheetsPerRound = 5, togglesPerRound = 2;
constexpr std::chrono::milliseconds hour = std::chrono::hours(1);
constexpr double mostGrowth = 5; ///< In MiB, counted from the end of the first tenth.

/// The memory of this process, in MiB (proc(5), smaps_rollup).
double memory(const std::string& key) {
    malloc_trim(0); // Freed memory that the allocator keeps is not a leak.
    std::ifstream file("/proc/self/smaps_rollup");
    for (std::string line; std::getline(file, line);)
        if (line.starts_with(key + ":"))
            return std::stod(line.substr(key.size() + 1)) / 1024;
    return 0;
}

/// The main window's content with many accounts, used as on a long day.
class Day {
public:
    explicit Day(const std::string& inboxOrigin) {
        screen_.endpoints.inboxOrigin = inboxOrigin;
        std::vector<PageConfig> pages;
        for (int i = 0; i < rounds * accountsPerRound; ++i) {
            accounts_.push_back(test::makeAccount("Tài khoản " + std::to_string(i)));
            for (int page = 0; page < 5; ++page)
                pages.push_back(test::makePage(accounts_.back(), std::to_string(10 * i + page)));
        }
        screen_.store.saveAccounts(accounts_);
        screen_.store.savePages(pages);
        view_.emplace(screen_.context, support_);
        screen_.show(*view_);
    }
    ~Day() { screen_.window.unset_child(); }

    void passRound(int round) {
        for (int i = 0; i < accountsPerRound; ++i) {
            view_->accountsVM().selectAccount(accounts_[round * accountsPerRound + i]);
            screen_.settle();
            for (int page = 0; page < switchesPerRound / accountsPerRound; ++page) {
                view_->pagesVM().selectPage(view_->pagesVM().pages->at(page));
                screen_.settle();
            }
        }
        for (int i = 0; i < sheetsPerRound; ++i) {
            if (i % 2)
                openAndClose(std::make_unique<AddPageSheet>(
                    screen_.context, view_->pagesVM(), accounts_[round]));
            else
                openAndClose(std::make_unique<AccountDetailSheet>(
                    screen_.context, AccountDetailSheet::Mode::add(), [](auto&&...) {}));
        }
        for (int i = 0; i < togglesPerRound; ++i) {
            screen_.theme.toggleTheme();
            screen_.settle();
        }
        // A browser that was dropped lives until its scripts have run for the last time.
        screen_.clock.advance(hour / rounds);
        screen_.settle();
    }

private:
    void openAndClose(std::unique_ptr<Sheet> sheet) {
        sheet->onDismiss([this] { sheets_.dismiss(); });
        Sheet& shown = *sheet;
        sheets_.present(std::move(sheet), *view_);
        test::TestScreen::settle(shown);
        test::press(shown, "Hủy");
        test::runPending(); // A dismissed sheet is deleted when the main loop is idle.
    }

    test::TestScreen screen_{&test::realEngine()};
    SupportClient support_{
        screen_.settings, "http://127.0.0.1:9", screen_.device, screen_.logger, {}};
    std::vector<Account> accounts_;
    std::optional<MainSplitView> view_;
    DialogPresenter sheets_;
};

} // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: tessaro_soak INBOX-ORIGIN\n";
        return 2;
    }
    Gtk::init_gtkmm_internals();
    adw_init();
    registerResources();
    Day day(arguments[1]);
    double atTenth = 0;
    for (int round = 0; round < rounds; ++round) {
        day.passRound(round);
        if ((round + 1) % (rounds / 10) != 0)
            continue;
        std::cout << round + 1 << " of " << rounds << " rounds: " << memory("Pss_Anon")
                  << " MiB of its own, " << memory("Rss") << " MiB resident" << std::endl;
        if (!atTenth)
            atTenth = memory("Rss");
    }
    const double growth = memory("Rss") - atTenth;
    std::cout << "grown by " << growth << " MiB since the first tenth" << std::endl;
    return growth < mostGrowth ? 0 : 1;
}
