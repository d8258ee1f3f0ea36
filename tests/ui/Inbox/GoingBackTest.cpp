#include "ui/Inbox/InboxScreen.h"

#include "support/Gtk/Keyboard.h"

namespace tessaro::test {
namespace {

using GoingBack = InboxScreen;

TEST_F(GoingBack, SelectsThePageWhoseInboxComesOnScreenWithoutLoadingIt) {
    const Account other = makeAccount("Hai");
    auto pages = *content->pagesVM().pages;
    pages[2].accountId = other.id;
    world.store.saveAccounts({account, other});
    world.store.savePages(pages);
    content->accountsVM().loadAccounts();
    content->pagesVM().loadPages(account.id);
    auto* const browser = &webView();
    const auto isShown = [&](const std::string& pageId, const std::string& title) {
        return runUntil(
            [&] { return selectedPage() == pageId && window.get_title().raw() == title; });
    };
    Keyboard::press(GDK_KEY_2, GDK_KEY_Control_L);
    ASSERT_TRUE(waitForInbox(DemoWorld::coffee));
    ASSERT_TRUE(isShown(DemoWorld::coffee, "(1) Tessaro"));

    ask(webView(), "history.back()");
    EXPECT_TRUE(isShown(DemoWorld::flowers, "(2) Tessaro"));
    ASSERT_TRUE(waitForInbox(DemoWorld::flowers));
    // A Page of another account, and a Page that the site shows without a load.
    ask(webView(), "location.search = '?asset_id=" + std::string(DemoWorld::books) + "'");
    EXPECT_TRUE(isShown(DemoWorld::books, "(3) Tessaro"));
    EXPECT_EQ(*content->accountsVM().selectedAccount, other);
    ASSERT_TRUE(waitForInbox(DemoWorld::books));
    ask(webView(), "(window.isOld = true, history.pushState(null, '', '?asset_id=" +
                       std::string(DemoWorld::flowers) + "'))");
    EXPECT_TRUE(runUntil([&] { return selectedPage() == DemoWorld::flowers; }));
    ask(webView(), "history.replaceState(null, '', '?asset_id=unknown')");
    runPending();
    EXPECT_EQ(selectedPage(), DemoWorld::flowers);
    EXPECT_EQ(ask(webView(), "window.isOld"), "true");
    EXPECT_EQ(&webView(), browser);
}

} // namespace
} // namespace tessaro::test
