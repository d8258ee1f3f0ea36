#pragma once

#include "Services/SupportClient.h"
#include "Views/Shell/MainSplitView.h"
#include "support/Gtk/TestScreen.h"

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

private:
    void storePictures(const std::vector<PageConfig>& pages);

    test::TestScreen screen_;
    SupportClient support_{
        screen_.settings, screen_.endpoints.inboxOrigin, screen_.device, screen_.logger, {}};
    std::optional<MainSplitView> view_;
    std::size_t selected_ = 0;
};

} // namespace tessaro::bench
