#pragma once

#include "ui/Inbox/InboxWorld.h"

#include "Services/SupportClient.h"
#include "Views/Inbox/FindBar.h"
#include "Views/Shell/MainSplitView.h"
#include "Views/Shell/MainWindow.h"
#include "support/Gtk/Widgets.h"

namespace tessaro::test {

/// The main window with three Pages. The inbox of the first one is shown and has the focus.
class InboxScreen : public testing::Test {
protected:
    InboxScreen();
    void SetUp() override;
    ~InboxScreen() override;

    template <typename Class>
    Class& only() {
        return *descendants<Class>(*content).at(0);
    }
    WebView& webView() { return *only<ClippedWebViewContainer>().webView(); }
    FindBar& bar() { return only<FindBar>(); }
    bool waitUntil(const std::string& expression) { return test::waitUntil(webView(), expression); }
    bool waitForInbox(const std::string& pageId);
    static void type(const std::string& letters);
    bool pageHasKeyboard() { return window.get_focus() == &webView().widget(); }
    /// The Graph id of the selected Page; empty when none is.
    std::string selectedPage();

    DemoWorld world;
    SupportClient support{world.settings, "http://127.0.0.1:9", world.device, world.logger, {}};
    const Account account = makeAccount();
    MainWindow window;
    std::optional<MainSplitView> content;
};

} // namespace tessaro::test
