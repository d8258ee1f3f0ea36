#include "ui/Inbox/InboxWorld.h"

namespace tessaro::test {
namespace {

TEST(WebViewContainer, CutsSixtyPointsOffThePageAndShieldsThirtyAtAnySize) {
    InboxWorld world;
    InboxBrowser browser(world);
    Gtk::Widget& container = *browser.container;
    Gtk::Widget& page = browser.webView().widget();
    for (const auto& [width, height] : {std::pair(640, 480), std::pair(1100, 700)}) {
        browser.window.set_default_size(width, height);
        ASSERT_TRUE(runUntil([&] { return container.get_width() == width; }));
        EXPECT_TRUE(browser.waitUntil("innerWidth === " + std::to_string(width + 60)));
        EXPECT_EQ(container.get_overflow(), Gtk::Overflow::HIDDEN);
        double left = 0, top = 0;
        page.translate_coordinates(container, 0, 0, left, top);
        EXPECT_EQ(std::pair(left, top), std::pair(-60.0, 0.0));
        // The widget under the pointer gets its events, and so do the widgets around it.
        const auto reachesPage = [&](double x, double y) {
            auto* hit = container.pick(x, y);
            return hit && (hit == &page || hit->is_ancestor(page));
        };
        for (const double y : {1.0, height - 1.0}) {
            EXPECT_FALSE(reachesPage(1, y) || reachesPage(29, y)) << width;
            EXPECT_TRUE(reachesPage(31, y) && reachesPage(width - 1, y)) << width;
        }
    }
}

} // namespace
} // namespace tessaro::test
