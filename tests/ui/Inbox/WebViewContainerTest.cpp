#include "ui/Inbox/InboxWorld.h"

#include "support/Gtk/Pointer.h"

#include <gtest/gtest.h>

namespace tessaro::test {
namespace {

/// A page taller than its window, which counts what the pointer does to it.
constexpr const char* countingPage = R"html(
<style>body { margin: 0; height: 4000px; }</style>
<script>
    window.seen = [];
    for (const kind of ['mousedown', 'mouseup', 'mousemove', 'wheel', 'contextmenu'])
        addEventListener(kind, event => {
            window.seen.push(kind + '@' + event.clientX);
            if (kind === 'contextmenu') event.preventDefault();
        });
</script>
)html";

class WebViewContainer : public testing::Test {
protected:
    WebViewContainer() {
        world.server.answer(InboxWorld::inboxPath, InboxWorld::page(countingPage));
        browser = std::make_unique<InboxBrowser>(world);
    }

    /// Waits until the page knows the width that it has then.
    bool resize(int width, int height) {
        browser->window.set_default_size(width, height);
        return runUntil([&] { return browser->container->get_width() == width; }) &&
               browser->waitUntil("innerWidth === " + std::to_string(width + 60));
    }

    /// Waits until the page has taken in what the pointer did to it: the engine hands it one event
    /// after the other, and scrolls smoothly.
    bool waitForQuiet() {
        int quietInARow = 0;
        return runUntil([&] {
            const bool quiet =
                browser->ask("scrollY === 0 && window.seen.splice(0).length === 0") == "true";
            browser->ask("scrollTo(0, 0)");
            quietInARow = quiet ? quietInARow + 1 : 0;
            return quietInARow == 20;
        });
    }

    InboxWorld world;
    std::unique_ptr<InboxBrowser> browser;
};

TEST_F(WebViewContainer, CutsSixtyPointsOffThePageAndShieldsThirtyAtAnySize) {
    for (const auto& [width, height] :
         {std::pair(800, 600), std::pair(640, 480), std::pair(1100, 700)}) {
        SCOPED_TRACE(width);
        ASSERT_TRUE(resize(width, height));
        Gtk::Widget& container = *browser->container;
        Pointer::moveTo(container, 10, 300);
        ASSERT_TRUE(waitForQuiet());
        for (const double x : {10.0, 29.0})
            for (const unsigned button : {1U, 3U}) {
                Pointer::clickAt(container, x, 300, button);
                Pointer::press(button);
                Pointer::moveTo(container, x - 5, 350);
                Pointer::release(button);
                Pointer::scrollDown(5);
            }
        Pointer::clickAt(container, 40, 300);
        ASSERT_TRUE(browser->waitUntil("window.seen.includes('mouseup@100')"));
        // The engine repeats the pointer's last place by itself when the page was laid out anew.
        EXPECT_EQ(
            browser->ask("window.seen.filter(it => !it.startsWith('mousemove')).join()"),
            "mousedown@100,mouseup@100");
        EXPECT_EQ(browser->ask("window.seen.every(it => it.split('@')[1] >= 90)"), "true")
            << browser->ask("window.seen");
        EXPECT_EQ(browser->ask("scrollY"), "0");
        Pointer::moveTo(container, width - 50, 300);
        EXPECT_TRUE(runUntil([&] {
            Pointer::scrollDown(1);
            return browser->ask("scrollY > 0") == "true";
        }));
    }
}

} // namespace
} // namespace tessaro::test
