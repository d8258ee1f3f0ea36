#pragma once

#include "outside/Site.h"

#include "Services/SupportClient.h"
#include "Views/Shell/MainSplitView.h"
#include "support/Gtk/RealEngine.h"
#include "support/Gtk/TestScreen.h"

#include <functional>
#include <optional>
#include <vector>

namespace tessaro::bench {

/// The content of the main window in this process, in a window on screen.
class MainContent {
public:
    /// With so many accounts, each of which has ten Pages with pictures.
    explicit MainContent(int accountCount);
    ~MainContent();
    MainContent(const MainContent&) = delete;
    MainContent& operator=(const MainContent&) = delete;

    /// Selects another account that is in view. The milliseconds that the main loop works until the
    /// frame with the account's Pages is drawn; their pictures may come later.
    double selectNextAccount();

    struct Scrolling {
        std::vector<double> frames;  ///< What the main loop worked for each, in milliseconds.
        std::size_t mostButtons = 0; ///< That accounts had at a time.
    };
    /// Goes through all accounts from the first to the last one.
    Scrolling scrollAccounts();

    /// Selects the next one of the account's Pages and waits for the script in it to run.
    void openNextPage();

private:
    ScopedConnection afterEachFrame(std::function<void()> action);
    void storePictures(const std::vector<PageConfig>& pages);

    const Site site_;
    test::TestScreen screen_{&test::realEngine()};
    SupportClient support_{screen_.settings, site_.origin(), screen_.device, screen_.logger, {}};
    std::optional<MainSplitView> view_;
    std::size_t selected_ = 0;
    std::size_t opened_ = 0;
};

} // namespace tessaro::bench
