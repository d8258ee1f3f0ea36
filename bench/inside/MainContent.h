#pragma once

#include "Services/SupportClient.h"
#include "Views/Shell/MainSplitView.h"
#include "support/Gtk/RealEngine.h"
#include "support/Gtk/TestScreen.h"

#include <optional>
#include <vector>

namespace tessaro::bench {

/// The content of the main window, shown by this process.
class MainContent {
public:
    /// @param accountCount  each account has ten Pages with pictures
    explicit MainContent(int accountCount);
    ~MainContent();
    MainContent(const MainContent&) = delete;
    MainContent& operator=(const MainContent&) = delete;

    /// Selects another account that is in view. Returns the milliseconds that the UI thread works
    /// until the frame with the account's Pages is drawn. Their pictures may come later.
    double selectNextAccount();

private:
    void storePictures(const std::vector<PageConfig>& pages);

    test::TestScreen screen_{&test::realEngine()};
    SupportClient support_{
        screen_.settings, screen_.endpoints.inboxOrigin, screen_.device, screen_.logger, {}};
    std::optional<MainSplitView> view_;
    std::size_t selected_ = 0;
};

} // namespace tessaro::bench
